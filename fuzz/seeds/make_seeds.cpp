// SPDX-License-Identifier: Apache-2.0
// Writes the documents and the settings file that the corpora of the fuzz targets begin with.
// usage: make_seeds FOLDER        makes FOLDER/document_bytes and FOLDER/settings_bytes
#include "FuzzProcess.h"
#include "SampleDocuments.h"
#include "SettingsRows.h"

#include <cstdio>
#include <filesystem>

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fputs("usage: make_seeds FOLDER\n", stderr);
        return 2;
    }
    const std::string folder = argv[1];
    for (const char* const target : {"/document_bytes", "/settings_bytes"}) {
        std::filesystem::create_directories(folder + target);
    }
    hlxfuzz::WriteFile(folder + "/document_bytes/analysis", hlxfuzz::SampleAnalysis());
    hlxfuzz::WriteFile(folder + "/document_bytes/product", hlxfuzz::SampleProduct());
    hlxfuzz::WriteFile(folder + "/document_bytes/part", hlxfuzz::SamplePart());
    const std::uint8_t rows[] = {0, 0, 3, 'H', 'L', 'X', 0, 2, '1', '0', 0, 1, 'k', 0, 0};
    hlxfuzz::SettingsRows(rows).Store(folder + "/settings_bytes/two_settings");
    return 0;
}
