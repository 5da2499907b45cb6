#include "desktop/child_view.h"

#include "desktop/pixels.h"

namespace tav {
namespace {

QWidget* PaneIn(QWidget& area) {
    auto* const pane = new QWidget(&area);
    pane->setAutoFillBackground(true);
    return pane;
}

}  // namespace

ChildView::ChildView(Form& form, QWidget& area) : ChildView(form, PaneIn(area)) {}

ChildView::ChildView(Form& form, QWidget* pane) : FormView(form, pane, pane) {}

void ChildView::SyncWindow() {
    const Form& form = TheForm();
    Pane().setGeometry(PixelRect(form.Left, form.Top, form.Width, form.Height));
    Pane().setEnabled(form.Enabled);
    Pane().setVisible(form.Visible());
}

}  // namespace tav
