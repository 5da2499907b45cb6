// What lets a timer tick.
#pragma once

#include "desktop/control_view.h"
#include "forms/timer.h"

#include <QTimer>

namespace tav {

class TimerView : public ControlView {
  public:
    TimerView(Timer& model, QWidget& parent, FormView& form);

  protected:
    void SyncContent() override;

  private:
    void Tick();

    Timer& model_;
    QTimer timer_;
};

}  // namespace tav
