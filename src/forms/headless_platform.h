// The surroundings of a program that nobody looks at: answers come from queues, what was shown is
// kept, and the clock moves when it is told to.
#pragma once

#include "core/platform.h"

#include <chrono>
#include <deque>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace tav {

// The program has asked something that no answer is queued for, or not a fitting one.
class NoAnswer : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

class HeadlessPlatform : public Platform {
  public:
    enum class DialogKind { Open, Save, Help, Printer };

    struct ShownMessage {
        Message Shown;
        MessageAnswer Answer = MessageAnswer::OK;
    };
    struct ShownDialog {
        DialogKind Kind = DialogKind::Open;
        CommonDialog Asked;  // as it was when it opened
    };

    // What the user will answer. A message box with only an OK button takes nothing from the queue,
    // and a printer set-up without an answer leaves the orientation as it is.
    std::deque<MessageAnswer> Answers;
    std::deque<std::optional<std::string>> Files;  // the path chosen, or cancelled
    std::deque<int> Orientations;

    // What has been shown so far.
    std::vector<ShownMessage> Messages;
    std::vector<ShownDialog> Dialogs;
    std::vector<std::string> Processes;

    ScreenSize ScreenInUse;
    std::string AppFolder;
    std::string StartFolder;
    std::chrono::local_time<std::chrono::milliseconds> Clock{};

    // Moves the clock on; each enabled timer of a loaded form ticks whenever its interval has
    // passed. Stops early when the program ends.
    void Advance(std::chrono::milliseconds time);

    MessageAnswer ShowMessage(const Message& message) override;
    bool ShowOpenDialog(CommonDialog& dialog) override;
    bool ShowSaveDialog(CommonDialog& dialog) override;
    void ShowHelp(const CommonDialog& dialog) override;
    int ShowPrinterSetup(int orientation) override;
    std::chrono::local_seconds Now() override;
    ScreenSize Screen() override { return ScreenInUse; }
    std::string ProgramFolder() override { return AppFolder; }
    std::string CurrentFolder() override { return StartFolder; }
    void StartProcess(const std::string& program) override { Processes.push_back(program); }
    // The program's state keeps the number; nobody has to be told.
    void ReportFatalError(int, const std::string&) override {}

  private:
    bool ChooseFile(DialogKind kind, CommonDialog& dialog);
};

}  // namespace tav
