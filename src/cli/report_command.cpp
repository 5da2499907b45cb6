#include "cli/commands.h"
#include "cli/console.h"
#include "cli/load_message.h"
#include "core/program_state.h"
#include "core/simulation_file.h"
#include "model/computations.h"
#include "pdf/pdf_document.h"
#include "reports/generator.h"
#include "reports/page_layout.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

namespace tav {
namespace {

struct ReportOptions {
    std::string File;
    std::vector<std::string> Components;
    bool English = false;
    std::string Format = "text";
    std::string Output;
};

// Something that keeps the report from being made, with what the program's exit says of it.
struct Refusal {
    ExitStatus Status;
    std::string Text;
};

void Load(const std::string& file) {
    try {
        ReadSimulation(file, TheSimulation());
    } catch (const FileFault& fault) {
        throw Refusal{kSomeFailed, LoadFaultText(file, fault)};
    }
    TheProgram().SimulationFileName = std::filesystem::path(file).filename().string();
}

void Compute(const std::string& file) {
    try {
        RunComputations();
    } catch (const RuntimeError& fault) {
        throw Refusal{kSomeFailed, file + ": the computation was stopped by error " +
                                       std::to_string(fault.Number) + ", " + fault.Description +
                                       ". An input is out of its range, such as a weight of 0."};
    }
    if (TheSimulation().TotalDMI == 0) {
        throw Refusal{kSomeFailed,
                      file + ": Your animal must have a ration before reports can be generated."};
    }
}

std::string ListOf(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names)
        text += "\n  " + name;
    return text;
}

// Which components are named; all of them if none is.
std::vector<bool> Selection(const std::vector<std::string>& wanted) {
    const std::string& animal = TheSimulation().AnimalType;
    const std::vector<std::string> names = ReportComponentNames(animal);
    std::vector<bool> marked(names.size(), wanted.empty());
    for (const std::string& name : wanted) {
        const auto found = std::find(names.begin(), names.end(), name);
        if (found == names.end()) {
            std::string text = "there is no report \"";
            text.append(name).append("\" for a ").append(animal);
            text.append(". There are:").append(ListOf(names));
            throw Refusal{kWrongCommandLine, text};
        }
        marked[static_cast<std::size_t>(found - names.begin())] = true;
    }
    return marked;
}

std::shared_ptr<const ReportDocument> MakeReport(const ReportOptions& options) {
    Load(options.File);
    Compute(options.File);
    const std::vector<bool> marked = Selection(options.Components);
    TheProgram().UseMetric = !options.English;
    PageLayout layout;
    ReportState state;
    SetUpDocument(layout, state);
    AssembleReports(layout, state, marked);
    return layout.Document();
}

void WriteFile(const std::string& path, const std::string& bytes) {
    const FileHandle file(std::fopen(path.c_str(), "wb"));
    const bool written = file &&
                         std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size() &&
                         std::fflush(file.get()) == 0;
    if (!written) throw Refusal{kSomeFailed, path + ": the report could not be written"};
}

ExitStatus RunReport(const ReportOptions& options) {
    try {
        const auto document = MakeReport(options);
        const std::string bytes = options.Format == "pdf" ? PdfOf(*document) : TextForm(*document);
        if (options.Output.empty()) {
            WriteOutput(bytes);
        } else {
            WriteFile(options.Output, bytes);
        }
        return kAllWell;
    } catch (const Refusal& refusal) {
        WriteMessage(refusal.Text);
        return refusal.Status;
    } catch (const RuntimeError& fault) {
        WriteMessage(options.File + ": the report was stopped by error " +
                     std::to_string(fault.Number) + ", " + fault.Description +
                     ". A value is out of its range, such as a feed without dry matter.");
        return kSomeFailed;
    }
}

}  // namespace

void AddReportCommand(CLI::App& app, SetStatus finish) {
    auto* command = app.add_subcommand("report", "Print the reports of a simulation");
    const auto options = std::make_shared<ReportOptions>();
    command->add_option("FILE", options->File, "Simulation file")->required();
    command
        ->add_option("--component", options->Components,
                     "A report by its name, such as \"Summary Report\"; may stand several times. "
                     "All reports of the animal type if none is named")
        ->allow_extra_args(false);
    command->add_flag("--english", options->English, "Pounds and degrees Fahrenheit");
    command->add_option("--format", options->Format, "Plain text, or the pages as PDF")
        ->check(CLI::IsMember({"text", "pdf"}))
        ->capture_default_str();
    command->add_option("--output", options->Output, "File to write; standard output if not given");
    command->footer(
        "Example: tav report \"Simulation Files/Dry Cow.tav\" --format pdf --output report.pdf");
    command->callback([options, finish] { finish(RunReport(*options)); });
}

}  // namespace tav
