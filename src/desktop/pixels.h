// Layout units and pixels.
#pragma once

#include "core/number.h"

#include <QRect>
#include <cmath>

namespace tav {

inline constexpr int kUnitsPerPixel = 15;

// Whole pixels that a length in layout units comes to. Pixels are the display's logical ones: at
// double scale each is four of the glass.
inline int Pixels(Number units) {
    return static_cast<int>(std::lround(units.Value() / kUnitsPerPixel));
}

// The rectangle of a place in layout units. Two controls whose edges meet in units meet in pixels.
inline QRect PixelRect(Number left, Number top, Number width, Number height) {
    const int x = Pixels(left);
    const int y = Pixels(top);
    return {x, y, Pixels(left + width) - x, Pixels(top + height) - y};
}

// The size in pixels of letters of that many points, 72 to an inch of 96 pixels.
inline int FontPixels(Number points) {
    return static_cast<int>(std::lround(points.Value() * 96 / 72));
}

}  // namespace tav
