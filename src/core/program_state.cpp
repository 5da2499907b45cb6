#include "core/program_state.h"

#include "core/number_text.h"

#include <algorithm>
#include <cstdio>

namespace tav {
namespace {

using Text = std::optional<std::string>;

Text TextOf(const std::string& value, std::size_t) { return value; }
Text TextOf(bool value, std::size_t) { return std::string(BooleanText(value)); }
Text TextOf(int value, std::size_t) { return NumberText(value); }
Text TextOf(Single value, std::size_t) { return NumberText(value); }

Text TextOf(const SummaryNames& value, std::size_t index) {
    return index < value.size() ? Text(value[index]) : std::nullopt;
}

Text TextOf(DateTime value, std::size_t) {
    const auto day = std::chrono::floor<std::chrono::days>(value);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss time(value - day);
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02u-%02u %02d:%02d:%02d", int{date.year()},
                  unsigned{date.month()}, unsigned{date.day()},
                  static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
                  static_cast<int>(time.seconds().count()));
    return text.data();
}

}  // namespace

ProgramState& TheProgram() {
    static ProgramState state;
    return state;
}

Text ProgramValue(std::string_view name, std::size_t index) {
    const ProgramState& state = TheProgram();
    // One line for each field: its name, and how to show it.
#define FIELD(type, field, meaning) \
    if (name == #field) return TextOf(state.field, index);
#include "core/program_fields.def"
    return std::nullopt;
}

bool IsScreen(std::string_view key) {
    return std::find(kScreenKeys.begin(), kScreenKeys.end(), key) != kScreenKeys.end();
}

}  // namespace tav
