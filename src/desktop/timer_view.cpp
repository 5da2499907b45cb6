#include "desktop/timer_view.h"

#include "desktop/desktop.h"

namespace tav {
namespace {

constexpr int kLaterMilliseconds = 200;

}  // namespace

TimerView::TimerView(Timer& model, QWidget& parent, FormView& form)
    : ControlView(model, *new QWidget(&parent), form), model_(model) {
    Widget().hide();
    timer_.setSingleShot(true);
    QObject::connect(&timer_, &QTimer::timeout, [this] { Tick(); });
}

void TimerView::SyncContent() {
    Widget().hide();
    if (!model_.IsRunning()) {
        timer_.stop();
    } else if (!timer_.isActive()) {
        timer_.start(model_.Remaining());
    }
}

// Not in the middle of an action that waits for the user's answer, nor of an entry in a grid: a
// save may show another feed in it.
void TimerView::Tick() {
    if (TheDesktop().IsBusy() || TheDesktop().IsTyping()) {
        timer_.start(kLaterMilliseconds);
        return;
    }
    Perform([this] { model_.Elapse(model_.Remaining()); });
}

}  // namespace tav
