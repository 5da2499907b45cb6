#include "cli/commands.h"
#include "cli/console.h"
#include "core/new_simulation.h"
#include "core/simulation_file.h"

#include <filesystem>
#include <memory>
#include <string>
#include <system_error>
#include <vector>

#include <CLI/CLI.hpp>

namespace tav {
namespace {

struct NewOptions {
    std::string File;
    std::string Animal;
};

bool HoldsSomething(const std::string& file) {
    std::error_code error;
    const bool exists = std::filesystem::exists(file, error);
    return exists && (!std::filesystem::is_regular_file(file, error) ||
                      std::filesystem::file_size(file, error) > 0);
}

ExitStatus RunNew(const NewOptions& options) {
    if (HoldsSomething(options.File)) {
        WriteMessage(options.File +
                     " exists and is left as it is. Choose another name, or remove it first.");
        return kSomeFailed;
    }
    SimulationRecord record;
    SetNewSimulationValues(record);
    SetAnimalTypeDefaults(record, options.Animal);
    record.AnimalType = options.Animal;
    try {
        WriteSimulation(options.File, record);
    } catch (const RuntimeError& error) {
        WriteMessage(options.File + " could not be written: error " + std::to_string(error.Number) +
                     ", " + error.Description + ".");
        return kSomeFailed;
    }
    return kAllWell;
}

}  // namespace

void AddNewCommand(CLI::App& app, SetStatus finish) {
    auto* command = app.add_subcommand("new", "Write a simulation of an animal type's defaults");
    const auto options = std::make_shared<NewOptions>();
    const std::vector<std::string> types(kAnimalTypes.begin(), kAnimalTypes.end());
    command->add_option("FILE", options->File, "The file to write; it must not exist yet")
        ->required();
    command->add_option("--animal", options->Animal, "The animal type")
        ->required()
        ->check(CLI::IsMember(types));
    command->footer("Example: tav new heifer.tav --animal \"Replacement Heifer\"");
    command->callback([options, finish] { finish(RunNew(*options)); });
}

}  // namespace tav
