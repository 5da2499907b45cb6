#include "forms/timer.h"

#include "forms/form.h"

namespace tav {

void Timer::Start() {
    Enabled = true;
    elapsed_ = 0;
}

void Timer::Stop() {
    Enabled = false;
    elapsed_ = 0;
}

bool Timer::IsRunning() const { return Enabled && Interval > 0 && Owner().IsLoaded(); }

void Timer::Elapse(int milliseconds) {
    if (!IsRunning()) return;
    elapsed_ += milliseconds;
    if (elapsed_ < Interval) return;
    elapsed_ = 0;
    Fire(Tick);
}

}  // namespace tav
