// SPDX-License-Identifier: Apache-2.0
// Writes features with all their parameters and everything below them into a deck: steps and what
// they contain, conditions with their regions, properties. Nothing that a case holds is left out,
// whatever its late type.
#pragma once

#include "product/inputfile/Deck.h"
#include "product/inputfile/Expectations.h"
#include "product/inputfile/Keywords.h"
#include "product/inputfile/Regions.h"
#include "product/treedump/FeaturePaths.h"

#include <string>
#include <vector>

namespace hlx {

class FeatureWriter
{
public:
    /// References to features below `base` are written as paths from there. `regions` gathers what
    /// the features are about. All outlive this object.
    FeatureWriter(Deck& deck, const vex::Feature& base, Regions& regions)
        : _deck(deck), _regions(regions), _paths(base)
    {}

    /// Writes `feature` and everything below it. Depth is bounded by memory only. False, with the
    /// reason in `error`, when a region is refused (Regions::Use).
    bool Write(const vex::Feature& feature, std::string& error);

private:
    struct Level
    {
        const KeywordRule* rule;
        const vex::Feature* nextChild;  ///< null: all were written
        bool closed;                    ///< ends with an *END line
        const StepExpectations* step;   ///< of the step that it is or stands in; null: of none
    };

    bool Open(const vex::Feature& feature, std::vector<Level>& levels, std::string& error);
    void WriteParameters(const vex::Feature& feature);
    void WriteData(const vex::Feature& feature);
    bool WriteRegion(const vex::Feature& feature, std::string& error);

    Deck& _deck;
    Regions& _regions;
    FeaturePaths _paths;
};

}  // namespace hlx
