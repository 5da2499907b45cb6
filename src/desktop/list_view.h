// The view of a list, with one entry chosen or several marked.
#pragma once

#include "desktop/control_view.h"
#include "forms/list_box.h"

#include <QListWidget>

namespace tav {

class ListView : public ControlView {
  public:
    ListView(ListBox& model, QWidget& parent, FormView& form);

    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    void SyncContent() override;
    bool EntersFor(Qt::FocusReason reason) const override;

  private:
    ListView(ListBox& model, QListWidget* list, FormView& form);
    void SelectionChanged();
    void TakeMarks();
    void TakeChoice();
    int EntryUnder(const QPoint& place) const;

    ListBox& model_;
    QListWidget& list_;
    std::vector<std::string> items_;
    int shownIndex_ = -1;
};

}  // namespace tav
