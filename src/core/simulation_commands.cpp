#include "core/simulation_commands.h"

#include "core/main_window.h"
#include "core/new_simulation.h"
#include "core/number_text.h"
#include "core/program_state.h"
#include "core/simulation_file.h"
#include "core/version.h"

namespace tav {
namespace {

constexpr std::string_view kExtension = ".tav";
constexpr std::string_view kNewExtension = ".rls";  // a new simulation saves the old one under it
constexpr std::string_view kFileFilter =
    "All Files (*.*)|*.*|TAV Dairy Cattle Program Data Files (*.tav)|*.tav";
constexpr int kSimulationFiles = 2;  // the filter's second pair

bool IsDefaultSimulation() { return TheProgram().SimulationFileName == kDefaultSimulationFile; }

std::string DefaultSimulationPath() {
    return JoinPath(TheProgram().AppPath, kDefaultSimulationFile);
}

// The text without that many of its last characters. Raises 5 when it has fewer.
std::string WithoutLast(const std::string& text, std::size_t count) {
    if (text.size() < count) Raise(kInvalidProcedureCall);
    return text.substr(0, text.size() - count);
}

std::string WithExtension(const std::string& path, std::string_view extension) {
    return path.ends_with(extension) ? path : path + std::string(extension);
}

void ChooseFileToLoad(CommonDialog& dialog) {
    dialog.Flags = CommonDialog::kFileMustExist;
    dialog.InitDir = JoinPath(TheProgram().AppPath, "Simulation Files");
    dialog.Filter = kFileFilter;
    dialog.FilterIndex = kSimulationFiles;
    if (!ThePlatform().ShowOpenDialog(dialog)) Raise(kDialogCancelled);
}

void ChoosePlaceToSave(CommonDialog& dialog) {
    dialog.Flags =
        CommonDialog::kFileMustExist | CommonDialog::kNoChangeDir | CommonDialog::kOverwritePrompt;
    dialog.InitDir = TheProgram().StartDir;
    dialog.FileName = TheProgram().SimulationFileName;
    dialog.Filter = kFileFilter;
    dialog.FilterIndex = kSimulationFiles;
    if (!ThePlatform().ShowSaveDialog(dialog)) Raise(kDialogCancelled);
}

// What stands on the open screen goes into the record before a command writes it to a file.
void StorePendingEdits() { TheMainWindow().StoreScreen(TheProgram().CurrentScreen); }

// Saves by the dialog and takes over the folder. What StartDir keeps is the path less the length of
// the dialog's title, with the closing separator; where an extension was appended a part of the
// name stays in it. This is meant.
void SaveByDialog(std::string_view extension) {
    StorePendingEdits();
    CommonDialog& dialog = TheMainWindow().Dialog();
    ChoosePlaceToSave(dialog);
    const std::string path = WithExtension(dialog.FileName, extension);
    SaveSimulationData(path);
    ThePlatform().ShowMessage(
        {"Simulation Data File Saved", "Save File", MessageIcon::Information});
    TheProgram().StartDir = WithoutLast(path, dialog.FileTitle.size());
}

std::string ErrorLines(const RuntimeError& error) {
    return "Error Number :  " + NumberText(error.Number) +
           "\rError Description :  " + error.Description + "\r";
}

void ReportSaveFailure(const RuntimeError& error) {
    if (error.Number == kDialogCancelled) return;
    ThePlatform().ShowMessage({ErrorLines(error) + "\rCannot Save Data File.", "Error Saving File",
                               MessageIcon::Critical});
}

MessageAnswer AskToSaveFirst() {
    return ThePlatform().ShowMessage(
        {"Creating a new simulation will totally replace the current simulation data!\r\r"
         "Do you wish to save the current simulation first?",
         "Create New Simulation?", MessageIcon::Question, MessageButtons::YesNoCancel});
}

void SaveBeforeNew() {
    if (!IsDefaultSimulation()) {
        SaveByDialog(kNewExtension);
        TheProgram().SimulationFileName = TheMainWindow().Dialog().FileTitle;
        return;
    }
    StorePendingEdits();
    // No separator stands between the two: the file lands beside the folder. This is meant.
    SaveSimulationData(TheProgram().StartDir + TheProgram().SimulationFileName);
}

void ShowNameInTitle() { TheMainWindow().SetTitle(TitleOf(TheProgram().SimulationFileName)); }

}  // namespace

void NewSimulationCommand() {
    try {
        const MessageAnswer answer = AskToSaveFirst();
        if (answer == MessageAnswer::Cancel) return;
        if (answer == MessageAnswer::Yes) SaveBeforeNew();
        NewSimulation();
    } catch (const RuntimeError& error) {
        ReportSaveFailure(error);
    }
}

void LoadSimulationCommand() {
    try {
        MainWindow& window = TheMainWindow();
        const CommonDialog& dialog = window.Dialog();
        ChooseFileToLoad(window.Dialog());
        TheProgram().SimulationFileName = WithoutLast(dialog.FileTitle, kExtension.size());
        window.CloseScreen(TheProgram().CurrentScreen);
        LoadSimulationData(dialog.FileName);
        const std::string& screen = TheProgram().CurrentScreen;
        const bool comesBack = screen == "Feeds" || screen == "Ration";
        window.ClickButton(comesBack ? screen : "Inputs");
        ShowNameInTitle();
    } catch (const RuntimeError& error) {
        if (error.Number == kDialogCancelled) return;
        ThePlatform().ShowMessage(
            {ErrorLines(error), "Error Loading Input File", MessageIcon::Critical});
    }
}

void SaveSimulationCommand() {
    StorePendingEdits();
    const ProgramState& program = TheProgram();
    SaveSimulationData(
        IsDefaultSimulation()
            ? DefaultSimulationPath()
            : WithExtension(JoinPath(program.StartDir, program.SimulationFileName), kExtension));
}

void SaveSimulationAsCommand() {
    try {
        SaveByDialog(kExtension);
        TheProgram().SimulationFileName =
            WithoutLast(TheMainWindow().Dialog().FileTitle, kExtension.size());
        ShowNameInTitle();
    } catch (const RuntimeError& error) {
        ReportSaveFailure(error);
    }
}

void SaveDefaultSimulation() { SaveSimulationData(DefaultSimulationPath()); }

void StartPeriodicSave() { TheProgram().LastAutoSaveTime = ThePlatform().Now(); }

void AutoSaveTick() {
    using Days = std::chrono::duration<double, std::chrono::days::period>;
    const Days passed = ThePlatform().Now() - TheProgram().LastAutoSaveTime;
    // 0.006 of a day, whatever the menu's caption says.
    if (Single(passed.count() * 100000) <= 600) return;
    SaveSimulationCommand();
    StartPeriodicSave();
}

std::string TitleOf(const std::string& simulation) {
    return "TAV Feeding Standards for Milking Herds v. " + std::string(kVersion) + " - " +
           simulation;
}

}  // namespace tav
