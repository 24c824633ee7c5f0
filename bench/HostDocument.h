// SPDX-License-Identifier: Apache-2.0
// Documents of the reference host with many features, through the services that programs call.
#pragma once

#include "PlainFeature.h"
#include "VEXDocumentServices.h"
#include "VEXFeatures.h"

#include <string>
#include <vector>

namespace bench {

/// On the disk: below TMPDIR, else /tmp. In memory: below /dev/shm, where synchronising costs
/// nothing.
enum class Place { Disk, Memory };

/// A folder of its own for the files of a measure; deleted with all that is in it.
class Folder
{
public:
    explicit Folder(Place place = Place::Disk);
    ~Folder();
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    std::string File(const char* name) const { return _path + "/" + name; }

private:
    std::string _path;
};

/// A new analysis document with these features below its model; not stored yet.
VEXDocument& MakeDocument(const std::vector<PlainFeature>& features);

VEXDocument& OpenDocument(const std::string& path);
void SaveDocument(VEXDocument& document);
void SaveDocumentAs(VEXDocument& document, const std::string& path);
void RemoveDocument(VEXDocument& document);

/// Changes a name back and forth, so that the document differs from its file.
void Touch(VEXDocument& document);

/// The features below its model must be these.
void RequireSame(VEXDocument& document, const std::vector<PlainFeature>& features);

/// What a tree dump starts from.
VEXINavigateObject_var ModelOf(VEXDocument& document);

}  // namespace bench
