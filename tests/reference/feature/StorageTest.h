// SPDX-License-Identifier: Apache-2.0
// A document that is in no session, and a folder to store it in and read it back from.
#pragma once

#include "TestDocument.h"
#include "host/feature/DocumentStorage.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <string>

namespace featuretest {

class StorageTest : public testing::Test
{
protected:
    vex::DocumentHolder Load(const std::string& from)
    {
        vex::DocumentHolder read = vex::LoadDocument(from, error);
        EXPECT_NE(read, nullptr) << error;
        return read;
    }

    hlxtest::TemporaryFolder folder;
    std::string path = folder.File("a.VEXPart");
    std::string error;
    vex::DocumentHolder document = MakeDocument();
    vex::Feature& root = *document->Tree().Roots().front();
};

}  // namespace featuretest
