#include "core/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <system_error>

namespace tav {
namespace {

char decimal_separator = '.';

constexpr int kSingleDigits = 7;
constexpr int kDoubleDigits = 15;

template <class Float>
std::string GeneralText(Float value, int digits) {
    std::array<char, 48> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                   std::chars_format::general, digits)
                         .ptr;
    std::string text(buffer.data(), end);
    for (char& c : text) {
        if (c == '.') c = decimal_separator;
        if (c == 'e') c = 'E';
    }
    return text == "-0" ? "0" : text;
}

std::string WithLeadingBlank(std::string text) {
    if (text.front() != '-') text.insert(text.begin(), ' ');
    return text;
}

// The significant decimal digits of a number: 0.d1d2d3... times ten to the power of Point.
struct DecimalDigits {
    bool Negative = false;
    std::string Digits;
    int Point = 0;
};

template <class Float>
DecimalDigits DigitsOf(Float value, int count) {
    std::array<char, 48> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                   std::chars_format::scientific, count - 1)
                         .ptr;
    const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    const std::size_t e = text.find('e');
    DecimalDigits result;
    result.Negative = value < 0;
    std::copy_if(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(e),
                 std::back_inserter(result.Digits), [](char c) { return c >= '0' && c <= '9'; });
    const char* exponent = text.data() + e + 1;
    if (*exponent == '+') ++exponent;
    std::from_chars(exponent, end, result.Point);
    ++result.Point;
    return result;
}

// Rounds the digits half away from zero behind the given place after the decimal point, and pads
// them so that digits stand for every place from the units to that one.
void RoundAt(DecimalDigits& number, int decimals) {
    if (number.Point < 1) {
        const int missing = 1 - number.Point;
        number.Digits.insert(0, static_cast<std::size_t>(missing), '0');
        number.Point = 1;
    }
    const int digits = number.Point + decimals;
    const auto kept = static_cast<std::size_t>(digits);
    if (number.Digits.size() <= kept) {
        number.Digits.append(kept - number.Digits.size(), '0');
        return;
    }
    const bool up = number.Digits[kept] >= '5';
    number.Digits.resize(kept);
    if (!up) return;
    std::size_t i = kept;
    while (i > 0 && number.Digits[i - 1] == '9')
        number.Digits[--i] = '0';
    if (i > 0) {
        ++number.Digits[i - 1];
    } else {
        number.Digits.insert(number.Digits.begin(), '1');
        ++number.Point;
    }
}

template <class Float>
std::string Fixed(Float value, int digits, int decimals) {
    if (decimals < 0 || decimals > 9) Raise(kInvalidProcedureCall);
    DecimalDigits number = DigitsOf(value, digits);
    RoundAt(number, decimals);
    std::string text = number.Digits;
    if (decimals > 0) {
        text.insert(static_cast<std::size_t>(number.Point), 1, decimal_separator);
    }
    return number.Negative ? "-" + text : text;
}

int DecimalsOf(std::string_view mask) {
    if (mask == "0") return 0;
    if (mask.size() < 3 || !mask.starts_with("0.") ||
        mask.find_first_not_of('0', 2) != std::string_view::npos) {
        Raise(kInvalidProcedureCall);
    }
    return static_cast<int>(mask.size()) - 2;
}

