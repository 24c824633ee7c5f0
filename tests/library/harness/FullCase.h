// SPDX-License-Identifier: Apache-2.0
// A test case all of whose members are set, for tests of copies and of destruction.
#pragma once

#include "support/ExposedTestCase.h"
#include "support/Outcome.h"
#include "support/StandIns.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>

namespace hlxtest {

using TextMember = VEXUnicodeString HLXBaseTestCase::*;

inline const TextMember kTexts[] = {
    &ExposedTestCase::_InputDirectory,
    &ExposedTestCase::_InputFilePath,
    &ExposedTestCase::_OutputDirectory,
    &ExposedTestCase::_HollexFile1Path,
    &ExposedTestCase::_HollexFile2Path,
    &ExposedTestCase::_DumpTreeTitle,
    &ExposedTestCase::_DumpTreeFileName,
    &ExposedTestCase::_TimeLogFilePath,
    &ExposedTestCase::_HollexFile1Name,
    &ExposedTestCase::_HollexFile2Name,
    &ExposedTestCase::_IntermediateInputFilePath,
    &ExposedTestCase::_InputFileName,
};

/// A case all of whose members are set, to objects that tell when they die.
template <class Case>
class FullCaseOf : public testing::Test
{
protected:
    FullCaseOf() : held(std::make_unique<Case>())
    {
        int number = 0;
        for (const TextMember text : kTexts) {
            (*held).*text = std::to_string(++number).c_str();
        }
        held->_PartIndex = 7;
        held->_Document = document;
        held->_AnalysisCases.Append(VEXAdopt<VEXBaseUnknown>(analysisCase));
        held->_RootProduct = VEXAdopt<VEXIProduct>(product);
        held->_Body = VEXAdopt<VEXBody>(body);
        held->_LoadFactory = loadFactory;
        held->_PartDocContainer = containers;
        held->_NavigateObject = VEXAdopt<VEXINavigateObject>(navigate);
        held->_MechanicalPart = VEXAdopt<VEXISpecObject>(mechanicalPart);
        held->_PartLink = VEXAdopt<VEXILinkableObject>(link);
        held->_AnalysisContainer = VEXAdopt<VEXISamAnalysisContainer>(analysisContainer);
        held->_AmplitudeFeature = VEXAdopt<VEXISpecObject>(amplitude);
        held->_TimeLogFile = stderr;
    }

    /// Whether every member of `copy` is what was set above.
    void ExpectAllMembers(const Case& copy)
    {
        int number = 0;
        for (const TextMember text : kTexts) {
            EXPECT_EQ(copy.*text, std::to_string(++number).c_str());
        }
        EXPECT_EQ(copy._PartIndex, 7);
        EXPECT_EQ(copy._Document, document);
        EXPECT_EQ(copy._AnalysisCases.Size(), 1);
        EXPECT_EQ(copy._AnalysisCases[1].Get(), analysisCase);
        EXPECT_EQ(copy._RootProduct.Get(), product);
        EXPECT_EQ(copy._Body.Get(), body);
        EXPECT_EQ(copy._LoadFactory, loadFactory);
        EXPECT_EQ(copy._PartDocContainer, containers);
        EXPECT_EQ(copy._NavigateObject.Get(), navigate);
        EXPECT_EQ(copy._MechanicalPart.Get(), mechanicalPart);
        EXPECT_EQ(copy._PartLink.Get(), link);
        EXPECT_EQ(copy._AnalysisContainer.Get(), analysisContainer);
        EXPECT_EQ(copy._AmplitudeFeature.Get(), amplitude);
        EXPECT_EQ(copy._TimeLogFile, stderr);
    }

    /// Whether the handles of `cases` cases are counted, and the two owned pointers only once.
    void ExpectCounts(unsigned long cases)
    {
        for (const VEXBaseUnknown* const object :
             {static_cast<const VEXBaseUnknown*>(analysisCase),
              static_cast<const VEXBaseUnknown*>(product), static_cast<const VEXBaseUnknown*>(body),
              static_cast<const VEXBaseUnknown*>(navigate),
              static_cast<const VEXBaseUnknown*>(mechanicalPart),
              static_cast<const VEXBaseUnknown*>(link),
              static_cast<const VEXBaseUnknown*>(analysisContainer),
              static_cast<const VEXBaseUnknown*>(amplitude)}) {
            EXPECT_EQ(References(*object), cases);
        }
        EXPECT_EQ(References(*loadFactory), 1U);
        EXPECT_EQ(References(*containers), 1U);
    }

    Deaths deaths;
    AnyStandIn* analysisCase = new AnyStandIn(deaths, "analysis case");
    ProductStandIn* product = new ProductStandIn(deaths, "product");
    BodyStandIn* body = new BodyStandIn(deaths, "body");
    AnyStandIn* loadFactory = new AnyStandIn(deaths, "load factory");
    DocumentContainersStandIn* containers = new DocumentContainersStandIn(deaths, "containers");
    NavigateStandIn* navigate = new NavigateStandIn(deaths, "navigate object");
    FeatureStandIn* mechanicalPart = new FeatureStandIn(deaths, "mechanical part");
    LinkStandIn* link = new LinkStandIn(deaths, "part link");
    AnalysisContainerStandIn* analysisContainer =
        new AnalysisContainerStandIn(deaths, "analysis container");
    FeatureStandIn* amplitude = new FeatureStandIn(deaths, "amplitude");
    /// Never looked at: whoever does ends the process.
    VEXDocument* document = std::bit_cast<VEXDocument*>(std::uintptr_t{8});
    std::unique_ptr<Case> held;
};

}  // namespace hlxtest
