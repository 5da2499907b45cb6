// Menus: an entry of the menu bar, of a menu, of a submenu, or a pop-up.
#pragma once

#include "forms/control.h"

#include <string>
#include <vector>

namespace tav {

// An entry in another one is made with that one as its container:
//   MenuItem mnuFile{*this, "mnuFile", "&File"};
//   MenuItem mnuExitProgram{mnuFile, "mnuExitProgram", "E&xit Program"};
// An entry of the bar that isn't visible is a pop-up menu. A caption of "-" is a separator.
class MenuItem : public CaptionedControl {
  public:
    MenuItem(Form& owner, std::string name, std::string caption)
        : CaptionedControl(owner, std::move(name), -1) {
        Caption = std::move(caption);
    }
    MenuItem(MenuItem& menu, std::string name, std::string caption)
        : CaptionedControl(menu, std::move(name), -1) {
        Caption = std::move(caption);
    }
    ControlKind Kind() const override { return ControlKind::Menu; }

    bool Checkable = false;  // shows whether it is checked
    bool Checked = false;

    // The entries of this menu in their order.
    std::vector<MenuItem*> Entries() const;
    bool IsSeparator() const { return Caption == "-"; }

    // Chooses the entry. One of a pop-up menu can be chosen only while that is open.
    void UserClick() override;

    bool HasPlace() const override { return false; }
    bool HasFont() const override { return false; }
    bool TakesFocus() const override { return false; }

  private:
    const MenuItem* Menu() const;
};

}  // namespace tav
