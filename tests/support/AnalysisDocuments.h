// SPDX-License-Identifier: Apache-2.0
// Analysis documents for tests, made through the platform's own services.
#pragma once

#include "HLXIAnalysisCase.h"
#include "VEXDocumentServices.h"

#include <string>

namespace hlxtest {

/// A new analysis document of the session with `cases` analysis cases; removed when the object
/// dies, if it is still there.
class AnalysisDocument
{
public:
    explicit AnalysisDocument(int cases);
    ~AnalysisDocument();
    AnalysisDocument(const AnalysisDocument&) = delete;
    AnalysisDocument& operator=(const AnalysisDocument&) = delete;

    VEXDocument*& Get() { return _document; }
    /// Stores it under `path` and keeps it open.
    void SaveAs(const std::string& path);
    /// Leaves the document to somebody else: it is not removed at the end.
    VEXDocument* Release();

private:
    VEXDocument* _document = nullptr;
};

/// Adds a case to an open analysis document.
void AddCase(VEXDocument* document);

/// Adds a model, without cases, behind those of an open analysis document. The current one stays.
void AddModel(VEXDocument* document);

/// Stores an analysis document with `cases` cases under `path`; it is not open afterwards.
void StoreAnalysisDocument(const std::string& path, int cases);

}  // namespace hlxtest
