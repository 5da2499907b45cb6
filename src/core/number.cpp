#include "core/number.h"

#include <limits>

namespace tav {

double RoundHalfEven(double value) {
    const double down = std::floor(value);
    const double rest = value - down;
    if (rest < 0.5) return down;
    if (rest > 0.5) return down + 1;
    return std::fmod(down, 2) == 0 ? down : down + 1;
}

namespace {

template <class T>
T Whole(double value) {
    const double rounded = RoundHalfEven(value);
    if (!(rounded >= std::numeric_limits<T>::min() && rounded <= std::numeric_limits<T>::max()))
        Raise(kOverflow);
    return static_cast<T>(rounded);
}

}  // namespace

std::int16_t ToInteger(double value) { return Whole<std::int16_t>(value); }
std::uint8_t ToByte(double value) { return Whole<std::uint8_t>(value); }

}  // namespace tav
