// SPDX-License-Identifier: Apache-2.0
// Features as keyword lines, data lines and blocks.
#include "product/inputfile/FeatureWriter.h"

#include "host/part/Region.h"
#include "host/system/Texts.h"
#include "product/treedump/ValueText.h"

#include <algorithm>

namespace hlx {

namespace {

bool IsOmitted(const vex::Feature& feature)
{
    return RuleFor(feature.Kind().name).shape == KeywordShape::Omitted;
}

bool HasContents(const vex::Feature& feature)
{
    return !std::ranges::all_of(feature.Children(),
                                [](const vex::Feature* child) { return IsOmitted(*child); });
}

/// "[3]": one data line of three numbers.
void AppendSize(std::string& out, const vex::DoubleList& list)
{
    out += '[';
    vex::text::AppendNumber(out, static_cast<std::int64_t>(list.size()));
    out += ']';
}

std::size_t RowsOf(const vex::DoubleTable& table)
{
    return table.columns == 0 ? 0 : table.cells.size() / table.columns;
}

/// "[4x2]": four data lines of two numbers.
void AppendSize(std::string& out, const vex::DoubleTable& table)
{
    out += '[';
    vex::text::AppendNumber(out, static_cast<std::int64_t>(RowsOf(table)));
    out += 'x';
    vex::text::AppendNumber(out, static_cast<std::int64_t>(table.columns));
    out += ']';
}

/// Visits the attributes that the catalogue lists, with their names.
template <class Visit>
void ForEachListed(const vex::Feature& feature, Visit&& visit)
{
    const auto& definitions = feature.Kind().attributes;
    for (std::size_t i = 0; i < definitions.size(); ++i) {
        if (definitions[i].listed) {
            visit(definitions[i].name, feature.Get(static_cast<int>(i)));
        }
    }
}

}  // namespace

bool FeatureWriter::Write(const vex::Feature& feature, std::string& error)
{
    std::vector<Level> levels;
    if (!IsOmitted(feature) && !Open(feature, levels, error)) {
        return false;
    }
    while (!levels.empty()) {
        Level& level = levels.back();
        if (level.nextChild == nullptr) {
            if (level.closed) {
                _deck.End(level.rule->keyword);
            }
            levels.pop_back();
            continue;
        }
        const vex::Feature& child = *level.nextChild;
        level.nextChild = child.NextSibling();
        if (!IsOmitted(child) && !Open(child, levels, error)) {
            return false;
        }
    }
    return true;
}

bool FeatureWriter::Open(const vex::Feature& feature, std::vector<Level>& levels,
                         std::string& error)
{
    const KeywordRule& rule = RuleFor(feature.Kind().name);
    const StepExpectations* step = levels.empty() ? nullptr : levels.back().step;
    if (step != nullptr && !step->Expects(feature.Kind())) {
        _deck.Comment("not expected in " + std::string(step->words));
    }
    if (const StepExpectations* const own = ExpectationsOf(feature.Kind()); own != nullptr) {
        step = own;
    }
    const bool isBlock = rule.shape == KeywordShape::Block;
    const bool says = !isBlock && HasContents(feature);
    _deck.Keyword(rule.keyword);
    if (IsGeneric(rule)) {
        _deck.Word("TYPE", feature.Kind().name);
    }
    if (!feature.Alias().empty()) {
        _deck.Quoted("NAME", feature.Alias());
    }
    if (says) {
        _deck.Parameter("CONTENTS");
    }
    WriteParameters(feature);
    _deck.EndLine();
    WriteData(feature);
    if (feature.Kind().IsKindOf(vex::regionType) && !WriteRegion(feature, error)) {
        return false;
    }
    if (!rule.procedure.empty()) {
        _deck.KeywordLine(rule.procedure);
    }
    levels.push_back({&rule, feature.Children().front(), isBlock || says, step});
    return true;
}

void FeatureWriter::WriteParameters(const vex::Feature& feature)
{
    ForEachListed(feature, [&](const std::string& name, const vex::Value& value) {
        _deck.Word(name, "");
        if (const auto* list = std::get_if<vex::Boxed<vex::DoubleList>>(&value)) {
            AppendSize(_deck.Text(), **list);
        } else if (const auto* table = std::get_if<vex::Boxed<vex::DoubleTable>>(&value)) {
            AppendSize(_deck.Text(), **table);
        } else {
            AppendScalar(_deck.Text(), value, feature, _paths);
        }
    });
}

void FeatureWriter::WriteData(const vex::Feature& feature)
{
    ForEachListed(feature, [&](const std::string&, const vex::Value& value) {
        if (const auto* list = std::get_if<vex::Boxed<vex::DoubleList>>(&value)) {
            _deck.Data(**list);
        } else if (const auto* table = std::get_if<vex::Boxed<vex::DoubleTable>>(&value)) {
            for (std::size_t row = 0; row < RowsOf(**table); ++row) {
                _deck.Data({&(*table)->cells[row * (*table)->columns], (*table)->columns});
            }
        }
    });
}

bool FeatureWriter::WriteRegion(const vex::Feature& feature, std::string& error)
{
    const Regions::Region* const region = _regions.Use(feature, error);
    if (region == nullptr) {
        std::string place;
        _paths.Append(place, feature);
        error = place + ": " + error;
        return false;
    }
    if (!region->part.has_value()) {
        std::string text = "not in the structure: ";
        vex::text::AppendQuoted(text, region->name);
        text += " of ";
        AppendLink(text, feature.GetAs<vex::DocumentLink>("Document"), feature);
        _deck.Comment(text);
        return true;
    }
    const Structure& structure = _regions.Parts();
    for (const std::size_t instance : structure.parts[*region->part].instances) {
        _deck.QuotedData(RegionOfInstance(structure.instances[instance], region->name));
    }
    return true;
}

}  // namespace hlx
