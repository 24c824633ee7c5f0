// SPDX-License-Identifier: Apache-2.0
// An analysis document in which everything can bear a name, made, stored and opened as a program
// does it, and its two texts.
#pragma once

#include "HLXProductUtilities.h"
#include "VEXDocumentServices.h"
#include "host/feature/Feature.h"
#include "support/TemporaryFolder.h"

#include <string>
#include <vector>

namespace hlxtest {

class NamedAnalysis
{
public:
    /// A new document with one case, in which one step: its loads hold a gravity that refers to
    /// an amplitude of the model.
    NamedAnalysis();
    ~NamedAnalysis();
    NamedAnalysis(const NamedAnalysis&) = delete;
    NamedAnalysis& operator=(const NamedAnalysis&) = delete;

    VEXDocument* Document() const { return _document; }

    /// The current model.
    vex::Feature& Model() const;
    /// The model, and one feature of each kind that bears names: case, history, step, container of
    /// loads, load, amplitude, job.
    std::vector<vex::Feature*> Bearers() const;
    vex::Feature& Only(std::string_view lateType) const;

    /// A feature with that alias, made by the model factory of the platform; null when refused.
    VEXISpecObject_var Create(std::string_view lateType, const std::string& alias,
                              vex::Feature& father) const;

    /// Stores it as `fileName` of its folder, removes it and opens it anew. All features that were
    /// had before are gone then.
    void Reopen(const std::string& fileName = "names.VEXAnalysis");

    std::string Dump() const;
    std::string Deck(bool flat = false) const;

    const TemporaryFolder& Folder() const { return _folder; }

private:
    TemporaryFolder _folder;
    VEXDocument* _document = nullptr;
};

/// Sets an alias through the interface of the feature.
HRESULT SetAlias(vex::Feature& feature, const std::string& alias);
/// The alias as that interface gives it.
std::string AliasOf(vex::Feature& feature);

/// All features of the tree below `root`, itself included, in the order of the tree.
std::vector<vex::Feature*> FeaturesOf(vex::Feature& root);

}  // namespace hlxtest
