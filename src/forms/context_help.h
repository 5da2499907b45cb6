// Help on a single control, from the pop-up menus of the main window.
#pragma once

#include "forms/control.h"

namespace tav {

// Opens the main window's pop-up menu for help on the control, which is then the ContextControl
// until the menu closes. Nothing without a main window.
void OpenContextMenu(Control& control);

// The same with the pop-up that stands over the help on a control, from which its topic can be
// opened in the viewer.
void OpenJumpMenu(Control& control);

// The control that the open pop-up menu is about, null if none is open.
Control* ContextControl();

// Shows the help on that control in a small window, or opens the help viewer at its topic. Both do
// nothing without a ContextControl.
void ShowWhatsThis();
void JumpToHelpTopic();

}  // namespace tav
