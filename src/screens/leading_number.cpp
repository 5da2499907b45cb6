#include "screens/leading_number.h"

#include "core/number_text.h"
#include "core/runtime_error.h"

#include <optional>

namespace tav {
namespace {

constexpr std::size_t kLongestText = 255;

std::string_view Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace

std::string LeadingNumberText(std::string_view text) {
    const std::string_view whole = Trimmed(text);
    if (whole.size() > kLongestText) Raise(kOverflow);
    std::optional<std::string_view> beforePercent;
    bool pointSeen = false;
    for (std::size_t i = 0; i < whole.size(); ++i) {
        const std::string_view before = whole.substr(0, i);
        const bool secondPoint = whole[i] == '.' && pointSeen;
        if (whole[i] == ' ' || secondPoint) return std::string(Trimmed(before));
        if (whole[i] == '%') beforePercent = before;  // a blank behind it still decides
        if (whole[i] == '.') pointSeen = true;
    }
    return std::string(beforePercent.value_or(whole));
}

double LeadingNumber(std::string_view text) { return TextToNumber(LeadingNumberText(text)); }

}  // namespace tav
