// A program folder of its own, a user whose answers are queued, and a main window with one screen.
#pragma once

#include "core/main_window.h"
#include "core/program_state.h"
#include "core/simulation_record.h"
#include "forms/headless_platform.h"
#include "support/temporary_folder.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

namespace tav {

// What is typed into the open screen and reaches the record only when the screen is stored.
inline constexpr std::string_view kPendingEdit = "typed and not yet stored";

class WindowWithPendingEdit : public MainWindow {
  public:
    void StoreScreen(std::string_view key) override {
        if (IsScreen(key)) TheSimulation().Comments = kPendingEdit;
    }
    void ClickButton(std::string_view) override {
        if (FaultOnReturn != 0) Raise(FaultOnReturn);
    }
    void SetTitle(const std::string& title) override { Title = title; }
    CommonDialog& Dialog() override { return dialog_; }

    int FaultOnReturn = 0;  // of the screen that is brought back
    std::string Title;

  private:
    CommonDialog dialog_;
};

class Flow : public testing::Test {
    TemporaryFolder files_;

  protected:
    Flow() {
        std::filesystem::create_directory(Folder);
        TheProgram() = {};
        TheSimulation() = {};
        SetPlatform(Platform);
        SetMainWindow(&Window);
        TheProgram().AppPath = Folder;
        TheProgram().StartDir = Folder;
    }
    ~Flow() override { SetMainWindow(nullptr); }

    std::string Path(std::string_view name) const { return JoinPath(Folder, name); }

    void Write(std::string_view name, std::string_view text) const {
        std::ofstream(Path(name), std::ios::binary) << text;
    }
    std::string Contents(std::string_view name) const {
        std::ifstream file(Path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    // A file of that name opens, but has room for nothing.
    void MakeFull(std::string_view name) const {
        std::filesystem::create_symlink("/dev/full", Path(name));
    }

    const std::string Folder = files_.Path("program");
    HeadlessPlatform Platform;
    WindowWithPendingEdit Window;
};

// The number of the run-time error that the action raises, 0 if none.
template <class Action>
int ErrorOf(Action&& action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        return error.Number;
    }
    return 0;
}

}  // namespace tav
