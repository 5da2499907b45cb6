#include "shell/parent_form.h"

#include "core/main_window.h"
#include "core/program_run.h"
#include "core/program_state.h"
#include "core/simulation_commands.h"
#include "forms/context_help.h"
#include "forms/form_registry.h"
#include "screens/inputs_form.h"

namespace tav {
namespace {

constexpr std::string_view kHelpKey = "Help";
constexpr double kShareOfScreen = 0.8;  // of each direction
constexpr int kToolbarHeight = 630;
constexpr int kMenuHeight = 285;

}  // namespace

ParentForm::ParentForm() : Form("frmParent") {
    IsMainWindow = true;
    FrameHeight += kMenuHeight + kToolbarHeight;
    AutoSaveTimer.Interval = 30000;
    AutoSaveTimer.Tick = [] { AutoSaveTick(); };
    mnuContextMenu.Visible = false;
    mnuJumpMenu.Visible = false;
    AddToolbarButtons();
    TieFileMenu();
    TieGoToMenu();
    TieHelpMenus();
}

void ParentForm::AddToolbarButtons() {
    for (const std::string_view screen : kScreenKeys) {
        const std::string key(screen);
        Toolbar.Buttons.push_back(
            {.Key = key, .Caption = key, .Picture = key, .ToolTip = key, .TwoState = true});
    }
    const std::string help(kHelpKey);
    Toolbar.Buttons.push_back({.Key = help, .Caption = help, .Picture = help, .ToolTip = help});
    Toolbar.Height = kToolbarHeight;
    Toolbar.ButtonClick = [this](ToolbarButton& button) { Toolbar_ButtonClick(button); };
}

void ParentForm::TieFileMenu() {
    mnuNewSimulation.Click = [] { NewSimulationCommand(); };
    mnuLoadSimulation.Click = [] { LoadSimulationCommand(); };
    mnuSaveSimulation.Click = [] { SaveSimulationCommand(); };
    mnuSaveSimulationAs.Click = [] { SaveSimulationAsCommand(); };
    mnuSaveAsDefault.Click = [] { SaveDefaultSimulation(); };
    mnuAutoSave.Checkable = true;
    mnuPeriodicAutoSave.Checkable = true;
    mnuAutoSave.Click = [this] { mnuAutoSave_Click(); };
    mnuPeriodicAutoSave.Click = [this] { mnuPeriodicAutoSave_Click(); };
    mnuExitProgram.Click = [this] { mnuExitProgram_Click(); };
}

void ParentForm::TieGoToMenu() {
    mnnSettings.Click = [this] { GoToInputs(kProgramSettings); };
    mnuDescription.Click = [this] { GoToInputs(kAnimalDescription); };
    mnuProduction.Click = [this] { GoToInputs(kAnimalProduction); };
    mnuManagement.Click = [this] { GoToInputs(kManagementAndEnvironment); };
    mnuFeeds.Click = [this] { GoTo("Feeds"); };
    mnuRation.Click = [this] { GoTo("Ration"); };
    mnuReports.Click = [this] { GoTo("Reports"); };
    mnuBatchOps.Click = [] { TheForms().ShowModal("frmBatchOps"); };
}

void ParentForm::TieHelpMenus() {
    mnuContents.Click = [this] { OpenHelp(); };
    mnuWhatsThis.Click = [this] { WhatsThisMode = true; };
    mnuAbout.Click = [] { TheForms().Show("frmAbout"); };
    mnuContextWT.Click = [] { ShowWhatsThis(); };
    mnuJumpWT.Click = [] { ShowWhatsThis(); };
    mnuJumpHT.Click = [] { JumpToHelpTopic(); };
}

void ParentForm::Form_Load() {
    SetToScreenShare();
    TheForms().Show(Name());
    ShowAutoSaveChoices();
    Caption = TitleOf("Default Simulation");
    ShowFirstScreen();
    TheProgram().StartingUp = false;
}

void ParentForm::SetToScreenShare() {
    const ScreenSize screen = ThePlatform().Screen();
    Resize(screen.Width * kShareOfScreen, screen.Height * kShareOfScreen);
}

// Only the check mark of the periodic save comes back; its timer starts when the user switches it
// on in this run.
void ParentForm::ShowAutoSaveChoices() {
    mnuAutoSave.Checked = TheProgram().AutoSaveDefault;
    mnuSaveAsDefault.Enabled = !TheProgram().AutoSaveDefault;
    mnuPeriodicAutoSave.Checked = TheProgram().PeriodicAutoSave;
}

void ParentForm::ShowFirstScreen() {
    std::string& screen = TheProgram().CurrentScreen;
    if (!IsScreen(screen)) screen = "Inputs";
    TheMainWindow().ShowScreen(std::string(screen));
}

void ParentForm::Toolbar_ButtonClick(ToolbarButton& button) {
    const std::string key = button.Key;
    if (key == kHelpKey) {
        OpenHelp();
    } else {
        TheMainWindow().CloseScreen(TheProgram().CurrentScreen);
        TheMainWindow().ShowScreen(key);
    }
    SetUpButtons(key);
}

void ParentForm::SetUpButtons(std::string_view key) {
    for (ToolbarButton& button : Toolbar.Buttons) {
        if (button.Key == key) {
            button.Pressed = true;
        } else if (!button.Key.empty()) {
            button.Pressed = false;
        }
    }
    ToolbarButton* const help = Toolbar.Button(kHelpKey);
    if (key == kHelpKey && help != nullptr) help->Pressed = false;
}

void ParentForm::OpenHelp() {
    CommonDialog1.HelpCommand = CommonDialog::kHelpFinder;
    CommonDialog1.HelpFile =
        JoinPath(TheProgram().CurrentPath, "TAV Dairy Cattle Program Help.HLP");
    ThePlatform().ShowHelp(CommonDialog1);
}

void ParentForm::GoTo(std::string_view key) {
    if (ToolbarButton* const button = Toolbar.Button(key)) Toolbar_ButtonClick(*button);
}

void ParentForm::GoToInputs(int tab) {
    GoTo("Inputs");
    TheForms().Get<InputsForm>("frmInputs").InputTabs.SetTab(tab);
}

void ParentForm::mnuAutoSave_Click() {
    const bool on = !mnuAutoSave.Checked;
    mnuAutoSave.Checked = on;
    TheProgram().AutoSaveDefault = on;
    mnuSaveAsDefault.Enabled = !on;
}

void ParentForm::mnuPeriodicAutoSave_Click() {
    const bool on = !mnuPeriodicAutoSave.Checked;
    mnuPeriodicAutoSave.Checked = on;
    if (on) {
        AutoSaveTimer.Start();
        StartPeriodicSave();
    } else {
        AutoSaveTimer.Stop();
    }
    TheProgram().PeriodicAutoSave = on;
}

void ParentForm::mnuExitProgram_Click() { TheForms().Unload(Name()); }

// The window keeps its share of the screen: it can be neither maximised nor pulled to another size.
void ParentForm::Form_Resize() {
    if (TheProgram().StartingUp) return;
    switch (State()) {
        case WindowState::Maximised: SetWindowState(WindowState::Normal); break;
        case WindowState::Minimised: break;
        case WindowState::Normal: SetToScreenShare(); break;
    }
}

void ParentForm::Form_Unload(bool& cancel) {
    if (ConfirmExit()) {
        TheProgram().Ended = true;
    } else {
        cancel = true;
    }
}

}  // namespace tav
