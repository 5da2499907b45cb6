#include "reports/page_furniture.h"

#include "core/display_text.h"

#include <algorithm>
#include <array>

namespace tav {
namespace {

using Fields = std::array<std::string, 3>;

constexpr Twips kGap = 120;          // between two fields
constexpr float kLeastFontSize = 4;  // below it a field is cut short
constexpr float kStep = 0.5;
constexpr std::string_view kEllipsis = "\xE2\x80\xA6";

void ReplaceAll(std::string& text, std::string_view what, const std::string& by) {
    for (std::size_t at = text.find(what); at != std::string::npos;
         at = text.find(what, at + by.size())) {
        text.replace(at, what.size(), by);
    }
}

Fields Split(std::string_view text) {
    Fields fields;
    for (std::string& field : fields) {
        const std::size_t end = std::min(text.find('|'), text.size());
        field = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return fields;
}

bool Fit(const Fields& fields, const TextStyle& style, Twips width) {
    const Twips left = TextWidthOf(fields[0], style);
    const Twips centre = TextWidthOf(fields[1], style);
    const Twips right = TextWidthOf(fields[2], style);
    if (centre == 0) return left + kGap + right <= width;
    return std::max({left, right, Twips(0)}) <= (width - centre) / 2 - kGap;
}

void CutShort(std::string& text, const TextStyle& style, Twips width) {
    if (TextWidthOf(text, style) <= width) return;
    std::string kept;
    std::string_view rest = text;
    while (!rest.empty()) {
        const std::string_view character = rest.substr(0, CharacterLength(rest));
        if (TextWidthOf(kept + std::string(character) + std::string(kEllipsis), style) > width)
            break;
        kept += character;
        rest.remove_prefix(character.size());
    }
    text = kept + std::string(kEllipsis);
}

}  // namespace

std::string OneLine(std::string text) {
    std::replace_if(
        text.begin(), text.end(),
        [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }, ' ');
    return text;
}

std::string FurnitureText(std::string_view fields, int pageNumber) {
    std::string text = OneLine(DisplayText(fields));
    ReplaceAll(text, "%d", std::to_string(pageNumber));
    return text;
}

void PlaceFurniture(ReportPage& page, std::string_view text, Twips top,
                    const FurniturePlace& place) {
    Fields fields = Split(text);
    const Twips width = place.Right - place.Left;
    TextStyle style{.Size = place.Face.Size};
    while (!Fit(fields, style, width) && style.Size > kLeastFontSize)
        style.Size -= kStep;
    if (!Fit(fields, style, width)) {
        for (std::string& field : fields)
            CutShort(field, style, width / 3 - kGap);
    }
    const Twips baseline = top + AscentOf(place.Face.Size);
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const std::string& field = fields[i];
        if (field.empty()) continue;
        const Twips own = TextWidthOf(field, style);
        const Twips x = place.Left + (width - own) * (static_cast<double>(i) / 2);
        page.Runs.push_back({x, baseline, own, field, place.Face.Name, style});
    }
}

}  // namespace tav
