// The main window: menu, toolbar, and the pane in which a screen stands.
#pragma once

#include "desktop/form_view.h"
#include "desktop/menus.h"

#include <QMainWindow>
#include <QToolButton>
#include <memory>
#include <vector>

namespace tav {

class Toolbar;

class MainWindowView : public FormView {
  public:
    explicit MainWindowView(Form& form);

    QWidget* ChildArea() override { return window_->centralWidget(); }

  protected:
    void SyncWindow() override;

  private:
    MainWindowView(Form& form, QMainWindow* window);
    void MakeToolbar(tav::Toolbar& toolbar);
    void SyncToolbar();

    QMainWindow* window_;
    tav::Toolbar* toolbar_ = nullptr;
    std::vector<QToolButton*> buttons_;
    MenuBar menus_;
};

// The pane of the main window on show; null if there is none.
QWidget* MainWindowArea();

}  // namespace tav
