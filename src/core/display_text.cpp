#include "core/display_text.h"

#include <array>
#include <cstdint>

namespace tav {
namespace {

// The characters of Windows-1252 from 0x80 to 0x9F; its five unused places stand for themselves.
constexpr std::array<char16_t, 32> kWindows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

// The length of the valid UTF-8 sequence at the start of the bytes, 0 where there is none.
std::size_t SequenceLength(std::string_view bytes) {
    const auto at = [&](std::size_t i) { return static_cast<std::uint8_t>(bytes[i]); };
    const std::uint8_t first = at(0);
    if (first < 0x80) return 1;
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || bytes.size() < length) return 0;
    for (std::size_t i = 1; i < length; ++i) {
        if ((at(i) & 0xC0) != 0x80) return 0;
    }
    // No overlong forms, no surrogates, nothing beyond the last character.
    const bool bad = (first == 0xE0 && at(1) < 0xA0) || (first == 0xED && at(1) > 0x9F) ||
                     (first == 0xF0 && at(1) < 0x90) || (first == 0xF4 && at(1) > 0x8F);
    return bad ? 0 : length;
}

void AppendUtf8(std::string& text, char16_t character) {
    if (character < 0x800) {
        text += static_cast<char>(0xC0 | (character >> 6));
    } else {
        text += static_cast<char>(0xE0 | (character >> 12));
        text += static_cast<char>(0x80 | ((character >> 6) & 0x3F));
    }
    text += static_cast<char>(0x80 | (character & 0x3F));
}

}  // namespace

std::string DisplayText(std::string_view bytes) {
    std::string text;
    while (!bytes.empty()) {
        const std::size_t length = SequenceLength(bytes);
        if (length > 0) {
            text += bytes.substr(0, length);
            bytes.remove_prefix(length);
            continue;
        }
        const auto byte = static_cast<std::uint8_t>(bytes.front());
        AppendUtf8(text, byte < 0xA0 ? kWindows1252[byte - 0x80] : char16_t{byte});
        bytes.remove_prefix(1);
    }
    return text;
}

}  // namespace tav
