#include "cli/commands.h"
#include "cli/console.h"
#include "cli/load_message.h"
#include "core/display_text.h"
#include "core/simulation_file.h"
#include "model/computations.h"
#include "screens/summary_results.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

namespace tav {
namespace {

struct SummaryOptions {
    std::vector<std::string> Files;
    std::vector<std::string> Choices;
    bool English = false;
};

// What is said of a file that can't be read or computed, empty for a sound one. The record goes on
// from there as in a run of the program.
std::string LoadAndCompute(const std::string& file) {
    try {
        ReadSimulation(file, TheSimulation());
    } catch (const FileFault& fault) {
        RecoverFromLoadFailure(fault);
        return LoadFaultText(file, fault);
    }
    try {
        RunComputations();
    } catch (const RuntimeError& fault) {
        return file + ": the computation was stopped by error " + std::to_string(fault.Number) +
               ", " + fault.Description + ". An input is out of its range, such as a weight of 0.";
    }
    return {};
}

// The panel's lines without a ration: its two texts stand in the middle of the ten, alone among
// named choices.
std::vector<std::string> EmptyPanel(bool whole) {
    std::vector<std::string> lines(kNoRationTexts.begin(), kNoRationTexts.end());
    const std::size_t around = whole ? (kSummaryLines - lines.size()) / 2 : 0;
    lines.insert(lines.begin(), around, "");
    lines.insert(lines.end(), around, "");
    return lines;
}

std::vector<std::string> Captions(const SummaryOptions& options) {
    const SimulationRecord& r = TheSimulation();
    if (r.TotalDMI == 0 || r.NumFeeds == 0) return EmptyPanel(options.Choices.empty());
    std::vector<std::string> choices = options.Choices;
    if (choices.empty()) {
        const SummaryChoices defaults = DefaultSummaryChoices(r.AnimalType);
        choices.assign(defaults.begin(), defaults.end());
    }
    std::vector<std::string> lines;
    lines.reserve(choices.size());
    for (const std::string& choice : choices)
        lines.push_back(SummaryResultText(r, choice, !options.English));
    return lines;
}

ExitStatus RunSummary(const SummaryOptions& options) {
    ExitStatus status = kAllWell;
    for (const std::string& file : options.Files) {
        const std::string trouble = LoadAndCompute(file);
        if (!trouble.empty()) {
            WriteMessage(trouble);
            status = kSomeFailed;
            continue;
        }
        for (const std::string& line : Captions(options))
            WriteOutput(DisplayText(line) + "\n");
    }
    return status;
}

// What is wrong with a choice, empty for one of the list.
std::string Misnamed(const std::string& choice) {
    const std::vector<std::string_view> names = SummaryChoiceNames();
    if (std::find(names.begin(), names.end(), choice) != names.end()) return {};
    std::string text = "there is no line \"" + choice + "\". There are:";
    for (const std::string_view name : names)
        text.append("\n  ").append(name);
    return text;
}

}  // namespace

void AddSummaryCommand(CLI::App& app, SetStatus finish) {
    auto* command = app.add_subcommand(
        "summary", "Compute simulations and print the lines of their summary panels");
    const auto options = std::make_shared<SummaryOptions>();
    command->add_option("FILE", options->Files, "Simulation files, computed in this order")
        ->required();
    command->add_flag("--english", options->English, "Pounds instead of kilograms");
    command
        ->add_option("--select", options->Choices,
                     "A line by its name, such as \"MP Balance\"; may stand several times. The ten "
                     "lines of the animal type if none is named")
        ->allow_extra_args(false)
        ->check(Misnamed);
    command->footer("Example: tav summary --english --select \"MP Balance\" cow.tav");
    command->callback([options, finish] { finish(RunSummary(*options)); });
}

}  // namespace tav
