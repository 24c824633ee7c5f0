// SPDX-License-Identifier: Apache-2.0
// Process-wide components by class name, and the objects of component libraries. The host keeps one
// reference on each to the end.
#include "VEXComponents.h"
#include "host/component/ComponentTypes.h"
#include "host/system/MessageTexts.h"
#include "host/system/Probe.h"
#include "host/system/Probes.h"

#include <cstdio>
#include <map>
#include <tuple>

namespace {

using vex::ComponentType;
using vex::ComponentTypes;
using vex::system::Quoted;

/// Makes the object of a row that stays with the host.
VEXBaseUnknown* Make(const ComponentType& type, void* argument)
{
    VEXBaseUnknown* const object = type.create(argument);
    if (object != nullptr && vex::probe::active) {
        vex::probe::NoteLetGo(object->GetImpl());
    }
    return object;
}

/// The process-wide object of a class; null when there is no such class or it cannot be made.
VEXBaseUnknown* ProcessWideObject(std::string_view className)
{
    static auto& objects = *new std::map<const ComponentType*, VEXBaseUnknown*>;
    const ComponentType* const type = ComponentTypes::Instance().Find(className);
    if (type == nullptr || type->create == nullptr) {
        return nullptr;
    }
    VEXBaseUnknown*& object = objects[type];
    if (object == nullptr) {
        object = Make(*type, nullptr);
    }
    return object;
}

VEXBaseUnknown* ExternalObject(std::string_view type, std::string_view name,
                               std::string_view library, void* argument)
{
    using Key = std::tuple<const ComponentType*, std::string>;
    static auto& objects = *new std::map<Key, VEXBaseUnknown*>;
    const auto refuse = [](const std::string& reason) {
        std::fprintf(stderr, "%s\n", reason.c_str());
        return nullptr;
    };
    if (std::string error; !ComponentTypes::Instance().Load(library, error)) {
        return refuse(error);
    }
    const ComponentType* const row = ComponentTypes::Instance().Find(type);
    if (row == nullptr || row->create == nullptr || row->library != library) {
        return refuse("component library " + Quoted(library) + ": it makes no object of type " +
                      Quoted(type));
    }
    VEXBaseUnknown*& object = objects[{row, std::string(name)}];
    if (object == nullptr) {
        object = Make(*row, argument);
    }
    return object != nullptr
               ? object
               : refuse("component library " + Quoted(library) + ": its object of type " +
                        Quoted(type) + " could not be made");
}

}  // namespace

HRESULT VEXInstantiateComponent(const char* className, const IID& iid, void** object)
{
    return vex::Probe<"VEXInstantiateComponent">(
        [&]() -> HRESULT {
            if (object == nullptr) {
                return E_POINTER;
            }
            *object = nullptr;
            if (className == nullptr) {
                return E_POINTER;
            }
            const VEXBaseUnknown* const component = ProcessWideObject(className);
            return component == nullptr ? E_FAIL : component->QueryInterface(iid, object);
        },
        vex::In(className), vex::In(iid), vex::OutAt(object));
}

VEXBaseUnknown* VEXCreateExternalObject(const char* type, const char* name, const char* library,
                                        void* argument)
{
    const auto textOf = [](const char* text) {
        return std::string_view(text == nullptr ? "" : text);
    };
    return vex::Probe<"VEXCreateExternalObject">(
        [&] { return ExternalObject(textOf(type), textOf(name), textOf(library), argument); },
        vex::In(type), vex::In(name), vex::In(library), vex::In(argument));
}
