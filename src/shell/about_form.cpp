#include "shell/about_form.h"

#include "core/platform.h"
#include "core/version.h"
#include "forms/form_registry.h"
#include "shell/credits.h"

#include <filesystem>
#include <optional>

namespace tav {
namespace {

std::optional<std::string> SystemInformationProgram() {
    auto program = ThePlatform().RegistryText("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH");
    if (program) return program;
    program = ThePlatform().RegistryText("SOFTWARE\\Microsoft\\Shared Tools Location", "MSINFO");
    if (!program) return std::nullopt;
    *program += "\\MSINFO32.EXE";
    std::error_code error;
    return std::filesystem::exists(*program, error) ? program : std::nullopt;
}

}  // namespace

AboutForm::AboutForm() : Form("frmAbout") {
    Sizable = false;
    picIcon.Picture = "Logo";
    lblTitle.Caption = kProgramName;
    lblTitle2.Caption = kProgramSubject;
    lblTitle3.Caption = kCommittee;
    lblMyName.Caption = "Programmed for the committee by its working group on the computer program";
    Label1.Caption = "Disclaimer";
    cmdOK.Caption = "OK";
    cmdOK.Default = true;
    cmdOK.Cancel = true;
    cmdOK.Click = [this] { cmdOK_Click(); };
    cmdSysInfo.Caption = "&System Info...";
    cmdSysInfo.Click = [] { StartSysInfo(); };
    PlaceControls();
}

void AboutForm::PlaceControls() {
    picIcon.Move(240, 240, 720, 720);
    lblTitle.Move(1200, 240, 6360, 420);
    lblTitle.FontSize = 14;
    lblTitle2.Move(1200, 660, 6360, 300);
    lblTitle3.Move(1200, 960, 6360, 300);
    lblVersion.Move(1200, 1260, 6360, 300);
    lblDescription.Move(1200, 1620, 6360, 1320);
    lblMyName.Move(1200, 3000, 6360, 300);
    Line1.Move(240, 3420, 7320, 0);
    Label1.Move(240, 3540, 5400, 300);
    lblDisclaimer.Move(240, 3840, 5400, 1080);
    cmdOK.Move(5880, 3840, 1680, 435);
    cmdSysInfo.Move(5880, 4380, 1680, 435);
    Width = 7800 + FrameWidth;
    Height = 5160 + FrameHeight;
}

void AboutForm::Form_Load() {
    Caption = "About the " + std::string(kProgramName);
    lblVersion.Caption = "Version " + std::string(kVersion);
    lblDescription.Caption = kCommitteeMembers;
    lblDisclaimer.Caption = kDisclaimer;
}

void AboutForm::cmdOK_Click() { TheForms().Unload(Name()); }

void StartSysInfo() {
    if (const auto program = SystemInformationProgram()) {
        ThePlatform().StartProcess(*program);
    } else {
        ThePlatform().ShowMessage(
            {"System Information Is Unavailable At This Time", std::string(kProgramName)});
    }
}

}  // namespace tav
