#include "desktop/main_window_view.h"

#include "desktop/desktop.h"
#include "desktop/pictures.h"
#include "desktop/pixels.h"
#include "desktop/text.h"
#include "forms/form_registry.h"
#include "forms/toolbar.h"

#include <QLayout>
#include <QMenuBar>
#include <QToolBar>

namespace tav {
namespace {

constexpr int kIconPixels = 22;

tav::Toolbar* ToolbarOf(const Form& form) {
    for (Control* const control : form.Controls()) {
        if (auto* const toolbar = dynamic_cast<tav::Toolbar*>(control)) return toolbar;
    }
    return nullptr;
}

}  // namespace

QWidget* MainWindowArea() {
    for (Form* const form : TheForms().Loaded()) {
        FormView* const view = form->IsMainWindow ? TheDesktop().ViewOf(*form) : nullptr;
        if (view != nullptr) return view->ChildArea();
    }
    return nullptr;
}

MainWindowView::MainWindowView(Form& form) : MainWindowView(form, new QMainWindow) {}

MainWindowView::MainWindowView(Form& form, QMainWindow* window)
    : FormView(form, window, new QWidget), window_(window), menus_(form, *window->menuBar()) {
    window->setCentralWidget(&Surface());
    window->setContextMenuPolicy(Qt::NoContextMenu);
    if (tav::Toolbar* const toolbar = ToolbarOf(form)) MakeToolbar(*toolbar);
    // The program's screens are scaled once, to the size that the window has when it opens.
    window->layout()->setSizeConstraint(QLayout::SetFixedSize);
}

void MainWindowView::MakeToolbar(tav::Toolbar& toolbar) {
    toolbar_ = &toolbar;
    auto* const bar = new QToolBar(window_);
    bar->setMovable(false);
    bar->setFloatable(false);
    bar->setIconSize({kIconPixels, kIconPixels});
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    for (const ToolbarButton& button : toolbar.Buttons) {
        auto* const shown = new QToolButton(bar);
        shown->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        shown->setText(ToQt(button.Caption));
        shown->setIcon(IconOf(button.Picture));
        shown->setToolTip(ToolTipText(ToQt(button.ToolTip)));
        shown->setAccessibleName(ToQt(button.ToolTip));
        shown->setCheckable(button.TwoState);
        shown->setFocusPolicy(Qt::TabFocus);
        const std::string key = button.Key;
        QObject::connect(shown, &QToolButton::clicked, [this, key] {
            TheDesktop().FinishTyping();
            Perform([this, &key] { toolbar_->UserClickButton(key); });
        });
        bar->addWidget(shown);
        buttons_.push_back(shown);
    }
    window_->addToolBar(bar);
}

void MainWindowView::SyncToolbar() {
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        const ToolbarButton& button = toolbar_->Buttons.at(i);
        buttons_[i]->setEnabled(button.Enabled);
        buttons_[i]->setChecked(button.Pressed);
    }
}

void MainWindowView::SyncWindow() {
    const Form& form = TheForm();
    const QSize client(Pixels(form.ClientWidth()), Pixels(form.ClientHeight()));
    if (Surface().minimumSize() != client) Surface().setFixedSize(client);
    window_->setWindowTitle(TitleText(ToQt(form.Caption)));
    window_->setEnabled(form.Enabled);
    SyncToolbar();
    menus_.Sync();
    if (window_->isVisible() != form.Visible()) window_->setVisible(form.Visible());
}

}  // namespace tav
