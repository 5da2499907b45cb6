#include "cli/commands.h"
#include "cli/console.h"
#include "cli/headless_screen.h"
#include "cli/json_output.h"
#include "cli/load_message.h"
#include "cli/result_page.h"
#include "core/simulation_file.h"
#include "model/computations.h"

#include <memory>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

namespace tav {
namespace {

struct ComputeOptions {
    std::vector<std::string> Files;
    int Runs = 1;
    bool Json = false;
};

// Loads a file as the program does, messages and recovery included, and keeps what was shown.
std::optional<LoadError> Load(const std::string& file) {
    try {
        ReadSimulation(file, TheSimulation());
        return std::nullopt;
    } catch (const FileFault& fault) {
        RecoverFromLoadFailure(fault);
        return LoadError{fault, LoadFailureMessage(fault)};
    }
}

std::optional<RuntimeError> Compute(int runs) {
    try {
        for (int i = 0; i < runs; ++i)
            RunComputations();
        return std::nullopt;
    } catch (const RuntimeError& fault) {
        return fault;
    }
}

void Print(const Outcome& outcome, bool json, bool first) {
    const SimulationRecord& record = TheSimulation();
    if (json) {
        WriteOutput(JsonLine(outcome, record));
        return;
    }
    if (outcome.Error) return;
    WriteOutput(first ? "" : "\n\n");
    WriteOutput(outcome.Fault ? InputPage(outcome.File, record) : ResultPage(outcome.File, record));
}

void Explain(const Outcome& outcome) {
    if (outcome.Error) WriteMessage(LoadFaultText(outcome.File, outcome.Error->Fault));
    if (outcome.Fault) {
        WriteMessage(outcome.File + ": the computation was stopped by error " +
                     std::to_string(outcome.Fault->Number) + ", " + outcome.Fault->Description +
                     ". An input is out of its range, such as a weight of 0: check the animal and "
                     "its feeds.");
    }
}

ExitStatus RunCompute(const ComputeOptions& options) {
    ExitStatus status = kAllWell;
    bool first = true;
    for (const std::string& file : options.Files) {
        Outcome outcome;
        outcome.File = file;
        outcome.Error = Load(file);
        if (!outcome.Error) outcome.Fault = Compute(options.Runs);
        Print(outcome, options.Json, first);
        Explain(outcome);
        first = first && outcome.Error.has_value();
        if (outcome.Error || outcome.Fault) status = kSomeFailed;
    }
    return status;
}

}  // namespace

void AddComputeCommand(CLI::App& app, SetStatus finish) {
    auto* command = app.add_subcommand("compute", "Compute simulations and print their results");
    const auto options = std::make_shared<ComputeOptions>();
    command->add_option("FILE", options->Files, "Simulation files, computed in this order")
        ->required();
    command->add_option("--runs", options->Runs, "How often to run the model on each file")
        ->check(CLI::Range(1, 1'000'000))
        ->capture_default_str();
    command->add_flag("--json", options->Json,
                      "Print every field of each simulation, one JSON object a line");
    command->footer("Example: tav compute --json cow1.tav cow2.tav > results.jsonl");
    command->callback([options, finish] { finish(RunCompute(*options)); });
}

}  // namespace tav
