// The preview of a document: its pages, and a bar to turn them.
#pragma once

#include "desktop/control_view.h"
#include "desktop/page_area.h"
#include "desktop/page_bar.h"
#include "forms/document_pane.h"

namespace tav {

// The zoom that the user gives it with the wheel is the view's own and lasts until another document
// is shown; which page is on show is the pane's.
class DocumentView : public ControlView {
  public:
    DocumentView(DocumentPane& model, QWidget& parent, FormView& form);

    QWidget* FocusWidget() override { return area_; }

  private:
    DocumentView(DocumentPane& model, QWidget* pane, FormView& form);

    void SyncContent() override;
    void TieBar();
    void ShowPages();

    DocumentPane& model_;
    PageBar* bar_;
    PageArea* area_;
};

}  // namespace tav
