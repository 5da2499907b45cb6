// A form with a window of its own.
#pragma once

#include "desktop/form_view.h"

namespace tav {

class DialogView : public FormView {
  public:
    explicit DialogView(Form& form);

    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    void SyncWindow() override;

  private:
    DialogView(Form& form, QWidget* window);
    void PlaceOnScreen();
};

}  // namespace tav
