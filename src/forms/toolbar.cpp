#include "forms/toolbar.h"

#include "forms/form.h"

#include <algorithm>

namespace tav {

const ToolbarButton* Toolbar::Button(std::string_view key) const {
    const auto found = std::find_if(Buttons.begin(), Buttons.end(),
                                    [&](const ToolbarButton& button) { return button.Key == key; });
    return found == Buttons.end() || key.empty() ? nullptr : &*found;
}

ToolbarButton* Toolbar::Button(std::string_view key) {
    return const_cast<ToolbarButton*>(std::as_const(*this).Button(key));
}

void Toolbar::UserClickButton(std::string_view key) {
    RequireUsable();
    ToolbarButton* const button = Button(key);
    if (button == nullptr) throw NotPossible(FullName() + " has no button " + std::string(key));
    if (!button->Enabled) {
        throw NotPossible("the button " + std::string(key) + " of " + FullName() + " is disabled");
    }
    Form::DismissPopUps();
    Form::FinishEntries();
    if (button->TwoState) {
        for (ToolbarButton& other : Buttons) {
            if (other.TwoState) other.Pressed = &other == button;
        }
    }
    Fire(ButtonClick, *button);
}

}  // namespace tav
