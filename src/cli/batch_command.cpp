#include "cli/batch_files.h"
#include "cli/commands.h"
#include "cli/console.h"
#include "cli/load_message.h"
#include "cli/progress.h"
#include "core/program_state.h"
#include "shell/batch_run.h"

#include <atomic>
#include <csignal>
#include <memory>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

namespace tav {
namespace {

struct BatchOptions {
    std::string Output;
    std::string List;
    std::vector<std::string> Files;
    bool English = false;
};

// The signal that asked for an end, 0 until then. A second one ends the program at once.
std::atomic<int> interrupted = 0;
static_assert(std::atomic<int>::is_always_lock_free);

extern "C" void Interrupt(int signal) {
    interrupted = signal;
    std::signal(signal, SIG_DFL);
}

void TakeInterrupts() {
    for (const int signal : {SIGINT, SIGTERM}) {
        // One that is ignored, as in a program started behind, stays so.
        if (std::signal(signal, Interrupt) == SIG_IGN) std::signal(signal, SIG_IGN);
    }
}

// Ends the program by the signal that has interrupted it, so that a shell stops its script as well.
void PassOnInterrupt() {
    if (interrupted == 0) return;
    FlushOutput();
    std::raise(interrupted);
}

class ConsoleWatcher : public BatchWatcher {
  public:
    explicit ConsoleWatcher(std::int64_t total) : total_(total) {}

    void LoadFailed(const std::string& file, const FileFault& fault) override {
        Say(LoadFaultText(file, fault) + "; its row is that of a new simulation");
        Status = kSomeFailed;
    }

    bool GoesOn(const BatchState& state) override {
        progress_.Show(state.Files, total_);
        return interrupted == 0;
    }

    // Writes a message where the line of progress stood.
    void Say(const std::string& text) {
        progress_.Clear();
        WriteMessage(text);
    }

    // What a person at the terminal wants to know at the end; files without a row were left out
    // because their feeds have other names.
    void Finish(const BatchState& state) {
        if (!progress_.IsShown()) return;
        Say(ProgressText(state.Files, 0, progress_.Taken()) + ", " + std::to_string(state.Rows) +
            " rows" + (state.Rows < state.Files ? "; the other files have other feeds" : ""));
    }

    ExitStatus Status = kAllWell;

  private:
    std::int64_t total_;
    Progress progress_;
};

std::string RowsText(const BatchState& state) {
    return ". Rows written: " + std::to_string(state.Rows);
}

std::string ListText(const RuntimeError& error, const std::string& list) {
    return list + ": the list can't be read: error " + std::to_string(error.Number) + ", " +
           error.Description;
}

// What has stopped a batch: an input of the file at hand, or the output.
std::string StopText(const RuntimeError& error, const BatchState& state,
                     const std::string& output) {
    const std::string number = "error " + std::to_string(error.Number) + ", " + error.Description;
    const std::string rows = RowsText(state);
    switch (error.Number) {
        case kSubscriptOutOfRange:
            return state.File + ": the batch was stopped by " + number +
                   ". The file has more feeds than the first one, or a condition score off the "
                   "scale" +
                   rows;
        case kInvalidProcedureCall:
        case kOverflow:
        case kDivisionByZero:
            return state.File + ": the batch was stopped by " + number +
                   ". An input is out of its range, such as a weight of 0: check the animal and "
                   "its feeds" +
                   rows;
        default: return output + ": the batch was stopped by " + number + rows;
    }
}

ExitStatus Run(const BatchOptions& options, BatchFiles& files, std::int64_t total) {
    TheProgram().UseMetric = !options.English;
    ConsoleWatcher watcher(total);
    TakeInterrupts();
    BatchRun batch([&files] { return files.Next(); }, watcher);
    try {
        batch.Run(options.Output);
        watcher.Finish(batch.State());
    } catch (const ListFault& error) {
        watcher.Say(ListText(error, options.List) + RowsText(batch.State()));
        watcher.Status = kSomeFailed;
    } catch (const RuntimeError& error) {
        watcher.Say(StopText(error, batch.State(), options.Output));
        watcher.Status = kSomeFailed;
    }
    PassOnInterrupt();
    return watcher.Status;
}

ExitStatus RunBatch(const BatchOptions& options) {
    try {
        const BatchSurvey survey = SurveyBatch(options.Files, options.List, options.Output);
        if (survey.HoldsOutput) {
            WriteMessage(options.Output + ": the output would overwrite one of the batch's files");
            return kWrongCommandLine;
        }
        if (survey.IsEmpty) {
            WriteMessage(options.List + ": the list names no file");
            return kWrongCommandLine;
        }
        BatchFiles files(options.Files, options.List);
        return Run(options, files, survey.Count);
    } catch (const RuntimeError& error) {
        WriteMessage(ListText(error, options.List));
        return kWrongCommandLine;
    }
}

}  // namespace

void AddBatchCommand(CLI::App& app, SetStatus finish) {
    auto* command = app.add_subcommand(
        "batch", "Write a row of inputs and results for each simulation into one CSV file");
    const auto options = std::make_shared<BatchOptions>();
    command->add_option("--output", options->Output, "The CSV file; what it holds is replaced")
        ->required();
    command->add_flag("--english", options->English, "Pounds instead of kilograms");
    auto* files = command->add_option(
        "FILE", options->Files,
        "Simulation files, in the order of the rows. The first one's feeds are the columns");
    auto* list = command->add_option("--list", options->List, "A text file with a path a line");
    files->excludes(list);
    command->footer("Example: tav batch --output herd.csv --list herd.txt");
    command->callback([options, finish] {
        if (options->Files.empty() && options->List.empty()) {
            throw CLI::ValidationError("a FILE or --list is required");
        }
        finish(RunBatch(*options));
    });
}

}  // namespace tav
