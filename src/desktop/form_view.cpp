#include "desktop/form_view.h"

#include "desktop/accessibility.h"
#include "desktop/child_view.h"
#include "desktop/desktop.h"
#include "desktop/dialog_view.h"
#include "desktop/main_window_view.h"
#include "desktop/view_factory.h"
#include "forms/buttons.h"
#include "forms/form_registry.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>

namespace tav {

FormView* FormView::Of(Form& form) {
    FormView* view = nullptr;
    if (form.IsMainWindow) {
        view = new MainWindowView(form);
    } else if (QWidget* const area = form.IsChild ? MainWindowArea() : nullptr) {
        view = new ChildView(form, *area);
    } else {
        view = new DialogView(form);
    }
    view->MakeViews();
    return view;
}

FormView::FormView(Form& form, QWidget* pane, QWidget* surface)
    : form_(form), pane_(pane), surface_(surface) {
    surface_->setFocusPolicy(Qt::ClickFocus);
    surface_->installEventFilter(this);
    pane_->installEventFilter(this);
}

// The widgets first: a view must be there for as long as its widget can send anything. Those of a
// screen may have gone with the main window.
FormView::~FormView() {
    for (const auto& view : views_)
        view->StopListening();
    if (!pane_) return;
    surface_->removeEventFilter(this);
    pane_->removeEventFilter(this);
    delete pane_;
}

bool FormView::IsLive() const {
    if (retired_) return false;
    const std::vector<Form*> loaded = TheForms().Loaded();
    return std::find(loaded.begin(), loaded.end(), &form_) != loaded.end();
}

void FormView::MakeViews() {
    for (Control* const control : form_.Controls()) {
        auto view = MakeControlView(*control, PlaceOf(*control), *this);
        if (view == nullptr) continue;
        viewOf_[control] = view.get();
        views_.push_back(std::move(view));
    }
    NameForScreenReaders(form_, *this);
}

QWidget& FormView::PlaceOf(const Control& control) const {
    const ControlView* const container =
        control.Container() == nullptr ? nullptr : ViewOf(*control.Container());
    return container == nullptr ? *surface_ : container->Widget();
}

void FormView::Sync() {
    if (!IsLive()) return;
    surface_->setUpdatesEnabled(false);
    SyncWindow();
    for (const auto& view : views_)
        view->Sync();
    surface_->setUpdatesEnabled(true);
    SyncFocus();
}

// The keyboard follows the form's focus where the program has moved it. It stays where it is when
// the user has moved it and the program knows.
void FormView::SyncFocus() {
    const Control* const focus = form_.Focus();
    const bool moved = focus != focusShown_;
    focusShown_ = focus;
    if (focus != nullptr) {
        ControlView* const view = ViewOf(*focus);
        if (moved && view != nullptr && view->FocusWidget() != nullptr) {
            view->FocusWidget()->setFocus(Qt::OtherFocusReason);
        }
        return;
    }
    // Taken away from all controls: the next key is the form's own.
    const QWidget* const keyboard = QApplication::focusWidget();
    const bool here = keyboard == nullptr || keyboard->window() == Window();
    if (moved && here && pane_->isVisible()) {
        surface_->setFocus(Qt::OtherFocusReason);
    }
}

void FormView::BringToFront() {
    pane_->raise();
    QWidget* const window = Window();
    window->raise();
    window->activateWindow();
    if (form_.Focus() == nullptr) GiveFirstFocus();
}

// The keyboard waits at the default button, or at the first control. The user hasn't turned to it
// yet, so the form isn't told.
void FormView::GiveFirstFocus() {
    QWidget* first = nullptr;
    for (const auto& view : views_) {
        const auto* const button = dynamic_cast<const CommandButton*>(&view->Model());
        const bool isDefault = button != nullptr && button->Default;
        if (!view->Model().TakesFocus() || !view->Model().IsUsable()) continue;
        if (first == nullptr || isDefault) first = view->FocusWidget();
        if (isDefault) break;
    }
    if (first != nullptr) first->setFocus(Qt::ActiveWindowFocusReason);
}

void FormView::FinishTyping() {
    for (std::size_t i = 0; IsLive() && i < views_.size(); ++i)
        views_[i]->FinishTyping();
}

bool FormView::IsTyping() const {
    return std::any_of(views_.begin(), views_.end(),
                       [](const auto& view) { return view->IsTyping(); });
}

void FormView::Retire() {
    retired_ = true;
    if (pane_) pane_->hide();
    deleteLater();
}

QWidget* FormView::Window() const { return pane_->window(); }

ControlView* FormView::ViewOf(const Control& control) const {
    const auto found = viewOf_.find(&control);
    return found == viewOf_.end() ? nullptr : found->second;
}

Control* FormView::ControlOf(const QWidget* widget) const {
    for (const QWidget* at = widget; at != nullptr && at != pane_; at = at->parentWidget()) {
        for (const auto& view : views_) {
            if (&view->Widget() == at) return &view->Model();
        }
    }
    return nullptr;
}

void FormView::Perform(const std::function<void()>& action) const {
    if (IsLive()) TheDesktop().Perform(action);
}

bool FormView::eventFilter(QObject* watched, QEvent* event) {
    if (!IsLive()) return QObject::eventFilter(watched, event);
    if (watched == surface_ && event->type() == QEvent::MouseButtonPress) {
        const bool right = static_cast<QMouseEvent*>(event)->button() == Qt::RightButton;
        Perform([this, right] { right ? form_.UserRightClick() : form_.UserClick(); });
        return true;
    }
    // What comes up from a control has been that control's.
    if (watched == surface_ && event->type() == QEvent::KeyPress && surface_->hasFocus()) {
        const auto* const press = static_cast<QKeyEvent*>(event);
        const auto key = KeyOf(*press);
        if (!key || key->Alt) return false;
        Perform([this, &key] { form_.UserKey(*key); });
        return press->key() == Qt::Key_Escape;
    }
    if (watched == pane_ && pane_->isWindow() && event->type() == QEvent::Close) {
        event->ignore();
        TheDesktop().FinishTyping();
        Perform([this] { form_.UserClose(); });
        return true;
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace tav
