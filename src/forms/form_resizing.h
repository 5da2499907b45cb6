// Fits the controls of a form, which are laid out for 800 by 600 pixels, to the main window.
//
// It is done once, when a form loads: the main window keeps its size, so nothing has to follow it.
#pragma once

#include "core/number.h"
#include "forms/form.h"

namespace tav {

// By how much the main window's client area is wider and higher than the layout. Below 1 on a
// screen of 800 by 600, of which the window takes only a part; 1 where no main window is loaded.
// Raises 6 when the area has more pixels than a 16-bit integer holds.
struct ScreenScale {
    Single X = 1;
    Single Y = 1;
};
ScreenScale ScaleOfMainWindow();

// Scales the form's controls by that. The form's own size is the form's matter.
void ResizeScreen(Form& form);

// Moves and scales the controls and picks a font size for each. What can't be set on a control is
// passed over, the rest goes on.
void ScaleControls(Single scaleX, Single scaleY, Form& form);

}  // namespace tav
