#include "desktop/drawn_pages.h"

#include "desktop/page_painter.h"

#include <algorithm>

namespace tav {
namespace {

constexpr qint64 kMostKept = 4'000'000;  // pixels of the glass, four bytes each

void DrawPaper(QPainter& painter, const ReportPage& page, const QSize& size, double scale) {
    painter.fillRect(QRect(QPoint(0, 0), size), Qt::white);
    painter.scale(scale, scale);
    PaintInk(painter, page);
}

QPixmap Drawn(const ReportPage& page, const PagePlace& place, const QSize& pixels, double ratio) {
    QPixmap pixmap(pixels);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::white);
    QPainter painter(&pixmap);
    DrawPaper(painter, page, place.Place.size(), place.Scale);
    return pixmap;
}

}  // namespace

void DrawnPages::Draw(QPainter& painter, const ReportPage& page, const PagePlace& place,
                      const QRect& part) {
    const double ratio = painter.device()->devicePixelRatioF();
    const QSize pixels = (QSizeF(place.Place.size()) * ratio).toSize();
    if (qint64(pixels.width()) * pixels.height() > kMostKept) {
        pages_.erase(place.Page);
        painter.save();
        painter.setClipRect(part.intersected(place.Place));
        painter.translate(place.Place.topLeft());
        DrawPaper(painter, page, place.Place.size(), place.Scale);
        painter.restore();
        return;
    }
    QPixmap& kept = pages_[place.Page];
    if (kept.size() != pixels) kept = Drawn(page, place, pixels, ratio);
    painter.drawPixmap(place.Place.topLeft(), kept);
}

void DrawnPages::KeepOnly(const PageArrangement& arrangement, const QRect& shown) {
    std::erase_if(pages_, [&](const auto& drawn) {
        return std::none_of(arrangement.Pages.begin(), arrangement.Pages.end(),
                            [&](const PagePlace& place) {
                                return place.Page == drawn.first && place.Place.intersects(shown);
                            });
    });
}

}  // namespace tav
