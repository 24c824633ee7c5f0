// SPDX-License-Identifier: Apache-2.0
// An imported assembly as bytes: counts, indices and lengths are 8 bytes in the machine's own
// order, a text or a shape is its length and its bytes, an absent part index is ~0.
#include "host/topology/step/AssemblyStream.h"

#include <cstdint>
#include <cstring>

namespace vex::topology {
namespace {

constexpr std::uint64_t kNone = ~std::uint64_t{0};

class Writer
{
public:
    void Number(std::uint64_t value) { Raw(&value, sizeof value); }

    template <typename Sequence>
    void Sized(const Sequence& sequence)
    {
        Number(sequence.size());
        Raw(sequence.data(), sequence.size());
    }

    void Raw(const void* data, std::size_t size)
    {
        const auto* first = static_cast<const std::byte*>(data);
        bytes_.insert(bytes_.end(), first, first + size);
    }

    std::vector<std::byte> Take() { return std::move(bytes_); }

private:
    std::vector<std::byte> bytes_;
};

// After a read beyond the end, `Good` is false and everything read is zero or empty.
class Reader
{
public:
    explicit Reader(std::span<const std::byte> bytes) : rest_(bytes) {}

    std::uint64_t Number()
    {
        std::uint64_t value = 0;
        Raw(&value, sizeof value);
        return value;
    }

    // A count of things of which each takes at least `least` bytes, so that a wrong one cannot ask
    // for all memory.
    std::size_t Count(std::size_t least)
    {
        const std::uint64_t count = Number();
        if (count > rest_.size() / least) good_ = false;
        return good_ ? static_cast<std::size_t>(count) : 0;
    }

    template <typename Sequence>
    void Sized(Sequence& sequence)
    {
        sequence.resize(Count(1));
        Raw(sequence.data(), sequence.size());
    }

    void Raw(void* data, std::size_t size)
    {
        if (!good_ || size > rest_.size()) {
            good_ = false;
            return;
        }
        if (size > 0) std::memcpy(data, rest_.data(), size);
        rest_ = rest_.subspan(size);
    }

    bool Good() const { return good_; }
    bool AtEnd() const { return rest_.empty(); }

private:
    std::span<const std::byte> rest_;
    bool good_ = true;
};

bool IndicesFit(const ImportedAssembly& assembly)
{
    for (const ImportedProduct& product : assembly.products) {
        if (product.partIndex && *product.partIndex >= assembly.parts.size()) return false;
        for (const ImportedInstance& child : product.children) {
            if (child.product >= assembly.products.size()) return false;
        }
    }
    return !assembly.products.empty();
}

}  // namespace

std::vector<std::byte> WriteAssembly(const ImportedAssembly& assembly)
{
    Writer to;
    to.Number(assembly.products.size());
    for (const ImportedProduct& product : assembly.products) {
        to.Sized(product.name);
        to.Number(product.partIndex ? *product.partIndex : kNone);
        to.Number(product.children.size());
        for (const ImportedInstance& child : product.children) {
            to.Sized(child.name);
            to.Number(child.product);
            to.Raw(child.placement.data(), sizeof child.placement);
        }
    }
    to.Number(assembly.parts.size());
    for (const ImportedPart& part : assembly.parts) {
        to.Sized(part.name);
        to.Sized(part.shape);
    }
    return to.Take();
}

std::optional<ImportedAssembly> ReadAssembly(std::span<const std::byte> bytes)
{
    Reader from(bytes);
    ImportedAssembly assembly;
    assembly.products.resize(from.Count(3 * sizeof(std::uint64_t)));
    for (ImportedProduct& product : assembly.products) {
        from.Sized(product.name);
        const std::uint64_t part = from.Number();
        if (part != kNone) product.partIndex = static_cast<std::size_t>(part);
        product.children.resize(from.Count(sizeof(Placement) + 2 * sizeof(std::uint64_t)));
        for (ImportedInstance& child : product.children) {
            from.Sized(child.name);
            child.product = static_cast<std::size_t>(from.Number());
            from.Raw(child.placement.data(), sizeof child.placement);
        }
    }
    assembly.parts.resize(from.Count(2 * sizeof(std::uint64_t)));
    for (ImportedPart& part : assembly.parts) {
        from.Sized(part.name);
        from.Sized(part.shape);
    }
    if (!from.Good() || !from.AtEnd() || !IndicesFit(assembly)) return {};
    return assembly;
}

}  // namespace vex::topology
