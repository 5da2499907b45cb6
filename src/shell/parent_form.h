// The main window, frmParent: menu, toolbar, and room for one screen at a time.
#pragma once

#include "core/platform.h"
#include "forms/form.h"
#include "forms/menu.h"
#include "forms/timer.h"
#include "forms/toolbar.h"

#include <string_view>

namespace tav {

class ParentForm : public Form {
  public:
    ParentForm();

    tav::Toolbar Toolbar{*this, "Toolbar"};
    Timer AutoSaveTimer{*this, "AutoSaveTimer"};
    CommonDialog CommonDialog1;

    // The next click on a control shows its help instead of doing what it does. The view acts on it
    // and takes it back.
    bool WhatsThisMode = false;

    MenuItem mnuFile{*this, "mnuFile", "&File"};
    MenuItem mnuNewSimulation{mnuFile, "mnuNewSimulation", "&New Simulation"};
    MenuItem mnuLoadSimulation{mnuFile, "mnuLoadSimulation", "&Load Simulation"};
    MenuItem mnuSep1{mnuFile, "mnuSep1", "-"};
    MenuItem mnuSaveSimulation{mnuFile, "mnuSaveSimulation", "&Save Simulation"};
    MenuItem mnuSaveSimulationAs{mnuFile, "mnuSaveSimulationAs", "Save Simulation &As..."};
    MenuItem mnuSep2{mnuFile, "mnuSep2", "-"};
    MenuItem mnuSaveAsDefault{mnuFile, "mnuSaveAsDefault", "Save Current Simulation As Default"};
    MenuItem mnuSep3{mnuFile, "mnuSep3", "-"};
    MenuItem mnuAutoSave{mnuFile, "mnuAutoSave", "Auto-Save Default Data On Exit"};
    MenuItem mnuPeriodicAutoSave{mnuFile, "mnuPeriodicAutoSave",
                                 "Auto-Save Simulation Every 10 Minutes"};
    MenuItem mnuSep4{mnuFile, "mnuSep4", "-"};
    MenuItem mnuExitProgram{mnuFile, "mnuExitProgram", "E&xit Program"};

    MenuItem mnuGoTo{*this, "mnuGoTo", "&Go To..."};
    MenuItem mnuInputs{mnuGoTo, "mnuInputs", "&Inputs"};
    MenuItem mnnSettings{mnuInputs, "mnnSettings", "Program &Settings"};
    MenuItem mnuDescription{mnuInputs, "mnuDescription", "Animal &Description"};
    MenuItem mnuProduction{mnuInputs, "mnuProduction", "Animal &Production"};
    MenuItem mnuManagement{mnuInputs, "mnuManagement", "&Management and Environment"};
    MenuItem mnuFeeds{mnuGoTo, "mnuFeeds", "&Feeds"};
    MenuItem mnuRation{mnuGoTo, "mnuRation", "&Ration"};
    MenuItem mnuReports{mnuGoTo, "mnuReports", "Re&ports"};
    MenuItem mnuSep5{mnuGoTo, "mnuSep5", "-"};
    MenuItem mnuBatchOps{mnuGoTo, "mnuBatchOps", "Batch File Utility"};

    MenuItem mnuHelp{*this, "mnuHelp", "&Help"};
    MenuItem mnuContents{mnuHelp, "mnuContents", "&Contents and Index"};
    MenuItem mnuSep6{mnuHelp, "mnuSep6", "-"};
    MenuItem mnuWhatsThis{mnuHelp, "mnuWhatsThis", "&What's This?"};
    MenuItem mnuSep7{mnuHelp, "mnuSep7", "-"};
    MenuItem mnuAbout{mnuHelp, "mnuAbout", "&About the TAV Dairy Cattle Program"};

    // The pop-ups
    MenuItem mnuContextMenu{*this, "mnuContextMenu", ""};
    MenuItem mnuContextWT{mnuContextMenu, "mnuContextWT", "&What's This?"};
    MenuItem mnuJumpMenu{*this, "mnuJumpMenu", ""};
    MenuItem mnuJumpWT{mnuJumpMenu, "mnuJumpWT", "&What's This?"};
    MenuItem mnuJumpHT{mnuJumpMenu, "mnuJumpHT", "&Jump To Help Topic"};

    // Leaves the screen on show for that of the button; "Help" opens the help instead and the
    // screen stays. Also run by the Go To menu and after a load.
    void Toolbar_ButtonClick(ToolbarButton& button);

    // Presses the button of that key and releases the others. "Help" doesn't stay pressed, so it
    // leaves none pressed.
    void SetUpButtons(std::string_view key);

  private:
    void AddToolbarButtons();
    void TieFileMenu();
    void TieGoToMenu();
    void TieHelpMenus();
    void ShowAutoSaveChoices();
    void ShowFirstScreen();
    void OpenHelp();
    void GoTo(std::string_view key);
    void GoToInputs(int tab);
    void SetToScreenShare();

    void mnuAutoSave_Click();
    void mnuPeriodicAutoSave_Click();
    void mnuExitProgram_Click();

    void Form_Load() override;
    void Form_Resize() override;
    void Form_Unload(bool& cancel) override;
};

}  // namespace tav
