#include "desktop/page_arrangement.h"

#include <algorithm>
#include <cmath>

namespace tav {
namespace {

constexpr int kMargin = 16;
constexpr int kGap = 16;
constexpr int kThumbnail = 150;  // the longer side of a page
constexpr double kTwipsPerPixel = 15;
constexpr double kLeastScale = kLeastPercent / kTwipsPerPixel / 100;

const ReportPage& PageOf(const ReportDocument& document, int page) {
    return document.Pages.at(static_cast<std::size_t>(page - 1));
}

QSize Scaled(const ReportPage& page, double scale) {
    return {std::max(1, static_cast<int>(std::lround(page.Width * scale))),
            std::max(1, static_cast<int>(std::lround(page.Height * scale)))};
}

// Pages side by side, in the middle of the room if it is wider or higher than they are.
PageArrangement SideBySide(const ReportDocument& document, const std::vector<int>& pages,
                           double scale, int slots, const QSize& room) {
    std::vector<QSize> sizes;
    int width = (slots - 1) * kGap;
    int height = 0;
    for (const int page : pages) {
        sizes.push_back(Scaled(PageOf(document, page), scale));
        width += sizes.back().width();
        height = std::max(height, sizes.back().height());
    }
    // A last page without a neighbour stands on the left, as it would with one.
    width += (slots - static_cast<int>(pages.size())) * sizes.back().width();
    PageArrangement arrangement;
    arrangement.Size = QSize(width + 2 * kMargin, height + 2 * kMargin).expandedTo(room);
    int x = (arrangement.Size.width() - width) / 2;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        const int y = (arrangement.Size.height() - sizes[i].height()) / 2;
        arrangement.Pages.push_back({pages[i], QRect(QPoint(x, y), sizes[i]), scale});
        x += sizes[i].width() + kGap;
    }
    return arrangement;
}

PageArrangement Thumbnails(const ReportDocument& document, const QSize& room) {
    constexpr int step = kThumbnail + kGap;
    const int columns = std::max(1, (room.width() - 2 * kMargin + kGap) / step);
    const int rows = (document.PageCount() + columns - 1) / columns;
    PageArrangement arrangement;
    arrangement.Size = QSize(std::min(columns, document.PageCount()) * step - kGap + 2 * kMargin,
                             rows * (step + kThumbnailLabelHeight) - kGap + 2 * kMargin)
                           .expandedTo(room);
    for (int page = 1; page <= document.PageCount(); ++page) {
        const ReportPage& content = PageOf(document, page);
        const double scale = kThumbnail / std::max(content.Width, content.Height);
        const QSize size = Scaled(content, scale);
        const int x = kMargin + (page - 1) % columns * step + (kThumbnail - size.width()) / 2;
        const int y = kMargin + (page - 1) / columns * (step + kThumbnailLabelHeight) +
                      (kThumbnail - size.height());
        arrangement.Pages.push_back({page, QRect(QPoint(x, y), size), scale});
    }
    return arrangement;
}

// The scale at which so much paper, with so many gaps, fits.
double ScaleToFit(Twips width, Twips height, int gaps, const QSize& room) {
    const double across = (room.width() - 2 * kMargin - gaps * kGap) / width;
    const double down = (room.height() - 2 * kMargin) / height;
    return std::max(kLeastScale, std::min(across, down));
}

PageArrangement Pair(const ReportDocument& document, int page, const QSize& room) {
    const int left = page % 2 == 0 ? page - 1 : page;
    const bool alone = left == document.PageCount();
    const ReportPage& first = PageOf(document, left);
    const ReportPage& second = PageOf(document, alone ? left : left + 1);
    const double scale =
        ScaleToFit(first.Width + second.Width, std::max(first.Height, second.Height), 1, room);
    std::vector<int> pages{left};
    if (!alone) pages.push_back(left + 1);
    return SideBySide(document, pages, scale, 2, room);
}

double ScaleOf(const ReportPage& page, const PageZoom& zoom, const QSize& room) {
    switch (zoom.Mode) {
        case ZoomMode::WholePage: return ScaleToFit(page.Width, page.Height, 0, room);
        case ZoomMode::PageWidth:
            return std::max(kLeastScale, (room.width() - 2 * kMargin) / page.Width);
        default:
            return std::clamp(zoom.Percent, kLeastPercent, kGreatestPercent) / 100.0 /
                   kTwipsPerPixel;
    }
}

}  // namespace

PageArrangement Arrange(const ReportDocument& document, int page, const PageZoom& zoom,
                        const QSize& room) {
    if (document.Pages.empty()) return {room, {}};
    if (zoom.Mode == ZoomMode::Thumbnail) return Thumbnails(document, room);
    if (zoom.Mode == ZoomMode::TwoPages) return Pair(document, page, room);
    const double scale = ScaleOf(PageOf(document, page), zoom, room);
    return SideBySide(document, {page}, scale, 1, room);
}

int PageBeside(int page, int direction, ZoomMode mode) {
    if (mode != ZoomMode::TwoPages) return page + direction;
    const int left = page % 2 == 0 ? page - 1 : page;
    return left + 2 * direction;
}

int PercentOf(const PagePlace& place) {
    return static_cast<int>(std::lround(place.Scale * kTwipsPerPixel * 100));
}

}  // namespace tav
