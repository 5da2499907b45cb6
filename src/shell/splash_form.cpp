#include "shell/splash_form.h"

#include "core/platform.h"
#include "core/program_run.h"
#include "core/program_state.h"
#include "core/version.h"
#include "forms/form_registry.h"
#include "shell/credits.h"

namespace tav {

SplashForm::SplashForm() : Form("frmSplash") {
    Caption = kProgramName;
    Sizable = false;
    imgLogo.Picture = "Logo";
    lblVersion.Caption = kProgramName;
    lblVersion2.Caption = kProgramSubject;
    Label1.Caption = "Terms of Use";
    ShowText(Text1, kSourceOfFigures);
    ShowText(Text2, kCommittee);
    ShowText(Text3, kCommitteeMembers);
    ShowText(Text4, kDisclaimer);
    cmdAcceptTerms.Caption = "&Accept Terms of Use";
    cmdAcceptTerms.Default = true;
    cmdAcceptTerms.Click = [this] { cmdAcceptTerms_Click(); };
    cmdRejectTerms.Caption = "&Reject Terms  (Exit Program)";
    cmdRejectTerms.Cancel = true;
    cmdRejectTerms.Click = [this] { cmdRejectTerms_Click(); };
    PlaceControls();
}

void SplashForm::PlaceControls() {
    imgLogo.Move(240, 240, 1200, 1200);
    lblVersion.Move(1680, 240, 7080, 480);
    lblVersion.FontSize = 18;
    lblVersion2.Move(1680, 720, 7080, 360);
    lblVersion2.FontSize = 12;
    lblSubVersion.Move(1680, 1140, 7080, 300);
    Text1.Move(240, 1620, 8520, 720);
    Text2.Move(240, 2460, 8520, 360);
    Text3.Move(240, 2940, 8520, 1200);
    Label1.Move(240, 4320, 8520, 300);
    Label1.FontSize = 10;
    Text4.Move(240, 4680, 8520, 960);
    cmdAcceptTerms.Move(240, 5820, 4140, 435);
    cmdRejectTerms.Move(4620, 5820, 4140, 435);
    Width = 9000 + FrameWidth;
    Height = 6480 + FrameHeight;
}

// The box can be read and not edited: a click on it hands the focus on.
void SplashForm::ShowText(TextBox& box, std::string_view text) {
    box.Text = text;
    box.MultiLine = true;
    box.ReadOnly = true;
    box.Click = [this] { cmdAcceptTerms.SetFocus(); };
}

void SplashForm::Form_Load() {
    const ScreenSize screen = ThePlatform().Screen();
    Left = (screen.Width - Number(Width)) / 2;
    Top = (screen.Height - Number(Height)) / 2;
    lblSubVersion.Caption = "v. " + std::string(kVersion);
    lblSubVersion.Caption += " (December 2012)";
}

void SplashForm::cmdAcceptTerms_Click() {
    TheForms().Unload(Name());
    InitializeProgram();
}

void SplashForm::cmdRejectTerms_Click() { TheProgram().Ended = true; }

}  // namespace tav
