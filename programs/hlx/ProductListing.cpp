// SPDX-License-Identifier: Apache-2.0
// Walks products without recursion: how deep they are nested is the document's affair.
#include "ProductListing.h"

#include "Messages.h"
#include "host/product/ProductStructure.h"
#include "host/system/Texts.h"

#include <fmt/format.h>

#include <memory>

namespace hlx {

namespace {

std::string LineOf(const VEXIProduct_var& product, std::size_t depth, bool asAbove)
{
    const std::string partNumber = vex::text::DoubleQuoted(product->GetPartNumber().View());
    const char* const end = asAbove ? ", as above" : "";
    if (depth == 0) {
        return fmt::format("product {}{}\n", partNumber, end);
    }
    const VEXIAlias_var alias = product;
    const std::string name =
        vex::text::DoubleQuoted(alias ? alias->GetAlias().View() : std::string_view());
    return fmt::format("{:{}}product {} of {}{}\n", "", depth * 2, name, partNumber, end);
}

/// The products that stand below a feature in its own document.
void AppendOwn(const vex::Feature& feature, std::vector<VEXIProduct_var>& below)
{
    for (vex::Feature* const child : feature.Children()) {
        if (const VEXIProduct_var product = VEXShare<VEXBaseUnknown>(child)) {
            below.push_back(product);
        }
    }
}

}  // namespace

bool ProductListing::AppendBelow(const VEXIProduct_var& product,
                                 std::vector<VEXIProduct_var>& below, bool& asAbove)
{
    const auto& feature = static_cast<const vex::Feature&>(*product->GetImpl());
    std::string error;
    const vex::Document* const linked = vex::LinkedDocument(feature, error);
    if (const auto written = _written.find(linked); written != _written.end()) {
        asAbove = written->second;
        AppendOwn(feature, below);
        return true;
    }
    const std::unique_ptr<VEXListValVEXBaseUnknown_var> children(
        product->GetChildren("VEXIProduct"));
    if (children == nullptr) {
        AppendOwn(feature, below);
        return Report(fmt::format("what stands below product {} cannot be read",
                                  vex::text::DoubleQuoted(product->GetPartNumber().View())));
    }
    bool complete = true;
    for (int i = 1; i <= children->Size(); ++i) {
        if (const VEXIProduct_var child = (*children)[i]) {
            below.push_back(child);
        } else {
            complete = Report("a product cannot be read");
        }
    }
    if (linked != nullptr) {
        _written[linked] = children->Size() > 0;
    }
    return complete;
}

bool ProductListing::Print(const VEXBaseUnknown_var& root)
{
    const VEXIProduct_var top = root;
    if (!top) {
        return Report("a root object of the document is no product that can be read");
    }
    bool complete = true;
    std::vector<Place> open{{top, 0}};
    while (!open.empty()) {
        const Place place = open.back();
        open.pop_back();
        std::vector<VEXIProduct_var> below;
        bool asAbove = false;
        complete = AppendBelow(place.product, below, asAbove) && complete;
        Write(LineOf(place.product, place.depth, asAbove));
        for (auto product = below.rbegin(); product != below.rend(); ++product) {
            open.push_back({*product, place.depth + 1});
        }
    }
    return complete;
}

}  // namespace hlx
