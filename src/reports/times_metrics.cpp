#include "reports/times_metrics.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace tav {
namespace {

constexpr double kUnitsPerEm = 2048;

struct WidthRow {
    char32_t First;
    char32_t Last;
    std::array<std::uint16_t, 4> Widths;  // regular, bold, italic, bold italic
};

struct Heights {
    int Ascent;
    int Descent;
    int Gap;
};

#define HEIGHTS(ascent, descent, gap) constexpr Heights kHeights = {ascent, descent, gap};
#define WIDTHS(first, last, regular, bold, italic, boldItalic)
#include "reports/times_widths.def"

#define HEIGHTS(ascent, descent, gap)
#define WIDTHS(first, last, regular, bold, italic, boldItalic) \
    {first, last, {regular, bold, italic, boldItalic}},
constexpr auto kRows = std::to_array<WidthRow>({
#include "reports/times_widths.def"
});

struct Range {
    char32_t First;
    char32_t Last;
};

constexpr auto kCombining = std::to_array<Range>({{0x300, 0x36F},
                                                  {0x483, 0x489},
                                                  {0x591, 0x5BD},
                                                  {0x64B, 0x65F},
                                                  {0x200B, 0x200F},
                                                  {0x202A, 0x202E},
                                                  {0x2060, 0x206F},
                                                  {0xFE00, 0xFE0F},
                                                  {0xFEFF, 0xFEFF}});
constexpr auto kFullWidth = std::to_array<Range>({{0x1100, 0x115F},
                                                  {0x2E80, 0xA4CF},
                                                  {0xAC00, 0xD7A3},
                                                  {0xF900, 0xFAFF},
                                                  {0xFE30, 0xFE4F},
                                                  {0xFF00, 0xFF60},
                                                  {0xFFE0, 0xFFE6},
                                                  {0x1F300, 0x1FAFF},
                                                  {0x20000, 0x3FFFD}});
constexpr double kOtherWidth = 0.6 * kUnitsPerEm;

template <class Ranges>
bool IsIn(const Ranges& ranges, char32_t character) {
    return std::any_of(ranges.begin(), ranges.end(), [&](const Range& range) {
        return character >= range.First && character <= range.Last;
    });
}

double CharacterWidth(char32_t character, std::size_t face) {
    const auto row = std::partition_point(kRows.begin(), kRows.end(),
                                          [&](const WidthRow& r) { return r.Last < character; });
    if (row != kRows.end() && row->First <= character) return row->Widths.at(face);
    if (IsIn(kCombining, character)) return 0;
    return IsIn(kFullWidth, character) ? kUnitsPerEm : kOtherWidth;
}

char32_t CharacterAt(std::string_view text, std::size_t length) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    if (length == 1) return byte(0);
    char32_t character = byte(0) & (0xFF >> (length + 1));
    for (std::size_t i = 1; i < length; ++i)
        character = (character << 6) | (byte(i) & 0x3F);
    return character;
}

Twips Scaled(double units, float size) {
    return units / kUnitsPerEm * static_cast<double>(size) * kTwipsPerPoint;
}

}  // namespace

std::size_t CharacterLength(std::string_view text) {
    const auto first = static_cast<unsigned char>(text.front());
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : first >= 0xC0 ? 2 : 1;
    return std::min(length, text.size());
}

Twips TextWidthOf(std::string_view text, const TextStyle& style) {
    const std::size_t face = (style.Bold ? 1u : 0u) + (style.Italic ? 2u : 0u);
    double units = 0;
    while (!text.empty()) {
        const std::size_t length = CharacterLength(text);
        units += CharacterWidth(CharacterAt(text, length), face);
        text.remove_prefix(length);
    }
    return Scaled(units, style.Size);
}

Twips LineHeightOf(float size) {
    return Scaled(kHeights.Ascent + kHeights.Descent + kHeights.Gap, size);
}

Twips AscentOf(float size) { return Scaled(kHeights.Ascent + kHeights.Gap / 2.0, size); }

}  // namespace tav
