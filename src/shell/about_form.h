// The about box, frmAbout: credits and the way to the system's information program.
#pragma once

#include "forms/buttons.h"
#include "forms/form.h"
#include "forms/passive_controls.h"

namespace tav {

class AboutForm : public Form {
  public:
    AboutForm();

    PictureBox picIcon{*this, "picIcon"};
    Label lblTitle{*this, "lblTitle"};
    Label lblTitle2{*this, "lblTitle2"};
    Label lblTitle3{*this, "lblTitle3"};
    Label lblVersion{*this, "lblVersion"};
    Label lblDescription{*this, "lblDescription"};
    Label lblMyName{*this, "lblMyName"};
    Line Line1{*this, "Line1"};
    Label Label1{*this, "Label1"};
    Label lblDisclaimer{*this, "lblDisclaimer"};
    CommandButton cmdOK{*this, "cmdOK"};
    CommandButton cmdSysInfo{*this, "cmdSysInfo"};

  private:
    void PlaceControls();
    void cmdOK_Click();
    void Form_Load() override;
};

// Starts the system's information program in a window of its own, or says that there is none.
void StartSysInfo();

}  // namespace tav
