// Aligned columns of plain text.
#pragma once

#include <string>
#include <vector>

namespace tav {

// Rows of cells under each other, two blanks apart. One letter for each column says on which side
// its cells stand: 'l' left, 'r' right.
class TextTable {
  public:
    explicit TextTable(std::string sides) : sides_(std::move(sides)) {}

    // As many cells as there are columns.
    void AddRow(std::vector<std::string> cells) { rows_.push_back(std::move(cells)); }
    std::string Text() const;

  private:
    std::string sides_;
    std::vector<std::vector<std::string>> rows_;
};

// How many characters a UTF-8 text has.
std::size_t CharacterCount(const std::string& text);

}  // namespace tav
