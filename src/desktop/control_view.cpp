#include "desktop/control_view.h"

#include "desktop/desktop.h"
#include "desktop/form_view.h"
#include "desktop/pixels.h"
#include "desktop/text.h"
#include "forms/form.h"

#include <QContextMenuEvent>
#include <QKeySequence>
#include <QMouseEvent>
#include <QTimer>

namespace tav {
namespace {

bool IsModifier(int key) {
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt ||
           key == Qt::Key_AltGr || key == Qt::Key_Meta || key == Qt::Key_CapsLock ||
           key == Qt::Key_NumLock || key == Qt::Key_unknown;
}

std::string KeyName(int key) {
    switch (key) {
        case Qt::Key_Return:
        case Qt::Key_Enter: return "Enter";
        case Qt::Key_Space: return "Space";
        case Qt::Key_Escape: return "Escape";
        case Qt::Key_Backtab: return "Tab";
        default: return QKeySequence(key).toString(QKeySequence::PortableText).toStdString();
    }
}

}  // namespace

std::optional<KeyPress> KeyOf(const QKeyEvent& event) {
    if (IsModifier(event.key())) return std::nullopt;
    KeyPress key;
    key.Key = KeyName(event.key());
    key.Ctrl = event.modifiers().testFlag(Qt::ControlModifier);
    key.Shift = event.modifiers().testFlag(Qt::ShiftModifier);
    key.Alt = event.modifiers().testFlag(Qt::AltModifier);
    return key;
}

ControlView::ControlView(Control& model, QWidget& widget, FormView& form)
    : model_(model), widget_(widget), form_(form) {
    widget.setObjectName(ToQt(model.FullName()));
    if (!model.TakesFocus()) widget.setFocusPolicy(Qt::NoFocus);
}

void ControlView::Sync() {
    QRect place = PixelRect(model_.Left, model_.Top, model_.Width, model_.Height);
    if (const std::optional<int> height = OwnHeight()) {
        // What it needs more is taken from above and below alike.
        const int more = *height - place.height();
        place.adjust(0, -more / 2, 0, more - more / 2);
    }
    if (widget_.geometry() != place) widget_.setGeometry(place);
    const bool shown = model_.IsShown();
    if (widget_.isHidden() == shown) widget_.setVisible(shown);
    widget_.setEnabled(model_.Enabled);
    if (model_.HasFont()) {
        QFont font = widget_.font();
        const int size = FontPixels(model_.FontSize);
        if (font.pixelSize() != size) {
            font.setPixelSize(size);
            widget_.setFont(font);
        }
    }
    const QString toolTip = ToolTipText(ToQt(model_.ToolTip));
    if (widget_.toolTip() != toolTip) widget_.setToolTip(toolTip);
    SyncContent();
}

void ControlView::Perform(const std::function<void()>& action) {
    if (form_.IsLive()) TheDesktop().Perform(action);
}

void ControlView::Watch(QWidget& widget) {
    std::erase_if(watched_, [](const QPointer<QWidget>& gone) { return gone.isNull(); });
    watched_.emplace_back(&widget);
    widget.installEventFilter(this);
}

void ControlView::StopListening() {
    for (const QPointer<QWidget>& widget : watched_)
        if (widget) widget->removeEventFilter(this);
}

bool ControlView::HasRightClick() const { return model_.MouseUp || model_.MouseDown; }

bool ControlView::ConsumesKey(const QKeyEvent& key) const {
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter || key.key() == Qt::Key_Escape;
}

bool ControlView::eventFilter(QObject* watched, QEvent* event) {
    if (!form_.IsLive()) return QObject::eventFilter(watched, event);
    switch (event->type()) {
        case QEvent::MouseButtonPress:
            if (MousePressed(static_cast<QMouseEvent*>(event)->button())) return true;
            break;
        case QEvent::ContextMenu:
            // The press of the button has said it already; the menu key has not.
            if (HasRightClick()) {
                if (static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard)
                    Perform([this] { model_.UserRightClick(); });
                return true;
            }
            break;
        case QEvent::KeyPress:
            if (KeyPressed(*static_cast<QKeyEvent*>(event))) return true;
            break;
        case QEvent::FocusIn: FocusTaken(static_cast<QFocusEvent*>(event)->reason()); break;
        default: break;
    }
    return QObject::eventFilter(watched, event);
}

bool ControlView::MousePressed(Qt::MouseButton button) {
    if (button == Qt::RightButton && HasRightClick()) {
        Perform([this] { model_.UserRightClick(); });
        return true;
    }
    if (button != Qt::LeftButton || !PassesClicks()) return false;
    Perform([this] { model_.UserClick(); });
    return true;
}

bool ControlView::KeyPressed(const QKeyEvent& event) {
    const auto key = KeyOf(event);
    if (!key) return false;
    // An access key is Qt's matter, and so is moving on to the next control.
    if (key->Alt || key->Key == "Tab") return false;
    const bool consumed = ConsumesKey(event);
    const bool had = FocusWidget() != nullptr && FocusWidget()->hasFocus();
    Perform([this, &key] { model_.UserKey(*key); });
    // A key that has moved the keyboard on is not meant for where it has gone.
    return consumed || (had && !FocusWidget()->hasFocus());
}

bool ControlView::EntersFor(Qt::FocusReason reason) const {
    return reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason &&
           reason != Qt::MenuBarFocusReason;
}

// The control is entered when the event at hand has been dealt with: entering it may bring up a
// message, which would swallow the other half of a click.
void ControlView::FocusTaken(Qt::FocusReason reason) {
    if (!EntersFor(reason) || model_.Owner().Focus() == &model_) return;
    QTimer::singleShot(0, &widget_, [this] {
        QWidget* const focused = FocusWidget();
        if (focused != nullptr && focused->hasFocus() && model_.Owner().Focus() != &model_) {
            Perform([this] { model_.UserEnter(); });
        }
    });
}

}  // namespace tav
