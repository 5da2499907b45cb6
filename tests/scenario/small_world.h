// A small program for the tests: one form with a control of each kind that a script can use.
#pragma once

#include "core/program_state.h"
#include "core/runtime_error.h"
#include "core/simulation_record.h"
#include "forms/controls.h"
#include "forms/form_registry.h"
#include "scenario/interpreter.h"

#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace tav {

class HerdForm : public Form {
  public:
    HerdForm() : Form("frmHerd") {
        Caption = "Herd";
        Resize(6000, 4000);
        txtWeight.Maximum = 1000;
        txtWeight.Units = "kg";
        cboType.AddItem("Cow");
        cboType.AddItem("Calf");
        cboNotes.ForEach([](ComboBox& box, int) { box.FreeText = true; });
        lstFeeds.MultiSelect = true;
        lstFeeds.AddItem("Corn");
        lstFeeds.AddItem("Hay");
        grdRation.SetRows(3);
        grdRation.SetCols(2);
        tabPages.TabCaptions = {"One", "Two"};
        tabPages.Put(txtHidden, 1);
        Toolbar.Buttons = {{.Key = "Feeds", .TwoState = true}, {.Key = "Help"}};
        cmdAsk.Click = [this] { Ask(); };
        cmdSave.Click = [this] { Save(); };
        cmdFail.Click = [] { Raise(kDiskFull); };
        cmdEnd.Click = [] { TheProgram().Ended = true; };
        cmdOff.Enabled = false;
        tmrTick.Interval = 1000;
        chkTimer.Click = [this] { tmrTick.Start(); };
        tmrTick.Tick = [this] { lblTicks.Caption += "x"; };
        lblTicks.MouseUp = [this](MouseButton) { PopUp(mnuPopUp); };
        lblTicks.KeyDown = [this](const KeyPress& key) { lblTicks.Caption = key.Key; };
        mnuPopUp.Visible = false;
        mnuHelp.Click = [this] { lblTicks.Caption = "help"; };
    }

    TextBox txtName{*this, "txtName"};
    NumericTextBox txtWeight{*this, "txtWeight"};
    ComboBox cboType{*this, "cboType"};
    ControlArray<ComboBox> cboNotes{*this, "cboNotes", 3};
    ListBox lstFeeds{*this, "lstFeeds"};
    Grid grdRation{*this, "grdRation"};
    TabControl tabPages{*this, "tabPages"};
    TextBox txtHidden{tabPages, "txtHidden"};
    tav::Toolbar Toolbar{*this, "Toolbar"};
    CommandButton cmdAsk{*this, "cmdAsk"};
    CommandButton cmdSave{*this, "cmdSave"};
    CommandButton cmdFail{*this, "cmdFail"};
    CommandButton cmdEnd{*this, "cmdEnd"};
    CommandButton cmdOff{*this, "cmdOff"};
    CheckBox chkTimer{*this, "chkTimer"};
    Timer tmrTick{*this, "tmrTick"};
    Label lblTicks{*this, "lblTicks"};
    FolderList DirList{*this, "DirList"};
    MenuItem mnuPopUp{*this, "mnuPopUp", ""};
    MenuItem mnuHelp{mnuPopUp, "mnuHelp", "&Help"};

  private:
    void Ask() {
        const MessageAnswer answer =
            ThePlatform().ShowMessage({"Feed \"Corn\"?\r\nNow?", "Feeding", MessageIcon::Question,
                                       MessageButtons::YesNoCancel});
        if (answer == MessageAnswer::Yes)
            ThePlatform().ShowMessage({"Fed.", "Done", MessageIcon::None, MessageButtons::OK});
    }

    void Save() {
        CommonDialog dialog;
        dialog.InitDir = "herd";
        dialog.FileName = "old.tav";
        dialog.Flags = CommonDialog::kFileMustExist;
        if (ThePlatform().ShowSaveDialog(dialog)) lblTicks.Caption = dialog.FileName;
    }
};

class SmallWorld : public World {
  public:
    void Start(Platform& platform) override {
        SetPlatform(platform);
        TheForms().Clear();
        TheProgram() = {};
        TheSimulation() = {};
        TheForms().Register("frmHerd", [] { return std::make_unique<HerdForm>(); });
        TheForms().Register("frmOther", [] { return std::make_unique<Form>("frmOther"); });
        TheProgram().AppPath = platform.ProgramFolder();
        TheProgram().StartDir = platform.CurrentFolder();
        TheForms().Run([] { TheForms().Show("frmHerd"); });
    }
};

// Plays the script and keeps what it printed and complained of.
class Played {
  public:
    explicit Played(const std::string& script) {
        SmallWorld world;
        std::ostringstream out, errors;
        Result = PlayText(script, "test", "/scripts", world, out, errors);
        Out = out.str();
        Errors = errors.str();
    }

    Outcome Result;
    std::string Out;
    std::string Errors;
};

// The script holds, whatever it prints.
inline void ExpectHolds(const std::string& script) {
    const Played played(script);
    EXPECT_EQ(played.Result, Outcome::Held);
    EXPECT_EQ(played.Errors, "");
}

}  // namespace tav
