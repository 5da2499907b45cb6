#include "desktop/page_area.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>
#include <cmath>
#include <utility>

namespace tav {
namespace {

constexpr int kScrollStep = 40;  // pixels of an arrow key or a third of a notch of the wheel
constexpr double kZoomStep = 1.25;
constexpr int kLeastOwnPercent = 10;
constexpr int kGreatestOwnPercent = 800;
constexpr int kFocusFrame = 2;

QColor Surround(const QPalette& palette) {
    const QColor window = palette.color(QPalette::Window);
    return window.lightness() > 127 ? window.darker(112) : window.darker(140);
}

void PaintFrame(QPainter& painter, const QRect& inside, int thickness, const QColor& colour) {
    const QRegion frame =
        QRegion(inside.adjusted(-thickness, -thickness, thickness, thickness)) - QRegion(inside);
    for (const QRect& side : frame)
        painter.fillRect(side, colour);
}

}  // namespace

PageArea::PageArea(QWidget* parent) : QAbstractScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    verticalScrollBar()->setSingleStep(kScrollStep);
    horizontalScrollBar()->setSingleStep(kScrollStep);
}

void PageArea::Show(std::shared_ptr<const ReportDocument> document, int page,
                    const PageZoom& zoom) {
    const bool another = document != document_;
    const bool zoomed = zoom != zoom_;
    const bool turned = another || page != page_;
    if (!turned && !zoomed) return;
    document_ = std::move(document);
    page_ = std::clamp(page, 1, std::max(PageCount(), 1));
    zoom_ = zoom;
    if (another || zoomed) ownZoom_.reset();
    if (another) drawn_.Clear();
    Rearrange();
    if (turned) ScrollToPage();
}

const PagePlace* PageArea::PlaceOf(int page) const {
    const auto found = std::find_if(arrangement_.Pages.begin(), arrangement_.Pages.end(),
                                    [page](const PagePlace& place) { return place.Page == page; });
    return found == arrangement_.Pages.end() ? nullptr : &*found;
}

const PagePlace* PageArea::PlaceUnder(const QPoint& point) const {
    const auto found = std::find_if(
        arrangement_.Pages.begin(), arrangement_.Pages.end(),
        [&](const PagePlace& place) { return place.Place.contains(point + Origin()); });
    return found == arrangement_.Pages.end() ? nullptr : &*found;
}

int PageArea::FirstShown() const {
    const bool pair = Zoom().Mode == ZoomMode::TwoPages && !arrangement_.Pages.empty();
    return pair ? arrangement_.Pages.front().Page : page_;
}

int PageArea::LastShown() const {
    const bool pair = Zoom().Mode == ZoomMode::TwoPages && !arrangement_.Pages.empty();
    return pair ? arrangement_.Pages.back().Page : page_;
}

std::optional<int> PageArea::Percent() const {
    const PagePlace* const place = PlaceOf(page_);
    if (place == nullptr) return std::nullopt;
    return PercentOf(*place);
}

QString PageArea::ZoomText() const {
    if (Zoom().Mode == ZoomMode::Thumbnail) return QStringLiteral("Thumbnails");
    const std::optional<int> percent = Percent();
    return percent ? QStringLiteral("%1%").arg(*percent) : QString();
}

const ReportPage* PageArea::OpenPage() const {
    if (PageCount() == 0) return nullptr;
    return &document_->Pages[static_cast<std::size_t>(page_ - 1)];
}

QPoint PageArea::Origin() const {
    return {horizontalScrollBar()->value(), verticalScrollBar()->value()};
}

// The pages decide whether there are scroll bars, and these take their room from the pages.
void PageArea::Rearrange() {
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    const QSize whole = maximumViewportSize();
    QSize room = whole;
    arrangement_ = {room, {}};
    for (int pass = 0; document_ && pass < 3; ++pass) {
        arrangement_ = Arrange(*document_, page_, Zoom(), room);
        if (arrangement_.Size.height() > room.height()) room.setWidth(whole.width() - bar);
        if (arrangement_.Size.width() > room.width()) room.setHeight(whole.height() - bar);
    }
    SetRanges(room);
    drawn_.KeepOnly(arrangement_, QRect(Origin(), room));
    viewport()->update();
    if (Shown) Shown();
}

void PageArea::SetRanges(const QSize& room) {
    const QSize beyond = arrangement_.Size - room;
    verticalScrollBar()->setPageStep(room.height());
    verticalScrollBar()->setRange(0, std::max(0, beyond.height()));
    horizontalScrollBar()->setPageStep(room.width());
    horizontalScrollBar()->setRange(0, std::max(0, beyond.width()));
}

