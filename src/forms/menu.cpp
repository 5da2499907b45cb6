#include "forms/menu.h"

#include "forms/form.h"

namespace tav {

std::vector<MenuItem*> MenuItem::Entries() const {
    std::vector<MenuItem*> entries;
    for (Control* const control : Owner().Controls()) {
        auto* const entry = dynamic_cast<MenuItem*>(control);
        if (entry != nullptr && entry->Container() == this) entries.push_back(entry);
    }
    return entries;
}

// The entry of the menu bar, or the pop-up menu, in which this one stands.
const MenuItem* MenuItem::Menu() const {
    const MenuItem* menu = this;
    while (menu->Container() != nullptr)
        menu = static_cast<const MenuItem*>(menu->Container());
    return menu;
}

void MenuItem::UserClick() {
    Owner().RequireUsable();
    if (IsSeparator()) throw NotPossible(FullName() + " is a separator");
    const MenuItem* const menu = Menu();
    const bool inPopUp = Owner().OpenPopUp() == menu;
    for (const Control* at = this; at != nullptr; at = at->Container()) {
        if (!at->Visible && !(inPopUp && at == menu))
            throw NotPossible(at->FullName() + " is hidden");
        if (!at->Enabled) throw NotPossible(at->FullName() + " is disabled");
    }
    if (!inPopUp) Form::DismissPopUps();
    Form::FinishEntries();
    Fire(Click);
    Owner().ClosePopUp();
}

}  // namespace tav
