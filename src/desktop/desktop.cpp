#include "desktop/desktop.h"

#include "core/program_state.h"
#include "core/runtime_error.h"
#include "desktop/form_view.h"
#include "desktop/menus.h"
#include "desktop/whats_this.h"
#include "forms/context_help.h"
#include "forms/form_registry.h"
#include "forms/menu.h"
#include "shell/program.h"

#include <QApplication>
#include <QCursor>
#include <QTimer>
#include <algorithm>

namespace tav {
namespace {

constexpr int kMenuBelow = 24;  // pixels under the top of the control, at most

}  // namespace

Desktop& TheDesktop() {
    static Desktop desktop;
    return desktop;
}

void Desktop::Start() {
    ended_ = false;
    front_ = nullptr;
    Perform([this] { StartProgram(platform_); });
}

void Desktop::Perform(const std::function<void()>& action) {
    if (ended_) return;
    ++depth_;
    try {
        TheForms().Run(action);
    } catch (const NotPossible&) {
        // The user was faster than the screen: what was clicked has gone or been disabled.
    } catch (const std::exception& fault) {
        --depth_;
        EndWithFault(fault.what());
        return;
    }
    --depth_;
    Refresh();
}

void Desktop::EndWithFault(const std::string& description) {
    if (ended_) return;
    // The screen may be what has failed: it isn't drawn again.
    ended_ = true;
    platform_.ReportFatalFault(description);
    ended_ = false;
    TheProgram().FatalError = kDeviceIOError;
    TheProgram().Ended = true;
    TheForms().Clear();
    End();
}

void Desktop::FinishTyping() {
    const std::vector<QPointer<FormView>> views = views_;
    for (const QPointer<FormView>& view : views)
        if (view && view->IsLive()) view->FinishTyping();
}

bool Desktop::IsTyping() const {
    return std::any_of(views_.begin(), views_.end(), [](const QPointer<FormView>& view) {
        return view && view->IsLive() && view->IsTyping();
    });
}

void Desktop::Refresh() {
    if (ended_) return;
    RetireClosed();
    if (TheProgram().Ended && depth_ == 0) {
        End();
        return;
    }
    ShowLoaded(true);
    ShowLoaded(false);
    for (const QPointer<FormView>& view : views_)
        view->Sync();
    BringToFront();
    ShowWhatsThisMode();
    OpenPopUp();
}

// A closed form's window goes when the event that closed it has been dealt with.
void Desktop::RetireClosed() {
    std::erase_if(views_, [](const QPointer<FormView>& view) {
        if (view && view->IsLive()) return false;
        if (view) view->Retire();
        return true;
    });
}

void Desktop::ShowLoaded(bool mainWindows) {
    for (Form* const form : TheForms().Loaded()) {
        if (form->IsMainWindow != mainWindows || !form->Visible() || ViewOf(*form)) continue;
        views_.emplace_back(FormView::Of(*form));
    }
}

void Desktop::BringToFront() {
    const Form* const active = TheForms().Active();
    if (active == front_) return;
    front_ = active;
    if (active == nullptr) return;
    if (FormView* const view = ViewOf(*active)) view->BringToFront();
}

// The menu opens when the event at hand has been dealt with, and stays until the user has chosen.
void Desktop::OpenPopUp() {
    if (popUpOpen_ || depth_ > 0) return;
    for (Form* const form : TheForms().Loaded()) {
        if (form->OpenPopUp() == nullptr) continue;
        popUpOpen_ = true;
        const QPoint at = PlaceOfPopUp();
        QTimer::singleShot(0, qApp, [this, form, at] {
            MenuItem* const menu = form->OpenPopUp();
            MenuItem* const chosen =
                menu == nullptr ? nullptr : ChooseFromPopUp(*menu, ActionsOfContext(), at);
            popUpOpen_ = false;
            Perform([form, chosen] {
                if (chosen != nullptr) chosen->UserClick();
                form->ClosePopUp();
            });
        });
        return;
    }
}

// Under the mouse, or under the control where the keyboard asked for the menu.
QPoint Desktop::PlaceOfPopUp() const {
    const QPoint mouse = QCursor::pos();
    const Control* const control = ContextControl();
    const FormView* const form = control == nullptr ? nullptr : ViewOf(control->Owner());
    ControlView* const view = form == nullptr ? nullptr : form->ViewOf(*control);
    if (view == nullptr) return mouse;
    const QWidget& widget = view->Widget();
    if (widget.rect().contains(widget.mapFromGlobal(mouse))) return mouse;
    return widget.mapToGlobal(QPoint(0, std::min(widget.height(), kMenuBelow)));
}

// What the view of the control that was clicked offers beside the menu's entries.
QList<QAction*> Desktop::ActionsOfContext() const {
    const Control* const control = ContextControl();
    if (control == nullptr) return {};
    const FormView* const form = ViewOf(control->Owner());
    ControlView* const view = form == nullptr ? nullptr : form->ViewOf(*control);
    return view == nullptr ? QList<QAction*>{} : view->OwnActions();
}

FormView* Desktop::ViewOf(const Form& form) const {
    const auto found = std::find_if(
        views_.begin(), views_.end(),
        [&](const QPointer<FormView>& view) { return view && &view->TheForm() == &form; });
    return found == views_.end() ? nullptr : found->data();
}

QWidget* Desktop::FrontWindow() const {
    if (QWidget* const window = QApplication::activeWindow()) return window;
    FormView* const view = front_ == nullptr ? nullptr : ViewOf(*front_);
    return view == nullptr ? nullptr : view->Window();
}

void Desktop::End() {
    ended_ = true;
    for (const QPointer<FormView>& view : views_)
        if (view) view->Retire();
    views_.clear();
    const int status = TheProgram().FatalError == 0 ? 0 : 1;
    QTimer::singleShot(0, qApp, [status] { QCoreApplication::exit(status); });
}

}  // namespace tav
