// The batch file utility, frmBatchOps, a modal window over the main window.
#pragma once

#include "forms/buttons.h"
#include "forms/form.h"

namespace tav {

class BatchForm : public Form {
  public:
    BatchForm();

    CommandButton cmdReturn{*this, "cmdReturn"};

  private:
    void cmdReturn_Click();
};

}  // namespace tav
