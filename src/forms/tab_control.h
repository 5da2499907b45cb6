// Pages of controls of which one is on show.
#pragma once

#include "forms/control.h"

#include <string>
#include <vector>

namespace tav {

class TabControl : public Control {
  public:
    using Control::Control;
    ControlKind Kind() const override { return ControlKind::TabControl; }

    // Where the controls of a hidden page are kept: that far to the left of their place.
    static constexpr int kParking = 75000;

    std::vector<std::string> TabCaptions;

    // Puts a control that has the tab control as its container on a page, at its place there.
    void Put(Control& control, int page);

    int Tab() const { return tab_; }
    // Shows a page. Raises TabClick with the page that was on show, unless it is the same one.
    // Error 5 beyond the pages.
    void SetTab(int page);
    // The same without the event, for showing a page that the program fills itself.
    void ShowPage(int page);

    std::function<void(int previousTab)> TabClick;

    void UserClickTab(int page);

  private:
    int tab_ = 0;
};

}  // namespace tav
