// Which view shows which kind of control.
#pragma once

#include "desktop/control_view.h"

#include <memory>

namespace tav {

// A view of the control on a parent widget; null for a kind that the window itself shows (menus,
// toolbar).
std::unique_ptr<ControlView> MakeControlView(Control& control, QWidget& parent, FormView& form);

}  // namespace tav
