// The commands of `tav`. Each adds itself to the command line with its options, its help and an
// example, and runs when it has been chosen.
#pragma once

namespace CLI {
class App;
}

namespace tav {

// The program's exit status.
enum ExitStatus : int { kAllWell = 0, kSomeFailed = 1, kWrongCommandLine = 2 };

// A command calls `finish(status)` through this when it has run.
using SetStatus = void (*)(ExitStatus);

void AddComputeCommand(CLI::App& app, SetStatus finish);
void AddNewCommand(CLI::App& app, SetStatus finish);
void AddCheckCommand(CLI::App& app, SetStatus finish);
void AddReportCommand(CLI::App& app, SetStatus finish);
void AddSummaryCommand(CLI::App& app, SetStatus finish);
void AddFeedsCommand(CLI::App& app, SetStatus finish);
void AddBatchCommand(CLI::App& app, SetStatus finish);

}  // namespace tav
