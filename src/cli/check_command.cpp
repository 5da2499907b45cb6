#include "cli/commands.h"
#include "cli/console.h"
#include "cli/load_message.h"
#include "core/simulation_file.h"

#include <memory>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

namespace tav {
namespace {

// Reads into a record of its own: a check computes nothing and leaves nothing behind.
ExitStatus RunCheck(const std::vector<std::string>& files) {
    ExitStatus status = kAllWell;
    for (const std::string& file : files) {
        try {
            SimulationRecord record;
            ReadSimulation(file, record);
            WriteOutput(file + ": sound\n");
        } catch (const FileFault& fault) {
            WriteOutput(LoadFaultText(file, fault) + "\n");
            status = kSomeFailed;
        }
    }
    return status;
}

}  // namespace

void AddCheckCommand(CLI::App& app, SetStatus finish) {
    auto* command =
        app.add_subcommand("check", "Say whether simulation files are sound, and where not");
    const auto files = std::make_shared<std::vector<std::string>>();
    command->add_option("FILE", *files, "Simulation files")->required();
    command->footer("Example: tav check \"Simulation Files\"/*.tav");
    command->callback([files, finish] { finish(RunCheck(*files)); });
}

}  // namespace tav
