// The terms of use, frmSplash, with which every run begins.
#pragma once

#include "forms/buttons.h"
#include "forms/form.h"
#include "forms/passive_controls.h"
#include "forms/text_box.h"

namespace tav {

class SplashForm : public Form {
  public:
    SplashForm();

    Image imgLogo{*this, "imgLogo"};
    Label lblVersion{*this, "lblVersion"};
    Label lblVersion2{*this, "lblVersion2"};
    Label lblSubVersion{*this, "lblSubVersion"};
    TextBox Text1{*this, "Text1"};  // source of the figures
    TextBox Text2{*this, "Text2"};  // committee
    TextBox Text3{*this, "Text3"};  // its members
    Label Label1{*this, "Label1"};
    TextBox Text4{*this, "Text4"};  // disclaimer
    CommandButton cmdAcceptTerms{*this, "cmdAcceptTerms"};
    CommandButton cmdRejectTerms{*this, "cmdRejectTerms"};

  private:
    void PlaceControls();
    void ShowText(TextBox& box, std::string_view text);
    void cmdAcceptTerms_Click();
    void cmdRejectTerms_Click();
    void Form_Load() override;
};

}  // namespace tav
