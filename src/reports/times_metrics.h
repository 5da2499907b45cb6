// How wide and how high a text in Times is, from a table and not from any font at hand: a report
// breaks its lines and pages alike on every machine.
#pragma once

#include <string>
#include <string_view>

namespace tav {

// A length on paper: 1440 to the inch.
using Twips = double;

inline constexpr Twips kTwipsPerPoint = 20;

struct TextStyle {
    float Size = 12;  // points
    bool Bold = false;
    bool Italic = false;
    bool Underline = false;

    bool operator==(const TextStyle&) const = default;
};

// The width of a text, which is UTF-8. A character that Times does not have counts as wide as the
// fonts that stand in for it usually draw it.
Twips TextWidthOf(std::string_view text, const TextStyle& style);

// The height of a line, and the part of it above the base line.
Twips LineHeightOf(float size);
Twips AscentOf(float size);

// The number of bytes of the character at the start of a text, which is not empty.
std::size_t CharacterLength(std::string_view text);

}  // namespace tav
