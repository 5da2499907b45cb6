#include "forms/screen_form.h"

#include "core/program_state.h"
#include "forms/form_registry.h"
#include "forms/form_resizing.h"

namespace tav {

ScreenForm::ScreenForm(const std::string& key) : Form("frm" + key), key_(key) {
    Caption = key;
    IsChild = true;
    Sizable = false;
    HasCloseBox = false;
    FrameWidth = 0;
    FrameHeight = 0;
}

void ScreenForm::FillClientArea() {
    const Form* const parent = TheForms().Find("frmParent");
    if (parent == nullptr) return;
    Left = 0;
    Top = 0;
    Resize(parent->ClientWidth(), parent->ClientHeight());
}

void ScreenForm::Form_Load() {
    FillClientArea();
    ResizeScreen(*this);
    SetUp();
    TheProgram().CurrentScreen = key_;
}

void ScreenForm::Form_Unload(bool& /*cancel*/) { Store(); }

}  // namespace tav
