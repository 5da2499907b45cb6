// The headless program.
#include "cli/commands.h"
#include "cli/console.h"
#include "cli/headless_screen.h"
#include "core/runtime_error.h"

#include <cstdio>
#include <exception>
#include <string>

#include <CLI/CLI.hpp>

namespace {

tav::ExitStatus exit_status = tav::kAllWell;

// True when the first word is meant as a command and is none.
bool IsUnknownCommand(const CLI::App& app, int argc, char** argv) {
    if (argc < 2 || argv[1][0] == '-') return false;
    const std::string word = argv[1];
    return app.get_subcommands([&](const CLI::App* command) { return command->get_name() == word; })
        .empty();
}

int RunCommandLine(int argc, char** argv) {
    CLI::App app("TAV Dairy Cattle Program: nutrient requirements and rations of dairy cattle");
    app.name("tav");
    app.set_version_flag("--version", "tav 1.1.9");
    app.require_subcommand(1);
    app.footer(
        "Example: tav compute \"Simulation Files/Lactating Cow.tav\"\n"
        "Each command explains itself: tav COMMAND --help");
    const auto finish = [](tav::ExitStatus status) { exit_status = status; };
    tav::AddComputeCommand(app, finish);
    tav::AddNewCommand(app, finish);
    tav::AddCheckCommand(app, finish);
    tav::AddSummaryCommand(app, finish);
    tav::AddReportCommand(app, finish);
    tav::AddFeedsCommand(app, finish);
    tav::AddBatchCommand(app, finish);
    if (IsUnknownCommand(app, argc, argv)) {
        tav::WriteMessage(std::string("there is no command '") + argv[1] +
                          "'. tav --help lists the commands.");
        return tav::kWrongCommandLine;
    }
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? tav::kAllWell : tav::kWrongCommandLine;
    }
    return exit_status;
}

}  // namespace

int main(int argc, char** argv) {
    tav::HeadlessScreen screen;
    tav::SetPlatform(screen);
    try {
        const int status = RunCommandLine(argc, argv);
        tav::FlushOutput();
        return status;
    } catch (const tav::OutputClosed&) {
        return tav::kAllWell;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "tav: %s\n", error.what());
        return tav::kSomeFailed;
    }
}
