#include "forms/tab_control.h"

#include "core/runtime_error.h"
#include "forms/form.h"

namespace tav {

void TabControl::Put(Control& control, int page) {
    const bool wasParked = control.TabPage != tab_;
    control.TabPage = page;
    const bool isParked = page != tab_;
    if (isParked && !wasParked) control.Left = control.Left - kParking;
    if (!isParked && wasParked) control.Left = control.Left + kParking;
}

void TabControl::ShowPage(int page) {
    if (page < 0 || page >= static_cast<int>(TabCaptions.size())) tav::Raise(kInvalidProcedureCall);
    if (page == tab_) return;
    for (Control* const control : Owner().Controls()) {
        if (control->Container() != this) continue;
        if (control->TabPage == tab_) control->Left = control->Left - kParking;
        if (control->TabPage == page) control->Left = control->Left + kParking;
    }
    tab_ = page;
}

void TabControl::SetTab(int page) {
    const int previous = tab_;
    ShowPage(page);
    if (tab_ != previous) Fire(TabClick, previous);
}

void TabControl::UserClickTab(int page) {
    RequireUsable();
    if (page < 0 || page >= static_cast<int>(TabCaptions.size())) {
        throw NotPossible(FullName() + " has no page " + std::to_string(page));
    }
    Form::DismissPopUps();
    TakeFocus();
    SetTab(page);
}

}  // namespace tav