void PageArea::ScrollToPage() {
    QScrollBar& bar = *verticalScrollBar();
    const PagePlace* const place = PlaceOf(page_);
    if (Zoom().Mode != ZoomMode::Thumbnail || place == nullptr) {
        bar.setValue(arriveAtFoot_ ? bar.maximum() : bar.minimum());
        return;
    }
    const QRect wanted = place->Place.adjusted(0, -kFocusFrame, 0, kThumbnailLabelHeight);
    if (wanted.top() < bar.value()) bar.setValue(wanted.top());
    if (wanted.bottom() > bar.value() + bar.pageStep()) {
        bar.setValue(wanted.bottom() - bar.pageStep());
    }
}

void PageArea::TurnTo(int page) const {
    if (page >= 1 && page <= PageCount() && page != page_ && Turn) Turn(page);
}

void PageArea::TurnBy(int direction) { TurnTo(PageBeside(page_, direction, Zoom().Mode)); }

// What is in the middle stays there.
void PageArea::SetOwnZoom(std::optional<PageZoom> zoom) {
    const auto middle = [](const QScrollBar& bar) { return bar.value() + bar.pageStep() / 2.0; };
    const double x = middle(*horizontalScrollBar()) / std::max(arrangement_.Size.width(), 1);
    const double y = middle(*verticalScrollBar()) / std::max(arrangement_.Size.height(), 1);
    ownZoom_ = zoom;
    Rearrange();
    const auto centre = [](QScrollBar& bar, double at) {
        bar.setValue(static_cast<int>(std::lround(at - bar.pageStep() / 2.0)));
    };
    centre(*horizontalScrollBar(), x * arrangement_.Size.width());
    centre(*verticalScrollBar(), y * arrangement_.Size.height());
}

void PageArea::ZoomBy(int steps) {
    if (steps == 0 || !Percent()) return;
    if (Zoom().Mode == ZoomMode::Thumbnail) {
        if (steps > 0) SetOwnZoom(PageZoom{ZoomMode::WholePage, 100});
        return;
    }
    const double wanted = *Percent() * std::pow(kZoomStep, steps);
    const int percent = static_cast<int>(
        std::lround(std::clamp<double>(wanted, kLeastOwnPercent, kGreatestOwnPercent)));
    SetOwnZoom(PageZoom{ZoomMode::Percentage, percent});
}

void PageArea::ZoomAsSet() { SetOwnZoom(std::nullopt); }

// Thumbnails flow anew; the one of the page stays in sight.
void PageArea::resizeEvent(QResizeEvent*) {
    Rearrange();
    if (Zoom().Mode != ZoomMode::Thumbnail) return;
    verticalScrollBar()->setValue(0);
    ScrollToPage();
}

void PageArea::focusInEvent(QFocusEvent*) { viewport()->update(); }
void PageArea::focusOutEvent(QFocusEvent*) { viewport()->update(); }

void PageArea::changeEvent(QEvent* event) {
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::StyleChange) Rearrange();
}

void PageArea::PaintAround(QPainter& painter, const PagePlace& place) const {
    const bool thumbnail = Zoom().Mode == ZoomMode::Thumbnail;
    if (thumbnail && place.Page == page_) {
        PaintFrame(painter, place.Place, 3, palette().color(QPalette::Highlight));
    } else {
        PaintFrame(painter, place.Place, 1, QColor(0, 0, 0, 70));
    }
    if (!thumbnail) return;
    painter.setPen(palette().color(QPalette::WindowText));
    const QRect label(place.Place.left(), place.Place.bottom() + 1, place.Place.width(),
                      kThumbnailLabelHeight);
    painter.drawText(label, Qt::AlignHCenter | Qt::AlignBottom, QString::number(place.Page));
}

void PageArea::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    painter.fillRect(event->rect(), Surround(palette()));
    const QRect shown = viewport()->rect().translated(Origin());
    const QRect part = event->rect().translated(Origin());
    painter.translate(-Origin());
    drawn_.KeepOnly(arrangement_, shown);
    for (const PagePlace& place : arrangement_.Pages) {
        const QRect whole = place.Place.adjusted(-3, -3, 3, kThumbnailLabelHeight);
        if (!whole.intersects(part)) continue;
        const auto index = static_cast<std::size_t>(place.Page - 1);
        PaintAround(painter, place);
        drawn_.Draw(painter, document_->Pages[index], place, part);
    }
    painter.translate(Origin());
    if (!hasFocus()) return;
    const QRect inside =
        viewport()->rect().adjusted(kFocusFrame, kFocusFrame, -kFocusFrame, -kFocusFrame);
    PaintFrame(painter, inside, kFocusFrame, palette().color(QPalette::Highlight));
}

}  // namespace tav
