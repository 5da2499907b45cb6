#include "core/program_run.h"
#include "core/program_settings.h"
#include "core/simulation_file.h"
#include "flow_fixture.h"

namespace tav {
namespace {

class Exit : public Flow {
  protected:
    bool DefaultHasPendingEdit() const {
        return Contents(kDefaultSimulationFile).find(kPendingEdit) != std::string::npos;
    }
};

TEST_F(Exit, StoresTheInputsAndTheRationAndNoOtherScreen) {
    TheProgram().AutoSaveDefault = true;
    for (const std::string_view screen : kScreenKeys) {
        TheProgram().CurrentScreen = screen;
        TheSimulation().Comments = "";
        EXPECT_TRUE(SaveOnExit());
        EXPECT_EQ(DefaultHasPendingEdit(), screen == "Inputs" || screen == "Ration") << screen;
    }
}

TEST_F(Exit, WritesTheSettingsFirst) {
    TheProgram().AutoSaveDefault = true;
    MakeFull(kProgramSettingsFile);
    EXPECT_EQ(ErrorOf([] { SaveOnExit(); }), kDiskFull);
    EXPECT_FALSE(std::filesystem::exists(Path(kDefaultSimulationFile)));

    std::filesystem::remove(Path(kProgramSettingsFile));
    MakeFull(kDefaultSimulationFile);
    EXPECT_EQ(ErrorOf([] { SaveOnExit(); }), kDiskFull);
    EXPECT_TRUE(std::filesystem::exists(Path(kProgramSettingsFile)));
}

// Without the automatic save the question stands between the two files.
TEST_F(Exit, AsksAfterTheSettingsAreWritten) {
    Platform.Answers.push_back(MessageAnswer::No);
    MakeFull(kDefaultSimulationFile);
    EXPECT_TRUE(SaveOnExit());
    EXPECT_EQ(Platform.Messages.size(), 1U);
    Platform.Answers.push_back(MessageAnswer::Yes);
    EXPECT_EQ(ErrorOf([] { SaveOnExit(); }), kDiskFull);
}

TEST_F(Exit, ARefusalSavesNothing) {
    Platform.Answers.push_back(MessageAnswer::No);
    EXPECT_FALSE(ConfirmExit());
    EXPECT_TRUE(std::filesystem::is_empty(Folder));
}

}  // namespace
}  // namespace tav
