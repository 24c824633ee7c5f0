// SPDX-License-Identifier: Apache-2.0
// The merged table of components: rows of every loaded component library, bases resolved. A
// duplicate row is refused and both libraries are named.
#pragma once

#include "VEXComponentLibrary.h"

#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace vex {

struct InterfaceEntry
{
    IID id;
    std::string name;
    VEXInterfaceMaker make;
};

struct VEX_EXPORT ComponentType
{
    std::string name;
    std::string library;
    const ComponentType* base = nullptr;
    std::vector<InterfaceEntry> interfaces;  ///< its own and those of its bases, sorted by id
    VEXBaseUnknown* (*create)(void* argument) = nullptr;

    const InterfaceEntry* Find(const IID& iid) const;
    bool IsKindOf(std::string_view typeName) const;
};

class VEX_EXPORT ComponentTypes
{
public:
    static ComponentTypes& Instance();

    /// The row of that name; null when there is none. Loads the resident libraries on first use.
    const ComponentType* Find(std::string_view name);

    /// As Find, for a row that the program text names: its absence ends the process with a message.
    const ComponentType& Require(std::string_view name);

    /// Merges a library's rows. False, with the reason in `error` and nothing changed, for another
    /// version, a duplicate library, row or interface, an unknown base, or a library that refuses
    /// to start.
    bool Merge(const VEXComponentLibrary& library, std::string& error);

    /// Loads lib<name>.so from the search path (once) and merges it. False with the reason in
    /// `error`.
    bool Load(std::string_view name, std::string& error);

    /// As Find; when no loaded library has the row, loads further ones until one has: those that
    /// come with the product, then those in the folders of VEX_COMPONENT_PATH. For names that a
    /// user gives ahead of the program's calls.
    const ComponentType* FindAhead(std::string_view name);

    /// Folders searched for component libraries, in order: VEX_COMPONENT_PATH, then the host's own.
    static std::vector<std::string> SearchPath();

    /// All rows, in the order of their names: for the contract tests and `hlx probes`.
    std::vector<const ComponentType*> All();

private:
    using TypesByName = std::map<std::string, std::unique_ptr<ComponentType>, std::less<>>;

    void LoadResident();
    void Withdraw(std::string_view library);

    TypesByName _types;
    std::vector<std::unique_ptr<ComponentType>> _withdrawn;
    std::set<std::string, std::less<>> _merged;  ///< names of the libraries
    bool _residentLoaded = false;
};

}  // namespace vex
