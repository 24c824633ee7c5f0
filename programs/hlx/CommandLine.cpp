// SPDX-License-Identifier: Apache-2.0
// With CLI11; the only source that sees it: each that does takes ten seconds to compile.
#include "CommandLine.h"

#include "Commands.h"
#include "host/system/MessageTexts.h"

#include <CLI/CLI.hpp>

#include <string>

namespace hlx {

namespace {

/// The same as CLI11 says, but nothing on the command line forges a line of it.
std::string WrongLine(const CLI::App*, const CLI::Error& error)
{
    return vex::system::Printable(error.what()) + "\nRun with --help for more information.\n";
}

void AddNew(CLI::App& program, NewOptions& options, int& exitCode)
{
    CLI::App* const command = program.add_subcommand(
        "new", "Make an analysis document linked to a part or an assembly read from a STEP file");
    command
        ->add_option("OUT", options.out,
                     "Analysis document to write (.VEXAnalysis); the documents of parts and "
                     "assemblies are written beside it")
        ->required();
    command->add_option("--from", options.from, "STEP file of a part or an assembly")->required();
    command->add_option("--cases", options.cases, "Number of analysis cases")
        ->capture_default_str()
        ->check(CLI::Range(0, 1000));
    command->add_option(
        "--steps", options.steps,
        "Steps of each case, codes separated by commas: GSS general static, SPS static linear "
        "perturbation, RS Riks, HTS heat transfer, EDS explicit dynamic");
    command->callback([&] { exitCode = MakeDocument(options); });
}

void AddTree(CLI::App& program, std::string& path, int& exitCode)
{
    CLI::App* const command =
        program.add_subcommand("tree", "Print the feature tree of a document");
    command->add_option("DOC", path, "Document (.VEXAnalysis, .VEXProduct or .VEXPart)")
        ->required();
    command->callback([&] { exitCode = PrintTree(path); });
}

void AddInfo(CLI::App& program, std::string& path, int& exitCode)
{
    CLI::App* const command =
        program.add_subcommand("info",
                               "Show what a document is and holds: links, models, cases and steps, "
                               "products, or a part's cells");
    command->add_option("DOC", path, "Document (.VEXAnalysis, .VEXProduct or .VEXPart)")
        ->required();
    command->callback([&] { exitCode = PrintInfo(path); });
}

void AddProbes(CLI::App& program, bool& casts, int& exitCode)
{
    CLI::App* const command = program.add_subcommand(
        "probes",
        "List every platform operation that can be traced and broken, with the ways to break it");
    command->add_flag("--casts", casts, "List the casts (cast:COMPONENT->INTERFACE) too");
    command->callback([&] { exitCode = PrintProbes(casts); });
}

}  // namespace

int RunCommandLine(int argc, char** argv)
{
    CLI::App program{"Makes and shows documents of the reference host."};
    program.name("hlx");
    // None is refused below: a wrong word is then named rather than a missing subcommand.
    program.require_subcommand(0, 1);
    program.failure_message(WrongLine);
    program.footer(
        "exit codes: 0 done, 1 failed (reason on standard error), 2 wrong command line\n"
        "environment: VEX_SETTINGS=FILE settings store (else one of its own beside the user's),\n"
        "             VEX_COMPONENT_PATH, VEX_CATALOG_PATH search paths,\n"
        "             VEX_TRACE, VEX_COUNTS, VEX_FAULTS see and break platform calls "
        "(docs/probes.md)");
    NewOptions options;
    std::string path;
    bool casts = false;
    int exitCode = Done;
    AddNew(program, options, exitCode);
    AddTree(program, path, exitCode);
    AddInfo(program, path, exitCode);
    AddProbes(program, casts, exitCode);
    try {
        program.parse(argc, argv);
        if (program.get_subcommands().empty()) throw CLI::RequiredError("A subcommand");
    } catch (const CLI::ParseError& error) {
        return program.exit(error) == 0 ? Done : WrongCommandLine;
    }
    return exitCode;
}

}  // namespace hlx
