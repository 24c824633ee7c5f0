// SPDX-License-Identifier: Apache-2.0
// Regions by what features store of them.
#include "product/inputfile/Regions.h"

#include "host/part/Region.h"

namespace hlx {

std::string RegionOfInstance(const PartInstance& instance, std::string_view region)
{
    std::string name = instance.name;
    name += '/';
    name += region;
    return name;
}

Regions::Regions(const Structure& structure) : _structure(structure), _used(structure.parts.size())
{
    for (const StructurePart& part : structure.parts) {
        _parts.emplace(part.document, _parts.size());
        std::size_t bytes = 0;
        for (const std::size_t instance : part.instances) {
            bytes += structure.instances[instance].name.size() + 1;
        }
        _bytesOfInstances.push_back(bytes);
    }
}

const Regions::Region* Regions::Use(const vex::Feature& stored, std::string& error)
{
    const auto& link = stored.GetAs<vex::DocumentLink>("Document");
    const std::string& path = link.path;
    const auto dimension = stored.GetAs<std::int64_t>("Dimension");
    const auto index = stored.GetAs<std::int64_t>("Index");
    const auto [known, isNew] =
        _known.try_emplace({path, link.kind, dimension, index, stored.GetAs<std::string>("Shape")});
    Region& region = known->second;
    if (isNew) {
        if (!Resolve(stored, region, error)) {
            _known.erase(known);
            return nullptr;
        }
        if (region.part.has_value()) {
            _used[*region.part].emplace(std::pair(dimension, index), region.name);
        }
    }
    return CountNames(region, error) ? &region : nullptr;
}

bool Regions::Resolve(const vex::Feature& stored, Region& region, std::string& error) const
{
    const vex::Document* const document = vex::ResolveRegion(stored, error);
    if (document == nullptr) {
        return false;
    }
    region.name = vex::RegionName(stored);
    if (const auto part = _parts.find(document); part != _parts.end()) {
        region.part = part->second;
    }
    return true;
}

bool Regions::CountNames(const Region& region, std::string& error)
{
    if (region.part.has_value()) {
        _bytesOfNames += _bytesOfInstances[*region.part] +
                         _structure.parts[*region.part].instances.size() * region.name.size();
    }
    if (_bytesOfNames <= mostBytesOfNames) {
        return true;
    }
    error =
        "the names of the regions, one for each use of their parts, take more than 256 MiB; link "
        "the analysis to a smaller product or write fewer cases at once";
    return false;
}

}  // namespace hlx
