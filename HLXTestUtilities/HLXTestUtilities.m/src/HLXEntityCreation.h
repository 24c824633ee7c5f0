// SPDX-License-Identifier: Apache-2.0
// Steps that creating an entity in a step of the analysis consists of; each operation that creates
// one calls them in an order of its own. They print nothing but what is said.
#pragma once

#include "HLXILoadFact.h"
#include "HLXPartSupport.h"
#include "VEXComponents.h"

namespace HLXEntityCreation {

/// How an entity is connected to what it is put on; at points the platform is given none.
inline constexpr const char* smartConnector = "GeometrySmartConnector";

/// The values of flags.
inline constexpr unsigned char off = 0;
inline constexpr unsigned char on = 1;

/// What is said when there is no load factory.
inline constexpr const char* noLoadFactory = "********** Could not create HLXLoadFact";

/// Makes a factory.
/// @param factory  receives it with a reference added, null when there is none
/// @return the platform's result
template <class Factory>
HRESULT MakeFactory(const char* component, Factory*& factory)
{
    void* made = nullptr;
    const HRESULT rc = VEXInstantiateComponent(component, VEXInterfaceTraits<Factory>::Id, &made);
    factory = static_cast<Factory*>(made);
    return rc;
}

inline HRESULT MakeLoadFactory(HLXILoadFact*& factory)
{
    return MakeFactory("HLXLoadFact", factory);
}

/// Names a feature, if there is one and it can have a name.
void SetAlias(const VEXISpecObject_var& feature, const VEXUnicodeString& name);

/// The interface through which a new feature is put on geometry; empty when it has none.
VEXISamAnalysisSupport_var SupportOf(const VEXISpecObject_var& created);

/// Makes a tabular amplitude. @return S_OK; E_FAIL
HRESULT MakeAmplitude(VEXDocument* document, VEXISpecObject_var& amplitude);

/// Puts an entity on the main body of the part of a document.
/// @param message  printed when the body was found and refused as a support
/// @return S_OK; E_FAIL
HRESULT SupportOnBody(VEXDocument* document, const VEXISamAnalysisSupport_var& support,
                      const char* message);

/// Puts an entity on the first face of the part.
/// @param message  printed when the face was found and refused as a support
/// @return S_OK; E_FAIL
HRESULT SupportOnFace(HLXPartSupport::Part& part, const VEXISamAnalysisSupport_var& support,
                      const char* message);

/// Puts an entity on the first vertex of the part. Prints " Failed to add support 1" on standard
/// error when the vertex was found and refused as a support.
/// @return S_OK; E_FAIL
HRESULT SupportOnVertex(HLXPartSupport::Part& part, const VEXISamAnalysisSupport_var& support);

/// An access to a face as the target of links; empty, with "Could not get VEXILinkable for face!",
/// when it is none.
VEXILinkableObject_var LinkableFace(const VEXIBRepAccess_var& face);

/// Finds the part of a document, its cells and the first face, as LinkableFace. The cells are the
/// caller's to hold until the face is used: without their body the shape would be read again.
/// @return S_OK; E_FAIL
HRESULT FindLinkableFace(VEXDocument* document, HLXPartSupport::Part& part,
                         HLXPartSupport::Cells& cells, VEXILinkableObject_var& face);

}  // namespace HLXEntityCreation
