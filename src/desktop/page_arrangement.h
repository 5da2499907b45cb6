// Where the pages of a document stand in the pane in which they are looked at.
#pragma once

#include "reports/report_document.h"

#include <QRect>
#include <QSize>
#include <vector>

namespace tav {

struct PageZoom {
    ZoomMode Mode = ZoomMode::Percentage;
    int Percent = 100;  // in force in percentage mode; 100 is 96 pixels to the inch

    bool operator==(const PageZoom&) const = default;
};

struct PagePlace {
    int Page = 1;      // from 1
    QRect Place;       // of the paper, in pixels
    double Scale = 1;  // pixels to the twip
};

struct PageArrangement {
    QSize Size;  // of all with the margin around it, never smaller than the room
    std::vector<PagePlace> Pages;
};

inline constexpr int kThumbnailLabelHeight = 20;  // below each thumbnail

// The least and the greatest percentage in which pages are shown.
inline constexpr int kLeastPercent = 1;
inline constexpr int kGreatestPercent = 1600;

// The pages that are shown when the document is open at that page (from 1, within the document) in
// so much room: all of them as thumbnails, the pair to which it belongs, or it alone.
PageArrangement Arrange(const ReportDocument& document, int page, const PageZoom& zoom,
                        const QSize& room);

// The page to which one turns from a page, forwards (1) or backwards (-1); a pair turns as one. May
// lie outside of the document.
int PageBeside(int page, int direction, ZoomMode mode);

// The percentage at which a page is shown.
int PercentOf(const PagePlace& place);

}  // namespace tav
