#include "core/program_run.h"

#include "core/main_window.h"
#include "core/program_settings.h"
#include "core/program_state.h"
#include "core/simulation_commands.h"
#include "core/simulation_file.h"

namespace tav {
namespace {

constexpr int kLeastScreenWidth = 800;  // pixels; the height is not looked at

bool Confirmed(Message question) {
    question.Buttons = MessageButtons::YesNo;
    return ThePlatform().ShowMessage(question) == MessageAnswer::Yes;
}

bool ScreenIsTooNarrow() {
    const ScreenSize screen = ThePlatform().Screen();
    return screen.Width / screen.UnitsPerPixelX < kLeastScreenWidth;
}

bool GoesOnWithLowResolution() {
    return Confirmed(
        {"The TAV Dairy Cattle Program is designed for a minimum screen  resolution of 800x600."
         "\r\n\r\n"
         "It is recommended that you close the program, increase your screen resolution, and run "
         "the program again."
         "\r\n\r\n"
         "Do you wish to continue running the program?"
         "\r\n\r\n"
         "(Yes = Continue, No = Exit Program)",
         "Screen Resolution Too Low", MessageIcon::Question});
}

bool AsksToQuit() {
    std::string text = "Are you sure you want to quit?";
    if (TheProgram().AutoSaveDefault) {
        text += "\r\n\r\nNote:  Program will save current simulation as the Default, not by name.";
    }
    return Confirmed({text, "Exit Program?", MessageIcon::Critical});
}

bool AsksToSaveDefaults() {
    return Confirmed(
        {"'Auto-Save Default Data' is not enabled.  Would you like to update your default data "
         "before exiting the program?",
         "Save Defaults Before Exiting?", MessageIcon::Question});
}

// The screens closed before the question was asked.
void BringScreenBack() {
    MainWindow& window = TheMainWindow();
    const std::string screen =
        IsScreen(TheProgram().CurrentScreen) ? TheProgram().CurrentScreen : "Inputs";
    window.ShowScreen(screen);
    if (screen == "Inputs" || screen == "Reports") window.SetUpScreen(screen);
}

}  // namespace

void Main() {
    ProgramState& program = TheProgram();
    program.StartingUp = true;
    if (ScreenIsTooNarrow() && !GoesOnWithLowResolution()) {
        program.Ended = true;
        return;
    }
    program.AppPath = ThePlatform().ProgramFolder();
    program.CurrentPath = program.AppPath;
    program.StartDir = ThePlatform().CurrentFolder();
    program.SimulationFileName = kDefaultSimulationFile;
    program.HelpFile = JoinPath(program.CurrentPath, "TAV DAIRY CATTLE PROGRAM HELP.HLP");
    TheMainWindow().ShowTerms();
}

void InitializeProgram() {
    LoadProgramSettings();
    LoadSimulationData(JoinPath(TheProgram().AppPath, kDefaultSimulationFile));
    const std::string screen = TheProgram().CurrentScreen;
    // Pressing the button creates the main window. Without one of the four keys it isn't created.
    if (IsScreen(screen)) TheMainWindow().PressButton(screen);
}

bool ConfirmExit() {
    if (AsksToQuit()) return SaveOnExit();
    BringScreenBack();
    return false;
}

bool SaveOnExit() {
    const std::string& screen = TheProgram().CurrentScreen;
    if (screen == "Inputs" || screen == "Ration") TheMainWindow().StoreScreen(screen);
    SaveProgramSettings();
    if (TheProgram().AutoSaveDefault || AsksToSaveDefaults()) SaveDefaultSimulation();
    return true;
}

}  // namespace tav
