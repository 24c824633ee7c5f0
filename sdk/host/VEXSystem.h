// SPDX-License-Identifier: Apache-2.0
// Paths, files and system information of the platform.
#pragma once

#include "VEXTypes.h"
#include "VEXUnicodeString.h"

/// Length of the buffers that VEXMakePath and VEXSplitPath fill, in bytes, the ending zero
/// included.
inline constexpr std::size_t VEXMaxPathSize = 4096;

/// Joins directory and name with one separator ('/'); a directory that ends in separators keeps
/// one, and the name's own at its start are dropped. With an empty directory the path is the name
/// as it is, with an empty name the directory.
/// @param path  buffer of VEXMaxPathSize bytes that receives the path
/// @return S_OK; E_INVALIDARG (and an empty path) when the joined path does not fit or `path` is
/// null
VEX_EXPORT HRESULT VEXMakePath(const char* directory, const char* name, char* path);

/// Splits a path at its last separator. Without one the directory is empty; of a path below the
/// root it is "/".
/// @param directory, name  buffers of VEXMaxPathSize bytes
/// @return S_OK; E_INVALIDARG (and empty results) when the path is longer than the buffers or a
/// pointer is null
VEX_EXPORT HRESULT VEXSplitPath(const char* path, char* directory, char* name);

/// Opens a file.
/// @param mode        as in the standard runtime: "r", "w", "a", each with an optional "+" and "b"
/// @param descriptor  receives the descriptor (never 0) that the other calls take; 0 on failure
/// @return S_OK; E_INVALIDARG for an unknown mode; E_FAIL when the system refuses the file
VEX_EXPORT HRESULT VEXFOpen(const char* path, const char* mode, unsigned int& descriptor);

/// Writes `length` bytes. @return S_OK; E_FAIL when not all could be written or the descriptor is
/// not open
VEX_EXPORT HRESULT VEXFWrite(unsigned int descriptor, const void* bytes, std::size_t length);

/// Closes the descriptor. @return S_OK; E_FAIL when what was written could not all be stored, or it
/// is not open
VEX_EXPORT HRESULT VEXFClose(unsigned int descriptor);

/// What the platform tells of the machine it runs on. Texts end with a zero and hold no '%'.
struct VEXSystemInfo
{
    char
        SystemName[256];  ///< identifying text: system and machine type, for example "Linux x86_64"
    char Release[256];    ///< release of the system
    char HostName[256];   ///< network name of the machine
    int ProcessorCount;   ///< processors that the process may use
};

/// Fills the record. The environment variable VEX_SYSTEM_NAME replaces SystemName (reproducible
/// logs); a '%' in it is written "_". A null record is ignored.
VEX_EXPORT void VEXGetSystemInfo(VEXSystemInfo* information);
