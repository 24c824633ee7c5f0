// SPDX-License-Identifier: Apache-2.0
// Lines of the tree dump.
#include "product/treedump/TreeDump.h"

#include "host/system/TextBuffer.h"
#include "host/system/Texts.h"
#include "product/treedump/ValueText.h"

#include <algorithm>
#include <unordered_map>
#include <utility>
#include <vector>

namespace hlx {

namespace {

using vex::text::TextBuffer;

/// Deeper lines are not indented further but say their level, or a chain of features would make a
/// text of the square of its length.
constexpr std::int64_t deepestIndent = 100;

/// Room for a line as most are: what is not used of it costs address space only.
constexpr std::size_t likelyLine = 160;

void AppendIndent(TextBuffer& out, std::int64_t level)
{
    out.append(static_cast<std::size_t>(2 * std::min(level, deepestIndent)), ' ');
    if (level > deepestIndent) {
        out += '@';
        vex::text::AppendNumber(out, level);
        out += ' ';
    }
}

/// "(1 2 3)"
void AppendNumbers(TextBuffer& out, const double* numbers, std::size_t count)
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
void AppendTable(TextBuffer& out, const vex::DoubleTable& table)
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

/// As value == other, for two of one kind; quicker for the kinds that most are of.
bool IsSame(const vex::Value& value, const vex::Value& other)
{
    if (const auto* const number = std::get_if<double>(&value)) {
        return *number == std::get<double>(other);
    }
    if (const auto* const number = std::get_if<std::int64_t>(&value)) {
        return *number == std::get<std::int64_t>(other);
    }
    if (const auto* const text = std::get_if<vex::Boxed<std::string>>(&value)) {
        return *text == std::get<vex::Boxed<std::string>>(other);
    }
    return value == other;
}

/// What stands before the values of a late type's attributes: " name=", by index.
class Labels
{
public:
    const std::vector<std::string>& Of(const vex::LateType& type)
    {
        if (_last != &type) {
            _last = &type;
            _lastTexts = &_texts[&type];
            for (std::size_t i = _lastTexts->size(); i < type.attributes.size(); ++i) {
                _lastTexts->push_back(" " + type.attributes[i].name + "=");
            }
        }
        return *_lastTexts;
    }

private:
    std::unordered_map<const vex::LateType*, std::vector<std::string>> _texts;
    const vex::LateType* _last = nullptr;
    std::vector<std::string>* _lastTexts = nullptr;
};

void AppendAttributes(TextBuffer& out, const vex::Feature& feature, Labels& labels,
                      FeaturePaths& paths)
{
    const std::vector<std::string>& texts = labels.Of(feature.Kind());
    feature.ForEachSet([&](int index, const vex::Value& value) {
        const auto place = static_cast<std::size_t>(index);
        const vex::AttributeDefinition& definition = feature.Kind().attributes[place];
        if (!definition.listed || IsSame(value, definition.defaultValue)) {
            return;
        }
        out += texts[place];
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

void AppendFeatureTree(std::string& text, vex::Feature& root, int depth)
{
    FeaturePaths paths(root);
    Labels labels;
    const std::int64_t first = std::max(depth, 0);
    TextBuffer out(std::move(text), root.Tree()->Size() * likelyLine);
    vex::FeatureTree::Walk(root, [&](const vex::Feature& feature, int level) {
        AppendIndent(out, first + level);
        out += feature.Kind().name;
        if (const std::string_view alias = feature.Alias(); !alias.empty()) {
            out += ' ';
            vex::text::AppendQuoted(out, alias);
        }
        AppendAttributes(out, feature, labels, paths);
        out += '\n';
    });
    text = out.Take();
}

}  // namespace hlx
