#include "feeds/field_value.h"

#include "core/number_text.h"

#include <array>
#include <charconv>

namespace tav {

std::string ToText(const FieldValue& value) {
    if (IsNull(value)) Raise(kTypeMismatch);
    return ShownText(value);
}

Single ToSingle(const FieldValue& value) {
    if (const auto* const number = std::get_if<double>(&value)) return *number;
    if (const auto* const text = std::get_if<std::string>(&value)) return TextToSingle(*text);
    if (const auto* const flag = std::get_if<bool>(&value)) return *flag ? -1 : 0;
    Raise(kTypeMismatch);
}

bool ToBoolean(const FieldValue& value) {
    if (const auto* const flag = std::get_if<bool>(&value)) return *flag;
    if (const auto* const number = std::get_if<double>(&value)) return *number != 0;
    if (const auto* const text = std::get_if<std::string>(&value)) return TextToBoolean(*text);
    Raise(kTypeMismatch);
}

std::string ShownText(const FieldValue& value) {
    if (const auto* const text = std::get_if<std::string>(&value)) return *text;
    if (const auto* const number = std::get_if<double>(&value)) return NumberText(*number);
    if (const auto* const flag = std::get_if<bool>(&value)) return std::string(BooleanText(*flag));
    return {};
}

FieldValue StoredNumber(Single value) {
    std::array<char, 32> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value.Value()).ptr;
    double number = 0;
    std::from_chars(buffer.data(), end, number);
    return static_cast<float>(number) == value.Value() ? number : double{value.Value()};
}

}  // namespace tav
