// Aligned columns of plain text.
#pragma once

#include <string>
#include <vector>

namespace tav {

// Rows of cells; the first column stands on the left, all others on the right, under each other. A
// row with a single cell is a heading and takes no part in the widths.
class TextTable {
  public:
    // The number of blanks before each row and between columns.
    explicit TextTable(std::size_t indent = 2, std::size_t gap = 2) : indent_(indent), gap_(gap) {}

    void AddRow(std::vector<std::string> cells) { rows_.push_back(std::move(cells)); }
    std::string Text() const;

  private:
    std::size_t indent_;
    std::size_t gap_;
    std::vector<std::vector<std::string>> rows_;
};

// How many characters a UTF-8 text has.
std::size_t CharacterCount(const std::string& text);

}  // namespace tav
