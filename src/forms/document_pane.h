// The pane in which a paged document is looked at.
#pragma once

#include "forms/control.h"

#include <memory>

namespace tav {

// A document as far as the pane has to know it. What its pages hold is between the one who makes it
// and the view that draws it.
class PagedDocument {
  public:
    virtual ~PagedDocument() = default;
    virtual int PageCount() const = 0;
};

enum class ZoomMode { Percentage = 0, Thumbnail = 1, TwoPages = 2, WholePage = 3, PageWidth = 4 };

class DocumentPane : public Control {
  public:
    using Control::Control;
    ControlKind Kind() const override { return ControlKind::DocumentPane; }

    tav::ZoomMode ZoomMode = tav::ZoomMode::Percentage;
    int Zoom = 100;  // percent, in force in percentage mode

    // The document on show, null if there is none, and the page at which it is open, from 1.
    std::shared_ptr<const PagedDocument> Document() const { return document_; }
    void SetDocument(std::shared_ptr<const PagedDocument> document);
    int PageCount() const { return document_ ? document_->PageCount() : 0; }
    int PreviewPage() const { return page_; }
    void SetPreviewPage(int page);  // the nearest page that there is

    void UserTurnTo(int page);

  private:
    std::shared_ptr<const PagedDocument> document_;
    int page_ = 1;
};

}  // namespace tav
