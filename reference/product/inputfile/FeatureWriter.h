// SPDX-License-Identifier: Apache-2.0
// Writes features with all their parameters and everything below them into a deck: steps and what
// they contain, conditions, properties. Nothing that a case holds is left out, whatever its late
// type.
#pragma once

#include "product/inputfile/Deck.h"
#include "product/inputfile/Keywords.h"
#include "product/treedump/FeaturePaths.h"

#include <vector>

namespace hlx {

class FeatureWriter
{
public:
    /// References to features below `base` are written as paths from there. Deck and base outlive
    /// this object.
    FeatureWriter(Deck& deck, const vex::Feature& base) : _deck(deck), _paths(base) {}

    /// Writes `feature` and everything below it. Depth is bounded by memory only.
    void Write(const vex::Feature& feature);

private:
    struct Level
    {
        const KeywordRule* rule;
        const vex::Feature* nextChild;  ///< null: all were written
        bool closed;                    ///< ends with an *END line
    };

    void Open(const vex::Feature& feature, std::vector<Level>& levels);
    void WriteParameters(const vex::Feature& feature);
    void WriteData(const vex::Feature& feature);

    Deck& _deck;
    FeaturePaths _paths;
};

}  // namespace hlx
