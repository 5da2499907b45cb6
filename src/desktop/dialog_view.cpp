#include "desktop/dialog_view.h"

#include "desktop/desktop.h"
#include "desktop/pixels.h"
#include "desktop/text.h"

#include <QGuiApplication>
#include <QResizeEvent>
#include <QScreen>

namespace tav {
namespace {

// Over the window that is in front: a modal one belongs to it.
QWidget* MakeWindow(const Form& form) {
    QWidget* const under = TheDesktop().FrontWindow();
    Qt::WindowFlags flags = under == nullptr ? Qt::Window : Qt::Dialog;
    flags |= Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint;
    if (form.HasCloseBox) flags |= Qt::WindowCloseButtonHint;
    if (form.Sizable) flags |= Qt::WindowMaximizeButtonHint;
    auto* const window = new QWidget(under, flags);
    window->setWindowModality(form.IsModal() ? Qt::ApplicationModal : Qt::NonModal);
    return window;
}

}  // namespace

DialogView::DialogView(Form& form) : DialogView(form, MakeWindow(form)) {}

DialogView::DialogView(Form& form, QWidget* window) : FormView(form, window, window) {
    const QSize size(Pixels(form.ClientWidth()), Pixels(form.ClientHeight()));
    if (form.Sizable) {
        window->resize(size);
    } else {
        window->setFixedSize(size);
    }
    PlaceOnScreen();
}

// Where the form says, and in the middle of what it stands over where it says nothing.
void DialogView::PlaceOnScreen() {
    const Form& form = TheForm();
    QPoint corner(Pixels(form.Left), Pixels(form.Top));
    if (form.Left == 0 && form.Top == 0) {
        const QWidget* const under = Pane().parentWidget();
        const QRect around = under == nullptr ? QGuiApplication::primaryScreen()->geometry()
                                              : under->window()->frameGeometry();
        corner = around.center() - Pane().rect().center();
    }
    Pane().move(corner);
}

void DialogView::SyncWindow() {
    const Form& form = TheForm();
    Pane().setWindowTitle(ToQt(form.Caption));
    Pane().setEnabled(form.Enabled);
    if (Pane().isVisible() != form.Visible()) Pane().setVisible(form.Visible());
}

bool DialogView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &Pane() && event->type() == QEvent::Resize && IsLive() && TheForm().Sizable &&
        TheForm().Visible()) {
        const QSize size = static_cast<QResizeEvent*>(event)->size();
        Form& form = TheForm();
        Perform([&form, size] {
            form.UserResize(size.width() * kUnitsPerPixel + form.FrameWidth,
                            size.height() * kUnitsPerPixel + form.FrameHeight);
        });
    }
    return FormView::eventFilter(watched, event);
}

}  // namespace tav
