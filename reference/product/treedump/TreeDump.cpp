// SPDX-License-Identifier: Apache-2.0
// Lines of the tree dump.
#include "product/treedump/TreeDump.h"

#include "host/system/Texts.h"
#include "product/treedump/ValueText.h"

#include <algorithm>

namespace hlx {

namespace {

/// Deeper lines are not indented further but say their level, or a chain of features would make a
/// text of the square of its length.
constexpr std::int64_t deepestIndent = 100;

/// Room for a line as most are: what is not used of it costs address space only.
constexpr std::size_t likelyLine = 160;

void AppendIndent(std::string& out, std::int64_t level)
{
    out.append(static_cast<std::size_t>(2 * std::min(level, deepestIndent)), ' ');
    if (level > deepestIndent) {
        out += '@';
        vex::text::AppendNumber(out, level);
        out += ' ';
    }
}

/// "(1 2 3)"
void AppendNumbers(std::string& out, const double* numbers, std::size_t count)
{
    out += '(';
    for (std::size_t i = 0; i < count; ++i) {
        if (i > 0) {
            out += ' ';
        }
        vex::text::AppendNumber(out, numbers[i]);
    }
    out += ')';
}

/// "((0 0) (1 2))"
void AppendTable(std::string& out, const vex::DoubleTable& table)
{
    out += '(';
    for (std::size_t cell = 0; cell < table.cells.size(); cell += table.columns) {
        if (cell > 0) {
            out += ' ';
        }
        AppendNumbers(out, &table.cells[cell], table.columns);
    }
    out += ')';
}

void AppendAttributes(std::string& out, const vex::Feature& feature, FeaturePaths& paths)
{
    feature.ForEachSet([&](int index, const vex::Value& value) {
        const auto& definition = feature.Kind().attributes[static_cast<std::size_t>(index)];
        if (value == definition.defaultValue) {
            return;
        }
        out += ' ';
        out += definition.name;
        out += '=';
        if (const auto* list = std::get_if<vex::Boxed<vex::DoubleList>>(&value)) {
            AppendNumbers(out, (*list)->data(), (*list)->size());
        } else if (const auto* table = std::get_if<vex::Boxed<vex::DoubleTable>>(&value)) {
            AppendTable(out, **table);
        } else {
            AppendScalar(out, value, feature, paths);
        }
    });
}

}  // namespace

void AppendFeatureTree(std::string& out, vex::Feature& root, int depth)
{
    FeaturePaths paths(root);
    const std::int64_t first = std::max(depth, 0);
    std::size_t lines = 0;
    vex::FeatureTree::Walk(root, [&](const vex::Feature&, int) { ++lines; });
    out.reserve(out.size() + lines * likelyLine);
    vex::FeatureTree::Walk(root, [&](const vex::Feature& feature, int level) {
        AppendIndent(out, first + level);
        out += feature.Kind().name;
        if (!feature.Alias().empty()) {
            out += ' ';
            vex::text::AppendQuoted(out, feature.Alias());
        }
        AppendAttributes(out, feature, paths);
        out += '\n';
    });
}

}  // namespace hlx
