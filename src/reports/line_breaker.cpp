#include "reports/line_breaker.h"

#include <algorithm>

namespace tav {
namespace {

constexpr Twips kTolerance = 0.01;  // what sums of widths may differ by

class Breaker {
  public:
    Breaker(Twips width, float emptySize) : width_(width), emptySize_(emptySize) {}

    void Add(const StyledText& piece) {
        std::string_view rest = piece.Text;
        while (!rest.empty()) {
            const bool blank = rest.front() == ' ';
            const std::size_t end =
                std::min(blank ? rest.find_first_not_of(' ') : rest.find(' '), rest.size());
            const std::string_view part = rest.substr(0, end);
            if (blank) {
                Append(part, piece.Style, TextWidthOf(part, piece.Style));
            } else {
                AddWord(part, piece.Style);
            }
            rest.remove_prefix(end);
        }
    }

    std::vector<LaidLine> Take() {
        FinishLine();
        return std::move(lines_);
    }

  private:
    void AddWord(std::string_view word, const TextStyle& style) {
        const Twips width = TextWidthOf(word, style);
        if (!Fits(width) && hasWord_) FinishLine();
        if (Fits(width)) {
            AppendWord(word, style, width);
        } else {
            AddByCharacter(word, style);
        }
    }

    void AddByCharacter(std::string_view word, const TextStyle& style) {
        while (!word.empty()) {
            const std::string_view character = word.substr(0, CharacterLength(word));
            const Twips width = TextWidthOf(character, style);
            if (!Fits(width) && hasWord_) FinishLine();
            AppendWord(character, style, width);
            word.remove_prefix(character.size());
        }
    }

    bool Fits(Twips width) const { return used_ + width <= width_ + kTolerance; }

    void AppendWord(std::string_view word, const TextStyle& style, Twips width) {
        Append(word, style, width);
        hasWord_ = true;
        line_.Width = used_;
    }

    void Append(std::string_view text, const TextStyle& style, Twips width) {
        if (line_.Pieces.empty() || line_.Pieces.back().Style != style)
            line_.Pieces.push_back({{}, style, 0});
        LaidPiece& piece = line_.Pieces.back();
        piece.Text += text;
        piece.Width += width;
        used_ += width;
        line_.Height = std::max(line_.Height, LineHeightOf(style.Size));
        line_.Ascent = std::max(line_.Ascent, AscentOf(style.Size));
    }

    void FinishLine() {
        if (line_.Pieces.empty()) {
            line_.Height = LineHeightOf(emptySize_);
            line_.Ascent = AscentOf(emptySize_);
        }
        lines_.push_back(std::move(line_));
        line_ = {};
        used_ = 0;
        hasWord_ = false;
    }

    Twips width_;
    float emptySize_;
    std::vector<LaidLine> lines_;
    LaidLine line_;
    Twips used_ = 0;
    bool hasWord_ = false;
};

}  // namespace

std::vector<LaidLine> BreakLines(const std::vector<StyledText>& text, Twips width,
                                 float emptySize) {
    Breaker breaker(width, emptySize);
    for (const StyledText& piece : text)
        breaker.Add(piece);
    return breaker.Take();
}

}  // namespace tav
