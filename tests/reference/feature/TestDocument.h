// SPDX-License-Identifier: Apache-2.0
// Late types of the tests and documents made of them.
#pragma once

#include "host/feature/DocumentSession.h"

#include <string>
#include <string_view>

namespace featuretest {

/// "TestThing" has an attribute of each kind (Flag, Count, Size, Label, Other, File, Samples,
/// Rows), some with defaults; "TestDerived" extends it by Extra; "TestContainer" has none.
const vex::LateType& Type(std::string_view name);

/// A document that is in no session, with one TestContainer as its root.
vex::DocumentHolder MakeDocument(vex::DocumentType type = vex::DocumentType::Part);

vex::Feature& Add(vex::Feature& parent, std::string_view type = "TestThing",
                  std::string_view alias = {});

/// A feature's tree as text: "type 'alias'(children)", for comparison.
std::string Outline(const vex::Feature& root);

/// The session's document: made new with the test container, stored, open.
vex::Document& StoreOpen(const std::string& path, vex::DocumentType type = vex::DocumentType::Part);

/// Closes all documents of the session when it dies.
struct ClosesAll
{
    ~ClosesAll();
};

/// Opens, expecting success.
vex::Document& Open(const std::string& path, bool readOnly = false);

/// Adds a feature to `from` that links to `path`.
void Link(vex::Document& from, const std::string& path);

}  // namespace featuretest
