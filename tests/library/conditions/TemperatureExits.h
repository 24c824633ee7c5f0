// SPDX-License-Identifier: Apache-2.0
// The exits that the creation of every kind of temperature has, and those of the ones that are put
// on the body.
#pragma once

#include "library/conditions/TemperatureKinds.h"

namespace hlxtest::statics {

namespace temperature_exits {

/// A creation that goes on to the end whatever is broken.
inline TemperatureExit Success(const TemperatureKind& kind, const char* name,
                               const std::string& faults, const std::string& alias = "Name")
{
    return {name, faults, S_OK, "", kind.Whole(alias), kind.amplitudes};
}

/// One that ends when the temperature has its values and before it is supported.
inline TemperatureExit Unsupported(const TemperatureKind& kind, const char* name,
                                   const std::string& faults, const std::string& out)
{
    return {name, faults, E_FAIL, out, kind.Ready(), kind.amplitudes};
}

}  // namespace temperature_exits

inline TemperatureExits CreationExits(const TemperatureKind& kind)
{
    using enum TemperatureHandle;
    const std::string factory = "VEXInstantiateComponent#1=";
    const std::string creation = "HLXITemperatureFact::CreateTemperature=";
    const TemperatureExit notCreated{"", "", E_FAIL, kind.notCreated, "", 0, Former};
    const auto failing = [&](const char* name, const std::string& faults,
                             TemperatureHandle handle = Former, const std::string& text = "") {
        TemperatureExit row = notCreated;
        row.name = name;
        row.faults = faults;
        row.handle = handle;
        row.text = text;
        return row;
    };
    // One that is no failure, and gives nothing: the boundary condition lacks what to give its
    // value to, the others what to support.
    const std::string out = kind.amplitudes == 0 ? kind.notSupported : "";
    const TemperatureHandle broken = kind.isHistory ? Former : Empty;
    return {
        failing("NoFactory", factory + "E_ACCESSDENIED"),
        failing("EmptyFactory", factory + "null"),
        failing("EmptyFactoryWithAPositiveResult", factory + "S_FALSE"),
        failing("FactoryAlongWithAFailure", factory + "E_UNEXPECTED,keep"),
        temperature_exits::Success(kind, "FactoryWithAPositiveResult", factory + "S_FALSE,keep"),
        failing("Denied", creation + "E_ACCESSDENIED", broken),
        failing("MadeAlongWithAFailure", creation + "E_UNEXPECTED,keep",
                kind.isHistory ? Former : New, kind.Text(": 0")),
        temperature_exits::Success(kind, "MadeWithAPositiveResult", creation + "S_FALSE,keep"),
        {"GivesNothing", creation + "null", E_FAIL, out, "", 0, Empty},
        {"GivesNothingWithAPositiveResult", creation + "S_FALSE", E_FAIL, out, "", 0, Empty},
    };
}

inline TemperatureExits NameExits(const TemperatureKind& kind)
{
    using temperature_exits::Success;
    const std::string cast = std::string("cast:") + kind.type + "->VEXIAlias=";
    return {
        Success(kind, "NoAlias", cast + "E_NOINTERFACE", ""),
        Success(kind, "EmptyAlias", cast + "null", ""),
        Success(kind, "NameDenied", "VEXIAlias::SetAlias=E_ACCESSDENIED", ""),
        Success(kind, "NamedAlongWithAFailure", "VEXIAlias::SetAlias=E_UNEXPECTED,keep"),
    };
}

/// Product and part: what is printed is told by the operations that find them.
inline TemperatureExits PartExits(const TemperatureKind& kind)
{
    using temperature_exits::Success;
    using temperature_exits::Unsupported;
    return {
        Unsupported(kind, "NoAccess", "cast:VEXAnalysisDocument->VEXISamAccess=E_NOINTERFACE",
                    "**********ERROR in getting the FEM\n"),
        Unsupported(kind, "NoLinks", "VEXISamDocumentManager::GetLinkedDocuments=empty",
                    "VEXAnalysis Document has no linked geometry!\n"),
        Unsupported(kind, "NoModels", "VEXISamAnalysisManager::GetAllAnalysisModels=empty",
                    "***ERROR No analysis models found.\n"),
        Unsupported(kind, "NoProduct", "cast:VEXProductNode->VEXIProduct#1=E_NOINTERFACE", ""),
        Unsupported(kind, "NoPart", "VEXIDescendants::GetAllChildren=empty",
                    "Could not get the VEXPart\n"),
        Unsupported(kind, "NoContainers",
                    "cast:VEXPartDocument->VEXIContainerOfDocument=E_ACCESSDENIED",
                    "Cannot find interface VEXIContainerOfDocument on VEXPart\n"),
        Unsupported(kind, "NoPartContainer", "cast:VEXPrtContainer->VEXIPrtContainer=E_NOINTERFACE",
                    "Cannot get interface VEXIPrtContainer!\n"),
        Unsupported(kind, "NoMechanicalPart", "VEXIPrtContainer::GetMechanicalPart=null",
                    "Cannot get MechanicalPart feature\n"),
        Success(kind, "NoModel", "cast:VEXSamAnalysisModel->VEXISamAnalysisModel=E_NOINTERFACE"),
        Success(kind, "AccessesAlongWithAFailure",
                "VEXIContainerOfDocument::GetBRepContainer=E_UNEXPECTED,keep"),
    };
}

inline TemperatureExits SupportExits(const TemperatureKind& kind)
{
    const std::string support = "VEXISamAnalysisSupport::AddSupport=";
    const std::string cast = std::string("cast:") + kind.type + "->VEXISamAnalysisSupport=";
    const auto failing = [&](const char* name, const std::string& faults) {
        return temperature_exits::Unsupported(kind, name, faults, kind.notSupported);
    };
    return {
        failing("NoPart", "cast:VEXPart->VEXISpecObject=E_NOINTERFACE"),
        failing("NoInterface", cast + "E_NOINTERFACE"),
        failing("EmptyInterface", cast + "null"),
        temperature_exits::Unsupported(
            kind, "NeitherMechanicalPartNorInterface",
            cast + "E_NOINTERFACE;VEXIPrtContainer::GetMechanicalPart=null",
            "Cannot get MechanicalPart feature\n"),
        failing("Denied", support + "E_ACCESSDENIED"),
        {"AddedAlongWithAFailure", support + "E_UNEXPECTED,keep", E_FAIL, kind.notSupported,
         kind.Whole(), kind.amplitudes},
        temperature_exits::Success(kind, "AddedWithAPositiveResult", support + "S_FALSE,keep"),
    };
}

/// Of a kind that is put on the body.
inline TemperatureExits BodyExits(const TemperatureKind& kind)
{
    using temperature_exits::Success;
    const auto silent = [&](const char* name, const std::string& faults) {
        return temperature_exits::Unsupported(kind, name, faults, "");
    };
    return {
        silent("NoRequest", "cast:VEXPart->VEXIPartRequest=E_NOINTERFACE"),
        silent("EmptyRequest", "cast:VEXPart->VEXIPartRequest=null"),
        silent("Denied", "VEXIPartRequest::GetMainBody=E_ACCESSDENIED"),
        silent("Empty", "VEXIPartRequest::GetMainBody=null"),
        silent("NoLink", "cast:VEXMechanicalTool->VEXILinkableObject=E_NOINTERFACE"),
        silent("EmptyLink", "cast:VEXMechanicalTool->VEXILinkableObject=null"),
        Success(kind, "GivenAlongWithAFailure", "VEXIPartRequest::GetMainBody=E_UNEXPECTED,keep"),
        Success(kind, "NoAccessesOfCells", "VEXIContainerOfDocument::GetBRepContainer=null"),
        Success(kind, "AccessesOfCellsDenied",
                "VEXIContainerOfDocument::GetBRepContainer=E_ACCESSDENIED"),
    };
}

}  // namespace hlxtest::statics
