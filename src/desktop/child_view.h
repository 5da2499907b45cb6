// A form inside the main window.
#pragma once

#include "desktop/form_view.h"

namespace tav {

class ChildView : public FormView {
  public:
    ChildView(Form& form, QWidget& area);

  protected:
    void SyncWindow() override;

  private:
    ChildView(Form& form, QWidget* pane);
};

}  // namespace tav
