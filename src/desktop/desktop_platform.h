// What the program asks of its surroundings, on a display.
#pragma once

#include "core/platform.h"

#include <QString>
#include <string>
#include <utility>
#include <vector>

class QWidget;

namespace tav {

class DesktopPlatform : public Platform {
  public:
    MessageAnswer ShowMessage(const Message& message) override;
    bool ShowOpenDialog(CommonDialog& dialog) override;
    bool ShowSaveDialog(CommonDialog& dialog) override;
    void ShowHelp(const CommonDialog& dialog) override;
    int ShowPrinterSetup(int orientation) override;
    void ShowHourglass(bool on) override;
    std::chrono::local_seconds Now() override;
    ScreenSize Screen() override;
    std::string ProgramFolder() override;
    std::string CurrentFolder() override;
    void StartProcess(const std::string& program) override;
    void ReportFatalError(int number, const std::string& description) override;

    // The folder that is taken for the program's own from now on, instead of the one in which it
    // stands.
    void SetProgramFolder(std::string folder) { programFolder_ = std::move(folder); }

    // The same for a fault that has no number.
    void ReportFatalFault(const std::string& description);

    // Keeps messages that only inform instead of showing them, while many cells are pasted.
    // Switched off, it hands over what has come together.
    std::vector<Message> CollectMessages(bool on);

  private:
    std::string programFolder_;
    bool collecting_ = false;
    std::vector<Message> collected_;
};

}  // namespace tav
