// Breaks a text into lines of a given width.
#pragma once

#include "reports/times_metrics.h"

#include <string>
#include <vector>

namespace tav {

struct StyledText {
    std::string Text;  // without line ends
    TextStyle Style;
};

struct LaidPiece {
    std::string Text;
    TextStyle Style;
    Twips Width = 0;
};

struct LaidLine {
    std::vector<LaidPiece> Pieces;  // neighbours differ in style
    Twips Width = 0;                // without the blanks at its end
    Twips Height = 0;
    Twips Ascent = 0;
};

// Breaks between words, and within a word that is wider than a line. Blanks at the beginning of the
// text stay, those at a break stand at the end of the line before it. An empty text is one line of
// the given size.
std::vector<LaidLine> BreakLines(const std::vector<StyledText>& text, Twips width, float emptySize);

}  // namespace tav
