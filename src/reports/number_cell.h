// Table cells that begin with a number, and how the numbers of a column stand under each other.
#pragma once

#include "reports/times_metrics.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tav {

// The length of its sign and the digits before the decimal point; 0 for a text that begins with no
// number.
std::size_t WholePartOf(std::string_view text);

// The decimals behind that and their separator, without what follows the number.
std::string_view DecimalsOf(std::string_view text);

// What the numbers of a column take on both sides of the decimal point.
struct NumberColumn {
    Twips Before = 0;
    Twips Behind = 0;    // decimals, and the text behind them where every number has one
    Twips Trailing = 0;  // what the text behind some of the numbers takes beyond that
    // The texts that these were measured on, one after the other.
    std::string Sample;

    Twips Least() const { return Before + Behind + Trailing; }
    // The width in which the numbers stand in the middle although some have a text behind them.
    Twips Centred() const { return Before + Behind + 2 * Trailing; }
    // Where the decimal point stands in that width, or in what there is of it.
    Twips PointIn(Twips width) const;
};

// Measures the cells of a column that are numbers.
NumberColumn MeasureNumbers(const std::vector<std::string_view>& cells,
                            const std::function<Twips(std::string_view)>& widthOf);

}  // namespace tav
