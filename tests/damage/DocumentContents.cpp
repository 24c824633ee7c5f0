// SPDX-License-Identifier: Apache-2.0
#include "DocumentContents.h"

#include "host/feature/FeatureTree.h"
#include "host/system/Texts.h"
#include "product/treedump/TreeDump.h"

#include <bit>

namespace damagetest {

namespace {

using vex::text::AppendNumber;
using vex::text::AppendQuoted;

/// To the last bit: texts of numbers do not tell one NaN from another.
void AppendBits(std::string& out, const std::vector<double>& numbers)
{
    for (const double number : numbers) {
        AppendNumber(out, std::bit_cast<std::int64_t>(number));
        out += ' ';
    }
}

struct AppendValue
{
    std::string& out;

    void operator()(bool value) const { out += value ? "true" : "false"; }
    void operator()(std::int64_t value) const { AppendNumber(out, value); }
    void operator()(double value) const { AppendBits(out, {value}); }
    void operator()(const vex::Boxed<std::string>& value) const { AppendQuoted(out, *value); }
    void operator()(vex::Reference value) const
    {
        AppendNumber(out, static_cast<std::int64_t>(value.id));
    }
    void operator()(const vex::Boxed<vex::DocumentLink>& value) const
    {
        AppendQuoted(out, static_cast<const std::string&>(value->path));
    }
    void operator()(const vex::Boxed<vex::DoubleList>& value) const { AppendBits(out, *value); }
    void operator()(const vex::Boxed<vex::DoubleTable>& value) const
    {
        AppendNumber(out, static_cast<std::int64_t>(value->columns));
        out += ": ";
        AppendBits(out, value->cells);
    }
};

void AppendFeature(std::string& out, const vex::Feature& feature, int depth)
{
    AppendNumber(out, std::int64_t{depth});
    out += " #";
    AppendNumber(out, static_cast<std::int64_t>(feature.Id()));
    out += ' ' + feature.Kind().name + ' ';
    if (feature.HasAlias()) {
        AppendQuoted(out, feature.Alias());
    }
    feature.ForEachSet([&](int index, const vex::Value& value) {
        out += ' ' + feature.Kind().attributes[static_cast<std::size_t>(index)].name + '=';
        std::visit(AppendValue{out}, value);
    });
    out += '\n';
}

}  // namespace

std::string FeaturesOf(const vex::Document& document)
{
    std::string out = vex::Document::TypeName(document.DocType());
    out += ' ' + std::to_string(document.DataVersion()) + '\n';
    for (vex::Feature* const root : document.Tree().Roots()) {
        vex::FeatureTree::Walk(*root, [&](const vex::Feature& feature, int depth) {
            AppendFeature(out, feature, depth);
        });
        hlx::AppendFeatureTree(out, *root, 0);
    }
    return out;
}

bool ContentsOf(vex::Document& document, std::string& contents, std::string& error)
{
    contents = FeaturesOf(document);
    for (const std::uint64_t number : document.Blobs().Numbers()) {
        std::span<const std::byte> bytes;
        if (!document.Geometry(number, bytes, error)) {
            return false;
        }
        contents += "geometry " + std::to_string(number) + ": ";
        contents.append(reinterpret_cast<const char*>(bytes.data()), bytes.size());
        contents += '\n';
    }
    return true;
}

}  // namespace damagetest
