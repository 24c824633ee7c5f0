// SPDX-License-Identifier: Apache-2.0
// What can be broken on the way from a new load or boundary condition to its support.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <ostream>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace hlxtest::statics {

/// What is broken, and what is then printed on the way. In `faults`, "TYPE" is the late type of
/// what is created.
struct Way
{
    const char* name;
    const char* faults;
    const char* out = "";

    friend void PrintTo(const Way& way, std::ostream* stream) { *stream << way.faults; }
};

using Ways = std::vector<Way>;

/// Of a row of a kind and a way.
inline constexpr auto nameOfWay = [](const auto& row) {
    return std::string(std::get<0>(row.param).name) + std::get<1>(row.param).name;
};

inline const Ways waysToThePart{
    {"NoLinks", "VEXISamDocumentManager::GetLinkedDocuments=empty",
     "VEXAnalysis Document has no linked geometry!\n"},
    {"NoModels", "VEXISamAnalysisManager::GetAllAnalysisModels=empty",
     "***ERROR No analysis models found.\n"},
    {"NoProduct", "cast:VEXProductNode->VEXIProduct#1=E_NOINTERFACE"},
    {"NoPart", "VEXIDescendants::GetAllChildren=empty", "Could not get the VEXPart\n"},
    {"NoContainers", "cast:VEXPartDocument->VEXIContainerOfDocument=E_NOINTERFACE",
     "Cannot find interface VEXIContainerOfDocument on VEXPart\n"},
    {"NoPartContainer", "cast:VEXPrtContainer->VEXIPrtContainer=E_NOINTERFACE",
     "Cannot get interface VEXIPrtContainer!\n"},
    {"NoMechanicalPart", "VEXIPrtContainer::GetMechanicalPart=null",
     "Cannot get MechanicalPart feature\n"},
};

inline const Ways waysToCells{
    {"NoRequest", "cast:VEXPart->VEXIPartRequest#1=E_NOINTERFACE",
     "Cannot get VEXIPartRequest for MechanicalPart feature\n"},
    {"NoMainBody", "VEXIPartRequest::GetMainBody#1=null", "Cannot retrieve MainBody\n"},
    {"NoResults", "VEXIBodyRequest::GetResults=empty"},
    {"NoBody", "VEXIGeometricalElement::GetBody=null"},
    {"NoFaces", "VEXBody::GetAllCells#1=empty"},
    {"NoEdges", "VEXBody::GetAllCells#2=empty"},
    {"NoVertices", "VEXBody::GetAllCells#3=empty"},
    {"FailingFaces", "VEXBody::GetAllCells#1=E_ACCESSDENIED"},
    {"FailingVertices", "VEXBody::GetAllCells#3=E_ACCESSDENIED"},
    {"SecondIsNoFace", "cast:VEXFaceCell->VEXFace#2=E_NOINTERFACE", "Cannot get a VEXFace!\n"},
    {"LastIsNoVertex", "cast:VEXVertexCell->VEXVertex#8=E_NOINTERFACE",
     "Cannot get a VEXVertex!\n"},
};

inline const Ways waysToAddSupport{
    {"Fails", "VEXISamAnalysisSupport::AddSupport=E_FAIL"},
    {"IsDenied", "VEXISamAnalysisSupport::AddSupport=E_ACCESSDENIED"},
    {"HasNoInterface", "cast:TYPE->VEXISamAnalysisSupport=E_NOINTERFACE"},
    {"HasNoObject", "cast:TYPE->VEXISamAnalysisSupport=null"},
};

inline Ways With(Ways ways, std::initializer_list<Way> more)
{
    ways.insert(ways.end(), more);
    return ways;
}

/// Puts `by` in the place of `word`, if `text` has it.
inline void Replace(std::string& text, std::string_view word, const char* by)
{
    if (const auto place = text.find(word); place != text.npos) {
        text.replace(place, word.size(), by);
    }
}

}  // namespace hlxtest::statics