bool IsBlank(char c) { return c == ' ' || c == '\t'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::string_view WithoutBlanks(std::string_view text) {
    while (!text.empty() && IsBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

std::size_t CountDigits(std::string_view text) {
    const auto end = std::find_if_not(text.begin(), text.end(), IsDigit);
    return static_cast<std::size_t>(end - text.begin());
}

// The length of an exponent at the start of the text, 0 where there is none.
std::size_t ExponentLength(std::string_view text) {
    if (text.empty() || std::string_view("eEdD").find(text[0]) == std::string_view::npos) return 0;
    std::size_t length = 1;
    if (length < text.size() && (text[length] == '+' || text[length] == '-')) ++length;
    const std::size_t digits = CountDigits(text.substr(length));
    return digits == 0 ? 0 : length + digits;
}

// A short unsigned decimal without an exponent: fewer than 16 digits fit a 64-bit float exactly,
// and so does the power of ten that divides them, so that the quotient is the nearest value. Nearly
// every number of a file is one; the rest goes the long way.
std::optional<double> ShortDecimal(std::string_view text) {
    static constexpr std::array<double, 16> kPowers = {
        1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    if (text.empty() || text.size() > 15) return std::nullopt;
    std::int64_t digits = 0;
    std::size_t decimals = 0;
    bool point = false;
    for (const char c : text) {
        if (IsDigit(c)) {
            digits = digits * 10 + (c - '0');
            decimals += point ? 1 : 0;
        } else if (c == '.' && !point) {
            point = true;
        } else {
            return std::nullopt;
        }
    }
    if (text.size() == 1 && point) return std::nullopt;
    return static_cast<double>(digits) / kPowers[decimals];
}

// The power of ten just above an unsigned decimal that is not zero, such as 2 for 12.5e0. Its size
// is cut where it is beyond any number's.
int DecimalMagnitude(std::string_view plain) {
    constexpr int kFar = 1'000'000;
    const std::size_t e = std::min(plain.find('e'), plain.size());
    const std::size_t point = std::min(plain.find('.'), e);
    const std::size_t first = plain.find_first_of("123456789");
    const int place = first < point
                          ? static_cast<int>(std::min<std::size_t>(point - first, kFar))
                          : -static_cast<int>(std::min<std::size_t>(first - point - 1, kFar));
    if (e == plain.size()) return place;
    std::string_view text = plain.substr(e + 1);
    const bool negative = text.front() == '-';
    if (negative || text.front() == '+') text.remove_prefix(1);
    int exponent = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), exponent);
    if (result.ec != std::errc() || exponent > kFar) exponent = 3 * kFar;
    return place + (negative ? -exponent : exponent);
}

// The number of a text that is an unsigned number in every form that is taken, nothing otherwise.
std::optional<double> UnsignedDecimal(std::string_view text) {
    const std::size_t whole = CountDigits(text);
    std::size_t length = whole;
    std::size_t fraction = 0;
    const bool point =
        length < text.size() && (text[length] == '.' || text[length] == decimal_separator);
    if (point) {
        fraction = CountDigits(text.substr(length + 1));
        length += 1 + fraction;
    }
    if (whole + fraction == 0) return std::nullopt;
    const std::size_t exponent = ExponentLength(text.substr(length));
    if (length + exponent != text.size()) return std::nullopt;

    std::string plain(text);
    if (point) plain[whole] = '.';
    if (exponent > 0) plain[length] = 'e';
    double value = 0;
    const auto result = std::from_chars(plain.data(), plain.data() + plain.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        if (DecimalMagnitude(plain) > 0) Raise(kOverflow);
        return 0.0;  // closer to zero than any 64-bit number
    }
    return value;
}

std::optional<double> ParseNumber(std::string_view text) {
    text = WithoutBlanks(text);
    const bool negative = !text.empty() && text.front() == '-';
    if (negative || (!text.empty() && text.front() == '+')) text.remove_prefix(1);
    std::optional<double> value = ShortDecimal(text);
    if (!value) value = UnsignedDecimal(text);
    if (value && negative) value = -*value;
    return value;
}

bool EqualInAnyCase(std::string_view text, std::string_view lower) {
    return std::equal(text.begin(), text.end(), lower.begin(), lower.end(),
                      [](char a, char b) { return (a >= 'A' && a <= 'Z' ? a + 32 : a) == b; });
}

}  // namespace

char DecimalSeparator() { return decimal_separator; }
void SetDecimalSeparator(char separator) { decimal_separator = separator; }

std::string NumberText(Single value) { return GeneralText(value.Value(), kSingleDigits); }
std::string NumberText(double value) { return GeneralText(value, kDoubleDigits); }
std::string NumberText(int value) { return std::to_string(value); }

std::string SignedText(Single value) { return WithLeadingBlank(NumberText(value)); }
std::string SignedText(int value) { return WithLeadingBlank(NumberText(value)); }

std::string PrintedText(Single value) { return SignedText(value) + ' '; }
std::string PrintedText(int value) { return SignedText(value) + ' '; }

std::string FixedText(Single value, int decimals) {
    return Fixed(value.Value(), kSingleDigits, decimals);
}
std::string FixedText(double value, int decimals) { return Fixed(value, kDoubleDigits, decimals); }

std::string FormatNumber(Single value, std::string_view mask) {
    return FixedText(value, DecimalsOf(mask));
}
std::string FormatNumber(double value, std::string_view mask) {
    return FixedText(value, DecimalsOf(mask));
}

bool IsNumeric(std::string_view text) {
    try {
        return ParseNumber(text).has_value();
    } catch (const RuntimeError&) {
        return false;
    }
}

double TextToNumber(std::string_view text) {
    const std::optional<double> value = ParseNumber(text);
    if (!value) Raise(kTypeMismatch);
    return *value;
}

Single TextToSingle(std::string_view text) { return TextToNumber(text); }
std::int16_t TextToInteger(std::string_view text) { return ToInteger(TextToNumber(text)); }
std::uint8_t TextToByte(std::string_view text) { return ToByte(TextToNumber(text)); }

bool TextToBoolean(std::string_view text) {
    if (EqualInAnyCase(text, "true")) return true;
    if (EqualInAnyCase(text, "false")) return false;
    return TextToNumber(text) != 0;
}

std::string_view BooleanText(bool value) { return value ? "True" : "False"; }

}  // namespace tav
