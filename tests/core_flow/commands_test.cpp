#include "core/new_simulation.h"
#include "core/simulation_commands.h"
#include "core/simulation_file.h"
#include "flow_fixture.h"

namespace tav {
namespace {

class Commands : public Flow {
  protected:
    Commands() {
        TheProgram().SimulationFileName = kDefaultSimulationFile;
        TheProgram().CurrentScreen = "Inputs";
    }
    bool HasPendingEdit(std::string_view name) const {
        return Contents(name).find(kPendingEdit) != std::string::npos;
    }
    std::string LastText() const {
        return Platform.Messages.empty() ? "" : Platform.Messages.back().Shown.Text;
    }
};

TEST_F(Commands, WhatStandsOnTheScreenIsSaved) {
    SaveSimulationCommand();
    EXPECT_TRUE(HasPendingEdit(kDefaultSimulationFile));

    TheSimulation().Comments = "";
    Platform.Files.push_back(Path("Bessie.tav"));
    SaveSimulationAsCommand();
    EXPECT_TRUE(HasPendingEdit("Bessie.tav"));

    TheSimulation().Comments = "";
    Platform.Answers.push_back(MessageAnswer::Yes);
    Platform.Files.push_back(Path("Old.rls"));
    NewSimulationCommand();
    EXPECT_TRUE(HasPendingEdit("Old.rls"));

    TheProgram().SimulationFileName = kDefaultSimulationFile;
    TheProgram().StartDir = Path("");
    Platform.Answers.push_back(MessageAnswer::Yes);
    std::filesystem::remove(Path(kDefaultSimulationFile));
    NewSimulationCommand();
    EXPECT_TRUE(HasPendingEdit(kDefaultSimulationFile));
}

TEST_F(Commands, SavingTheDefaultByHandTakesTheRecordAsItIs) {
    SaveDefaultSimulation();
    EXPECT_FALSE(HasPendingEdit(kDefaultSimulationFile));
}

// Cancelling the dialog does not take back what the screen had stored before it opened.
TEST_F(Commands, ACancelledDialogWritesNothing) {
    Platform.Files.push_back(std::nullopt);
    SaveSimulationAsCommand();
    EXPECT_EQ(TheSimulation().Comments, kPendingEdit);
    EXPECT_TRUE(std::filesystem::is_empty(Folder));
    EXPECT_TRUE(Platform.Messages.empty());
}

TEST_F(Commands, AFullDiskIsToldWhereThereIsADialogAndRaisedWhereThereIsNone) {
    MakeFull("full.tav");
    Platform.Files.push_back(Path("full.tav"));
    SaveSimulationAsCommand();
    EXPECT_EQ(LastText(),
              "Error Number :  61\rError Description :  Disk full\r\rCannot Save Data File.");
    EXPECT_EQ(TheProgram().SimulationFileName, kDefaultSimulationFile);

    MakeFull(kDefaultSimulationFile);
    EXPECT_EQ(ErrorOf([] { SaveSimulationCommand(); }), kDiskFull);
    EXPECT_EQ(ErrorOf([] { SaveDefaultSimulation(); }), kDiskFull);
}

// With a failure in the model's run when the screen comes back, the record is loaded all the same.
TEST_F(Commands, AFaultOfTheReturningScreenIsToldByTheLoad) {
    SetNewSimulationValues(TheSimulation());
    TheSimulation().Age = 33;
    SaveSimulationData(Path("Heifer.tav"));
    TheSimulation().Age = 65;
    Window.FaultOnReturn = kDivisionByZero;
    Platform.Files.push_back(Path("Heifer.tav"));
    LoadSimulationCommand();
    EXPECT_EQ(Platform.Messages.back().Shown.Title, "Error Loading Input File");
    EXPECT_EQ(LastText(), "Error Number :  11\rError Description :  Division by zero\r");
    EXPECT_EQ(TheSimulation().Age, 33);
    EXPECT_EQ(TheProgram().SimulationFileName, "Heifer");
    EXPECT_EQ(Window.Title, "");
}

TEST_F(Commands, ThePeriodicSaveWaitsForMoreThan518Seconds) {
    StartPeriodicSave();
    const DateTime start = TheProgram().LastAutoSaveTime;
    Platform.Clock += std::chrono::seconds(518);
    AutoSaveTick();
    EXPECT_TRUE(std::filesystem::is_empty(Folder));
    EXPECT_EQ(TheProgram().LastAutoSaveTime, start);
    Platform.Clock += std::chrono::seconds(1);
    AutoSaveTick();
    EXPECT_TRUE(HasPendingEdit(kDefaultSimulationFile));
    EXPECT_EQ(TheProgram().LastAutoSaveTime, start + std::chrono::seconds(519));
}

// The clock may be set back while the program runs.
TEST_F(Commands, AClockSetBackSavesNothing) {
    StartPeriodicSave();
    Platform.Clock -= std::chrono::hours(2);
    AutoSaveTick();
    EXPECT_TRUE(std::filesystem::is_empty(Folder));
}

}  // namespace
}  // namespace tav
