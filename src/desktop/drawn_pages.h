// Pages as they have been drawn for the screen, kept for as long as they are on show.
#pragma once

#include "desktop/page_arrangement.h"

#include <QPainter>
#include <QPixmap>
#include <map>

namespace tav {

class DrawnPages {
  public:
    // Draws the paper with its page where it stands; part is all of the picture that is wanted. A
    // page is drawn anew when its size or the sharpness of the screen has changed. One that is too
    // big to be kept is drawn every time, but no more of it than is wanted.
    void Draw(QPainter& painter, const ReportPage& page, const PagePlace& place, const QRect& part);

    // Forgets the pages that don't reach into the part of the arrangement that is on show.
    void KeepOnly(const PageArrangement& arrangement, const QRect& shown);
    void Clear() { pages_.clear(); }
    std::size_t Kept() const { return pages_.size(); }

  private:
    std::map<int, QPixmap> pages_;
};

}  // namespace tav
