// Header and footer of a page.
#pragma once

#include "reports/report_document.h"
#include "reports/report_sink.h"

#include <string>
#include <string_view>

namespace tav {

// A text without line ends and other control characters: a blank stands for each.
std::string OneLine(std::string text);

// A header or footer with the number of its page put in for each "%d".
std::string FurnitureText(std::string_view fields, int pageNumber);

struct FurniturePlace {
    Twips Left = 0;
    Twips Right = 0;
    FontFace Face;
};

// Puts the text of a header or footer, three fields separated by bars, on a page: at the left, in
// the centre and at the right, in a smaller font where they would run into each other. top is that
// of their line.
void PlaceFurniture(ReportPage& page, std::string_view text, Twips top,
                    const FurniturePlace& place);

}  // namespace tav
