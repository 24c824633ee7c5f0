// SPDX-License-Identifier: Apache-2.0
// The sample assembly as an analysis document, made by `hlx new`, and its dump by HLXFileDump.
#pragma once

#include "support/ChildProgram.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace hlxtest {

inline const std::string kSampleStep = HLX_SOURCE_DIR "/samples/bracket_assembly.step";

/// Folder in/ with sample.VEXAnalysis and what it is linked to, and the empty folder out/.
class SampleAnalysis
{
public:
    explicit SampleAnalysis(int cases, const std::string& steps = "")
    {
        for (const std::string& folder : {Input(), Output()}) {
            std::filesystem::create_directory(folder);
        }
        const Ended made =
            RunProgram({Program("hlx"), "new", Input() + "/sample.VEXAnalysis", "--from",
                        kSampleStep, "--cases", std::to_string(cases), "--steps", steps});
        EXPECT_EQ(made.code, 0) << made.err;
        EXPECT_EQ(made.out, "");
    }

    const std::string& Path() const { return _folder.Path(); }
    std::string Input() const { return _folder.File("in"); }
    std::string Output() const { return _folder.File("out"); }

private:
    TemporaryFolder _folder;
};

using Files = std::map<std::string, std::string>;

/// The bytes of the files in a folder, by name.
inline Files FilesIn(const std::string& folder)
{
    Files files;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        files[entry.path().filename()] = ReadFile(entry.path());
    }
    return files;
}

inline std::vector<std::string> NamesOf(const Files& files)
{
    std::vector<std::string> names;
    for (const auto& [name, bytes] : files) {
        names.push_back(name);
    }
    return names;
}

/// What stands below the title of a feature-tree dump.
inline std::string TreeOf(const std::string& dump)
{
    return dump.substr(dump.find('\n'));
}

/// What HLXFileDump writes to standard output when all goes well.
inline std::string DumpMessages(const std::string& input, const std::string& output,
                                const std::string& between = "")
{
    return "\n In HLXBaseTestCase::PreProcess() \n"
           "**********HOLLEX file 1 name: " +
           output +
           "/job.inp\n"
           "**********Intermediate Input file name :" +
           output +
           "/sample.VEXAnalysis\n"
           "**********Input file name : " +
           input +
           "/sample.VEXAnalysis\n"
           "Open Document " +
           input + "/sample.VEXAnalysis OK\n" + between +
           "\n In HLXBaseTestCase::PostProcess() \n"
           "Program Ends\n";
}

/// Runs the file dump of sample.VEXAnalysis as job.inp.
inline Ended RunFileDump(const std::string& input, const std::string& output,
                         const Surroundings& surroundings = {},
                         const std::string& program = Program("HLXFileDump"))
{
    return RunProgram({program, input, "sample.VEXAnalysis", output, "job.inp"}, surroundings);
}

}  // namespace hlxtest
