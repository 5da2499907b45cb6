#include "reports/page_layout.h"

#include "core/display_text.h"
#include "core/platform.h"
#include "core/runtime_error.h"
#include "reports/page_furniture.h"

#include <algorithm>

namespace tav {
namespace {

constexpr Twips kPaperWidth = 12240;  // 8.5 by 11 inches
constexpr Twips kPaperHeight = 15840;
constexpr float kLeastFontSize = 1;
constexpr Twips kUnderlineDepth = 0.09;      // of the font size, below the base line
constexpr Twips kUnderlineThickness = 0.05;  // of the font size
constexpr Twips kTolerance = 0.01;

}  // namespace

void PageLayout::StartDoc() {
    open_ = std::make_shared<ReportDocument>();
    line_.clear();
    BeginPage();
}

void PageLayout::EndDoc() {
    if (!open_) return;
    if (!line_.empty()) EndLine();
    CompletePage();
    open_->Title = DocName;
    closed_ = std::move(open_);
    open_.reset();
}

void PageLayout::NewPage() {
    RequireOpen();
    if (!line_.empty()) EndLine();
    BreakPage();
}

void PageLayout::BreakPage() {
    CompletePage();
    BeginPage();
}

void PageLayout::RequireOpen() const {
    if (!open_) Raise(kInvalidProcedureCall);
}

void PageLayout::BeginPage() {
    ReportPage page;
    page.Orientation = Orientation;
    page.Width = Orientation == kLandscape ? kPaperHeight : kPaperWidth;
    page.Height = Orientation == kLandscape ? kPaperWidth : kPaperHeight;
    open_->Pages.push_back(std::move(page));
    y_ = MarginTop;
}

void PageLayout::CompletePage() {
    const int number = CurrentPage();
    ReportPage& page = Page();
    page.Header = FurnitureText(Header, number);
    page.Footer = FurnitureText(Footer, number);
    const Twips height = LineHeightOf(HdrFont.Size);
    const FurniturePlace place = {MarginLeft, page.Width - MarginRight, HdrFont};
    PlaceFurniture(page, page.Header, MarginHeader, place);
    PlaceFurniture(page, page.Footer, page.Height - MarginFooter - height, place);
}

Twips PageLayout::PageWidth() const {
    if (open_) return open_->Pages.back().Width;
    return Orientation == kLandscape ? kPaperHeight : kPaperWidth;
}

Twips PageLayout::PageHeight() const {
    if (open_) return open_->Pages.back().Height;
    return Orientation == kLandscape ? kPaperWidth : kPaperHeight;
}

void PageLayout::SetFont(const FontFace& font) {
    font_ = font;
    SetFontSize(font.Size);
}

void PageLayout::SetFontSize(float points) { fontSize_ = std::max(points, kLeastFontSize); }

TextStyle PageLayout::Style() const { return {fontSize_, FontBold, FontItalic, FontUnderline}; }

Twips PageLayout::TextWidth(std::string_view text) const {
    return TextWidthOf(OneLine(DisplayText(text)), Style());
}

Twips PageLayout::TextHeight(std::string_view) const { return LineHeightOf(fontSize_); }

void PageLayout::Text(std::string_view text) {
    RequireOpen();
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
        if (end > 0) line_.push_back({OneLine(DisplayText(text.substr(0, end))), Style()});
        if (end == text.size()) return;
        EndLine();
        text.remove_prefix(end + (text.substr(end).starts_with("\r\n") ? 2 : 1));
    }
}

// An empty line at the foot of a page ends there: the next page begins with what comes after it.
void PageLayout::EndLine() {
    if (line_.empty()) {
        Page().Text += '\n';
        y_ = std::min(y_ + LineHeightOf(fontSize_), std::max(Bottom(), y_));
        return;
    }
    const std::vector<StyledText> pieces = std::move(line_);
    line_.clear();
    bool first = true;
    for (const LaidLine& line : BreakLines(pieces, BodyWidth(), fontSize_)) {
        if (y_ + line.Height > Bottom() + kTolerance && y_ > MarginTop) BreakPage();
        if (first) {
            for (const StyledText& piece : pieces)
                Page().Text += piece.Text;
            Page().Text += '\n';
        }
        first = false;
        Place(line, MarginLeft, y_);
        y_ += line.Height;
    }
}

void PageLayout::Place(const LaidLine& line, Twips x, Twips top) {
    const Twips baseline = top + line.Ascent;
    for (const LaidPiece& piece : line.Pieces) {
        const std::size_t begin = piece.Text.find_first_not_of(' ');
        if (begin != std::string::npos) {
            const std::size_t end = piece.Text.find_last_not_of(' ') + 1;
            const Twips left = x + TextWidthOf(piece.Text.substr(0, begin), piece.Style);
            const std::string text = piece.Text.substr(begin, end - begin);
            const Twips width = TextWidthOf(text, piece.Style);
            Page().Runs.push_back({left, baseline, width, text, font_.Name, piece.Style});
            const Twips size = piece.Style.Size * kTwipsPerPoint;
            const Twips under = baseline + size * kUnderlineDepth;
            if (piece.Style.Underline) {
                Page().Rules.push_back(
                    {left, under, left + width, under, size * kUnderlineThickness});
            }
        }
        x += piece.Width;
    }
}

void PageLayout::PrintDialog() { Orientation = ThePlatform().ShowPrinterSetup(Orientation); }

}  // namespace tav
