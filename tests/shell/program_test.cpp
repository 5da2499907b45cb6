// What no script can reach: the report of a fatal error, a second run, what the system offers.
#include "shell/program.h"

#include "core/program_settings.h"
#include "core/program_state.h"
#include "core/simulation_file.h"
#include "core/simulation_record.h"
#include "forms/context_help.h"
#include "forms/form_registry.h"
#include "forms/headless_platform.h"
#include "screens/inputs_form.h"
#include "shell/about_form.h"
#include "shell/parent_form.h"
#include "shell/splash_form.h"
#include "support/temporary_folder.h"

#include <filesystem>
#include <map>

#include <gtest/gtest.h>

namespace tav {
namespace {

class WatchedPlatform : public HeadlessPlatform {
  public:
    void ReportFatalError(int number, const std::string& description) override {
        Report += std::to_string(number) + " " + description;
    }
    std::optional<std::string> RegistryText(std::string_view key, std::string_view value) override {
        const auto found = Registry.find(std::string(key) + ":" + std::string(value));
        return found == Registry.end() ? std::nullopt : std::optional(found->second);
    }

    std::string Report;
    std::map<std::string, std::string> Registry;
};

class Program : public testing::Test {
    TemporaryFolder files_;

  protected:
    Program() {
        std::filesystem::create_directory(Folder);
        Platform.AppFolder = Folder;
        Platform.StartFolder = Folder;
        Start();
    }
    ~Program() override { TheForms().Clear(); }

    void Start() {
        StartProgram(Platform);
        TheForms().Run([] { TheForms().Get<SplashForm>("frmSplash").cmdAcceptTerms.UserClick(); });
    }
    ParentForm& Parent() { return TheForms().Get<ParentForm>("frmParent"); }

    const std::string Folder = files_.Path("program");
    WatchedPlatform Platform;
};

TEST_F(Program, AFullDiskEndsItWithNumberAndDescription) {
    std::filesystem::create_symlink("/dev/full", JoinPath(Folder, kDefaultSimulationFile));
    TheForms().Run([&] { Parent().mnuSaveSimulation.UserClick(); });
    EXPECT_EQ(Platform.Report, "61 Disk full");
    EXPECT_EQ(TheProgram().FatalError, 61);
    EXPECT_TRUE(TheProgram().Ended);
    EXPECT_TRUE(TheForms().Loaded().empty());
    // It ended on the spot: no question, and no settings.
    EXPECT_EQ(Platform.Messages.size(), 2U);
    EXPECT_FALSE(std::filesystem::exists(JoinPath(Folder, kProgramSettingsFile)));
}

TEST_F(Program, ASettingsFileWithoutRoomEndsItAtTheExit) {
    std::filesystem::create_symlink("/dev/full", JoinPath(Folder, kProgramSettingsFile));
    Platform.Answers.push_back(MessageAnswer::Yes);
    TheForms().Run([&] { Parent().UserClose(); });
    EXPECT_EQ(Platform.Report, "61 Disk full");
    EXPECT_FALSE(std::filesystem::exists(JoinPath(Folder, kDefaultSimulationFile)));
}

TEST_F(Program, ASecondRunStartsFromNothing) {
    TheSimulation().Comments = "left behind";
    TheSimulation().MEPreg = 3;
    TheProgram().CurrentInputsTab = 2;
    TheProgram().DefaultZoom = "Thumbnail";
    Start();
    EXPECT_EQ(TheSimulation().Comments, "");
    EXPECT_EQ(TheSimulation().MEPreg, 0);
    EXPECT_EQ(TheProgram().DefaultZoom, "75%");  // what the settings tab puts for none
    EXPECT_EQ(TheForms().Get<InputsForm>("frmInputs").InputTabs.Tab(), 0);
}

TEST_F(Program, HelpOnAControlIsAskedForByItsMenuAndForgottenWithIt) {
    auto& inputs = TheForms().Get<InputsForm>("frmInputs");
    OpenContextMenu(inputs.InputTabs);
    EXPECT_EQ(TheProgram().Popup, "mnuContextMenu");
    EXPECT_EQ(ContextControl(), &inputs.InputTabs);
    TheForms().Run([&] { Parent().mnuContextWT.UserClick(); });
    const CommonDialog& help = Platform.Dialogs.back().Asked;
    EXPECT_EQ(help.HelpFile, JoinPath(Folder, "TAV DAIRY CATTLE PROGRAM HELP.HLP"));
    EXPECT_EQ(help.HelpTopic, "InputTabs");
    EXPECT_EQ(ContextControl(), nullptr);
}

TEST_F(Program, TheSystemInformationProgramIsFoundByEitherEntry) {
    StartSysInfo();
    EXPECT_EQ(Platform.Messages.back().Shown.Text,
              "System Information Is Unavailable At This Time");
    Platform.Registry["SOFTWARE\\Microsoft\\Shared Tools Location:MSINFO"] = Folder;
    StartSysInfo();
    EXPECT_TRUE(Platform.Processes.empty());  // no such file there
    Platform.Registry["SOFTWARE\\Microsoft\\Shared Tools\\MSINFO:PATH"] = "info.exe";
    StartSysInfo();
    EXPECT_EQ(Platform.Processes, std::vector<std::string>{"info.exe"});
}

}  // namespace
}  // namespace tav
