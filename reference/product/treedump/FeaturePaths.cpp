// SPDX-License-Identifier: Apache-2.0
// Paths of features: segments from the base down, or the feature's number in its document.
#include "product/treedump/FeaturePaths.h"

#include "host/system/TextBuffer.h"
#include "host/system/Texts.h"

#include <string_view>

namespace hlx {

using vex::Feature;

template <class Text>
void FeaturePaths::Append(Text& out, const Feature& target)
{
    const std::size_t start = out.size();
    if (AppendSegments(out, target)) {
        return;
    }
    out.resize(start);
    out += '#';
    vex::text::AppendNumber(out, static_cast<std::int64_t>(NumberOf(target)));
}

// False when the path gets too long; `out` then holds a part of it.
template <class Text>
bool FeaturePaths::AppendSegments(Text& out, const Feature& target)
{
    const std::size_t start = out.size();
    _chain.clear();
    const Feature* feature = &target;
    for (; feature != nullptr && feature != _base; feature = feature->Parent()) {
        // A segment and its slash take two bytes at least, so that a longer chain need not be
        // walked.
        if (_chain.size() > longestPath / 2) {
            return false;
        }
        _chain.push_back(feature);
    }
    if (feature == nullptr) {
        out += '/';
    } else if (_chain.empty()) {
        out += '.';
    }
    for (std::size_t i = _chain.size(); i > 0; --i) {
        const Feature& step = *_chain[i - 1];
        const Place& place = PlaceOf(step);
        if (place.aliasIsUnique) {
            if (step.Alias().size() > longestPath) {
                return false;
            }
            vex::text::AppendQuoted(out, step.Alias());
        } else {
            out += step.Kind().name;
            out += '[';
            vex::text::AppendNumber(out, static_cast<std::int64_t>(place.ordinal));
            out += ']';
        }
        if (i > 1) {
            out += '/';
        }
        if (out.size() - start > longestPath) {
            return false;
        }
    }
    return true;
}

const FeaturePaths::Place& FeaturePaths::PlaceOf(const Feature& feature)
{
    if (const auto known = _places.find(&feature); known != _places.end()) {
        return known->second;
    }
    const vex::FeatureList& siblings =
        feature.Parent() != nullptr ? feature.Parent()->Children() : feature.Tree()->Roots();
    std::unordered_map<std::string_view, std::uint64_t> bearers;
    std::unordered_map<const vex::LateType*, std::uint64_t> ordinals;
    bearers.reserve(siblings.size());
    for (const Feature* const sibling : siblings) {
        if (!sibling->Alias().empty()) {
            ++bearers[sibling->Alias()];
        }
    }
    for (const Feature* const sibling : siblings) {
        const bool unique = !sibling->Alias().empty() && bearers[sibling->Alias()] == 1;
        _places[sibling] = {++ordinals[&sibling->Kind()], unique};
    }
    return _places[&feature];
}

// Its place in its document, from 1: containers in their order, each feature before those below it.
std::uint64_t FeaturePaths::NumberOf(const Feature& feature)
{
    if (const auto known = _numbers.find(&feature); known != _numbers.end()) {
        return known->second;
    }
    std::uint64_t number = 0;
    for (Feature* const root : feature.Tree()->Roots()) {
        vex::FeatureTree::Walk(*root, [&](Feature& each, int) { _numbers[&each] = ++number; });
    }
    return _numbers[&feature];
}

template VEX_EXPORT void FeaturePaths::Append(std::string&, const Feature&);
template VEX_EXPORT void FeaturePaths::Append(vex::text::TextBuffer&, const Feature&);

}  // namespace hlx
