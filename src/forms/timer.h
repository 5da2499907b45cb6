// A timer.
#pragma once

#include "forms/control.h"

namespace tav {

class Timer : public Control {
  public:
    Timer(Form& owner, std::string name) : Control(owner, std::move(name), -1) { Enabled = false; }
    ControlKind Kind() const override { return ControlKind::Timer; }

    int Interval = 0;  // milliseconds; 0 never ticks
    std::function<void()> Tick;

    // Start begins a whole interval. Start and Stop are how a program switches a timer; Enabled is
    // for reading.
    void Start();
    void Stop();

    // Whether the form is loaded, the timer enabled and its interval above 0.
    bool IsRunning() const;

    // Time passes: how long until the next tick, and that much time gone by. Elapse ticks when the
    // interval has passed.
    int Remaining() const { return Interval - elapsed_; }
    void Elapse(int milliseconds);

    bool HasPlace() const override { return false; }
    bool HasFont() const override { return false; }
    bool TakesFocus() const override { return false; }

  private:
    int elapsed_ = 0;
};

}  // namespace tav
