// SPDX-License-Identifier: Apache-2.0
// Runs the measures of this folder, shows them beside their limits and exits with 1 when one is
// exceeded. Takes Google Benchmark's options, and --table=FILE for the table as Markdown.
#include "LimitReporter.h"

#include <cstdio>
#include <fstream>
#include <string_view>

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    constexpr std::string_view option = "--table=";
    std::string tableFile;
    if (argc == 2 && std::string_view(argv[1]).starts_with(option)) {
        tableFile = argv[1] + option.size();
        --argc;
    }
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    bench::LimitReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    if (!tableFile.empty()) {
        std::ofstream file(tableFile);
        file << reporter.Table();
        file.close();
        if (!file) {
            std::fprintf(stderr, "benchmarks: %s cannot be written\n", tableFile.c_str());
            return 2;
        }
    }
    return reporter.AllKept() ? 0 : 1;
}
