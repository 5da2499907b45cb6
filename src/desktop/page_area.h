// The surface on which the pages of a document are looked at: it scrolls, and asks for another page
// when the user turns to one. It turns no page itself.
#pragma once

#include "desktop/drawn_pages.h"
#include "desktop/page_arrangement.h"

#include <QAbstractScrollArea>
#include <functional>
#include <memory>
#include <optional>

namespace tav {

class PageArea : public QAbstractScrollArea {
  public:
    explicit PageArea(QWidget* parent);

    // Called with the page, from 1 and within the document, to which the user wants to turn.
    std::function<void(int)> Turn;
    // Called when other pages are shown, or the same in another size.
    std::function<void()> Shown;

    // Shows the document, null for none, open at that page. A zoom that the user has chosen with
    // the wheel or the keys holds until another document or another zoom is shown.
    void Show(std::shared_ptr<const ReportDocument> document, int page, const PageZoom& zoom);

    int PageCount() const { return document_ ? document_->PageCount() : 0; }
    int Page() const { return page_; }
    // The pages that stand side by side, or the one that the document is open at.
    int FirstShown() const;
    int LastShown() const;
    const ReportPage* OpenPage() const;  // null if there is none
    QString ZoomText() const;            // "75%", "Thumbnails"

    // What the user does; a page beyond the first or last is not asked for.
    void TurnTo(int page) const;
    void TurnBy(int direction);
    void ZoomBy(int steps);
    void ZoomAsSet();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    std::optional<int> Percent() const;  // of the page that it is open at
    const PageZoom& Zoom() const { return ownZoom_ ? *ownZoom_ : zoom_; }
    void Rearrange();
    void SetRanges(const QSize& room);
    void ScrollToPage();
    void SetOwnZoom(std::optional<PageZoom> zoom);
    bool ScrollByKey(const QKeyEvent& key);
    bool TurnByKey(const QKeyEvent& key);
    bool ZoomByKey(const QKeyEvent& key);
    void TurnByWheel(int turned);

    QPoint Origin() const;  // the point of the arrangement in the corner of the viewport
    const PagePlace* PlaceOf(int page) const;
    const PagePlace* PlaceUnder(const QPoint& point) const;
    void PaintAround(QPainter& painter, const PagePlace& place) const;

    std::shared_ptr<const ReportDocument> document_;
    int page_ = 1;
    PageZoom zoom_;                    // as it is set
    std::optional<PageZoom> ownZoom_;  // what the user has made of it
    PageArrangement arrangement_;
    DrawnPages drawn_;
    bool arriveAtFoot_ = false;  // the page asked for is entered from below
    int wheelTurned_ = 0;        // in eighths of a degree, since the last page turned or zoom
};

}  // namespace tav
