// SPDX-License-Identifier: Apache-2.0
// Attribute values as text.
#include "product/treedump/ValueText.h"

#include "host/feature/Document.h"
#include "host/store/LinkPath.h"
#include "host/system/TextBuffer.h"
#include "host/system/Texts.h"

#include <string_view>

namespace hlx {

namespace {

/// The feature that a reference of `owner` leads to; null for none.
const vex::Feature* TargetOf(const vex::Reference& reference, const vex::Feature& owner)
{
    return reference.id == 0 ? nullptr : owner.Tree()->Find(reference.id);
}

}  // namespace

template <class Text>
void AppendLink(Text& out, const vex::DocumentLink& link, const vex::Feature& owner)
{
    const std::string& document = owner.Tree()->Owner().Path();
    const std::string& target = link.path;
    std::string relative = vex::store::MakeRelative(document, target);
    // A way up and down again would tell where on this machine the documents stand.
    if (relative.empty() || relative == ".." || relative.starts_with("../")) {
        relative = target.substr(target.rfind('/') + 1);
    }
    vex::text::AppendQuoted(out, relative);
}

template <class Text>
void AppendScalar(Text& out, const vex::Value& value, const vex::Feature& owner,
                  FeaturePaths& paths)
{
    switch (vex::KindOf(value)) {
        case vex::ValueKind::Boolean:
            out += std::get<bool>(value) ? "true" : "false";
            break;
        case vex::ValueKind::Integer:
            vex::text::AppendNumber(out, std::get<std::int64_t>(value));
            break;
        case vex::ValueKind::Double:
            vex::text::AppendNumber(out, std::get<double>(value));
            break;
        case vex::ValueKind::Text:
            vex::text::AppendQuoted(out, *std::get<vex::Boxed<std::string>>(value));
            break;
        case vex::ValueKind::Reference:
            if (const auto* target = TargetOf(std::get<vex::Reference>(value), owner)) {
                paths.Append(out, *target);
            } else {
                out += "none";
            }
            break;
        case vex::ValueKind::DocumentLink:
            AppendLink(out, *std::get<vex::Boxed<vex::DocumentLink>>(value), owner);
            break;
        case vex::ValueKind::List:
        case vex::ValueKind::Table:
            break;
    }
}

template void AppendLink(std::string&, const vex::DocumentLink&, const vex::Feature&);
template void AppendScalar(std::string&, const vex::Value&, const vex::Feature&, FeaturePaths&);
template void AppendScalar(vex::text::TextBuffer&, const vex::Value&, const vex::Feature&,
                           FeaturePaths&);

}  // namespace hlx
