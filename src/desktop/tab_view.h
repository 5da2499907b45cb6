// The view of pages with tabs.
#pragma once

#include "desktop/control_view.h"
#include "forms/tab_control.h"

#include <QTabBar>

namespace tav {

// A pane with a row of tabs along its top. The controls of all pages stand on the pane; only those
// of the page on show are seen.
class TabView : public ControlView {
  public:
    TabView(TabControl& model, QWidget& parent, FormView& form);

    QWidget* FocusWidget() override { return &bar_; }

  protected:
    void SyncContent() override;

  private:
    class Pane;
    TabView(TabControl& model, Pane* pane, FormView& form);

    TabControl& model_;
    QTabBar& bar_;
};

}  // namespace tav
