// SPDX-License-Identifier: Apache-2.0
// The catalogue file: the kinds of feature with their attributes and defaults, as TOML
// (HLXHacCatalog.VEXfct describes the format at its top). Reading is strict: what is not understood
// is refused, never passed over.
#pragma once

#include "host/feature/LateType.h"

namespace hlx {

inline constexpr const char* catalogFileName = "HLXHacCatalog.VEXfct";

/// Reads the types of a catalogue's text, bases before the types that extend them.
/// @param fileName  file that the text is from, for messages
/// @return false, with file, line, entry and remedy in `error`, for anything that is not as the
/// format says
VEX_EXPORT bool ReadCatalog(std::string_view text, std::string_view fileName,
                            std::vector<vex::LateTypeDefinition>& types, std::string& error);

/// The folders in which the catalogue is looked for, in order: those of VEX_CATALOG_PATH, then
/// share/hlx beside the host's folder.
VEX_EXPORT std::vector<std::string> CatalogFolders();

/// Reads the first catalogue that the folders hold and adds its types to the registry.
/// @return false, with the reason in `error` and nothing added, when there is none or it is refused
VEX_EXPORT bool LoadCatalog(const std::vector<std::string>& folders, std::string& error);

}  // namespace hlx
