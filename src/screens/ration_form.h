// The ration screen, frmRation: the daily quantity of each feed, and the results beside them.
#pragma once

#include "forms/screen_form.h"

namespace tav {

class RationForm : public ScreenForm {
  public:
    RationForm();
};

}  // namespace tav
