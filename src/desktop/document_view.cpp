#include "desktop/document_view.h"

#include "desktop/text.h"

#include <QVBoxLayout>

namespace tav {

DocumentView::DocumentView(DocumentPane& model, QWidget& parent, FormView& form)
    : DocumentView(model, new QWidget(&parent), form) {}

DocumentView::DocumentView(DocumentPane& model, QWidget* pane, FormView& form)
    : ControlView(model, *pane, form),
      model_(model),
      bar_(new PageBar(pane)),
      area_(new PageArea(pane)) {
    auto* const column = new QVBoxLayout(pane);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(bar_);
    column->addWidget(area_, 1);
    pane->setFocusProxy(area_);
    area_->setAccessibleName(QStringLiteral("Report preview"));
    area_->Turn = [this](int page) { Perform([this, page] { model_.UserTurnTo(page); }); };
    area_->Shown = [this] { ShowPages(); };
    TieBar();
    Watch(*bar_);
    Watch(*area_);
    Watch(*area_->viewport());
}

void DocumentView::TieBar() {
    bar_->First = [this] { area_->TurnTo(1); };
    bar_->Previous = [this] { area_->TurnBy(-1); };
    bar_->Next = [this] { area_->TurnBy(1); };
    bar_->Last = [this] { area_->TurnTo(area_->PageCount()); };
    bar_->ZoomOut = [this] { area_->ZoomBy(-1); };
    bar_->ZoomAsSet = [this] { area_->ZoomAsSet(); };
    bar_->ZoomIn = [this] { area_->ZoomBy(1); };
}

void DocumentView::SyncContent() {
    area_->Show(std::dynamic_pointer_cast<const ReportDocument>(model_.Document()),
                model_.PreviewPage(), {model_.ZoomMode, model_.Zoom});
}

// Those who can't see the page have it read.
void DocumentView::ShowPages() {
    const int first = area_->FirstShown();
    const int last = area_->LastShown();
    const int count = area_->PageCount();
    bar_->ShowPages(first, last, count, area_->ZoomText());
    QString words = PagesText(first, last, count);
    if (const ReportPage* const page = area_->OpenPage())
        words += QLatin1Char('\n') + ToQt(page->Text);
    area_->setAccessibleDescription(words);
}

}  // namespace tav
