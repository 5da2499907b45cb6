#include "reports/number_cell.h"

#include <algorithm>

namespace tav {
namespace {

constexpr std::string_view kDigits = "0123456789";

std::size_t EndOfDigits(std::string_view text, std::size_t from) {
    return std::min(text.find_first_not_of(kDigits, from), text.size());
}

}  // namespace

std::size_t WholePartOf(std::string_view text) {
    const std::size_t sign = text.starts_with('-') ? 1 : 0;
    const std::size_t end = EndOfDigits(text, sign);
    return end > sign ? end : 0;
}

std::string_view DecimalsOf(std::string_view text) {
    const std::size_t whole = WholePartOf(text);
    if (whole == text.size() || (text[whole] != '.' && text[whole] != ',')) return {};
    return text.substr(whole, EndOfDigits(text, whole + 1) - whole);
}

Twips NumberColumn::PointIn(Twips width) const {
    const Twips middle = (width - Before - Behind) / 2 + Before;
    return std::max(Before, std::min(middle, width - Behind - Trailing));
}

NumberColumn MeasureNumbers(const std::vector<std::string_view>& cells,
                            const std::function<Twips(std::string_view)>& widthOf) {
    NumberColumn column;
    std::string_view whole, rest;
    Twips decimals = 0;
    Twips all = 0;
    bool everyOneHasText = true;
    for (const std::string_view cell : cells) {
        const std::size_t length = WholePartOf(cell);
        if (length == 0) continue;
        const std::string_view behind = cell.substr(length);
        const Twips before = widthOf(cell.substr(0, length));
        if (before > column.Before) whole = cell.substr(0, length);
        if (widthOf(behind) > all) rest = behind;
        column.Before = std::max(column.Before, before);
        all = std::max(all, widthOf(behind));
        decimals = std::max(decimals, widthOf(DecimalsOf(cell)));
        everyOneHasText = everyOneHasText && behind.size() > DecimalsOf(cell).size();
    }
    column.Behind = everyOneHasText ? all : decimals;
    column.Trailing = all - column.Behind;
    column.Sample = std::string(whole) + std::string(rest);
    return column;
}

}  // namespace tav
