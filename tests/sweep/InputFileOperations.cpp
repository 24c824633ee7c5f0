// SPDX-License-Identifier: Apache-2.0
// Writing of solver input files and of the feature-tree file.
#include "sweep/Sweep.h"

#include "HLXAnalysisTestUtils.h"

namespace hlxtest::sweep {

namespace {

using Utils = HLXAnalysisTestUtils;

const Operation operations[] = {
    {"WriteInputFileByHandle", 3, &World::ListCases,
     [](World& w) -> long {
         return w.test.WriteInputFileForAnalysisCase(w.Case(2), (w.output + "/a.inp").c_str());
     }},
    {"WriteInputFileByIndex", 3, &World::ListCases,
     [](World& w) -> long {
         return w.test.WriteInputFileForAnalysisCase(3, (w.output + "/a.inp").c_str());
     }},
    {"WriteInputFileAtTheDefaultPath", 1, &World::ListCases,
     [](World& w) -> long { return w.test.WriteInputFileForAnalysisCase(1, nullptr); }},
    {"WriteInputFileWithoutCase", 1, &World::Open,
     [](World& w) { return Refused(w.test.WriteInputFileForAnalysisCase({}, nullptr)); }},
    {"WriteInputFileStaticallyByPointer", 1, &World::ListCases,
     [](World& w) -> long {
         return Utils::WriteInputFileForAnalysisCase(w.Case(1).Get(), w.Output("a.inp"));
     }},
    {"WriteInputFileStaticallyByHandle", 3, &World::ListCases,
     [](World& w) -> long {
         return Utils::WriteInputFileForAnalysisCase(w.Case(2), w.Output("a.inp"));
     }},
    {"WriteFeatTreeFile", 3, &World::Open,
     [](World& w) -> long {
         return Utils::WriteFeatTreeFileForAnalysisCase(w.test._Document, w.Output("tree.txt"));
     }},
};

INSTANTIATE_TEST_SUITE_P(InputFile, Sweep, testing::ValuesIn(operations), NameOfRow);

}  // namespace

}  // namespace hlxtest::sweep
