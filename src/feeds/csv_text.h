// Comma-separated text: rows of cells, which stand in double quotes where they hold a comma, a
// quote or a line break, and a quote in them is doubled.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tav {

// What is wrong with a file, and where: the line of the file and the cell of the row, both from 1.
// A column of 0 stands for the whole row.
class CsvFault : public std::runtime_error {
  public:
    CsvFault(int line, int column, const std::string& what)
        : std::runtime_error(what), Line(line), Column(column) {}

    int Line;
    int Column;
};

struct CsvCell {
    std::string Text;
    bool Quoted = false;  // so that an empty text differs from an empty cell
    int Line = 0;         // where it begins
};

// Reads row by row, and keeps no more than the row at hand. A byte order mark at the beginning is
// passed over, and so are empty lines.
class CsvReader {
  public:
    // The text must outlive the reader.
    explicit CsvReader(std::string_view text);

    // The next row; false at the end. Throws CsvFault for a quote that isn't closed, for text
    // behind a closing one, and for more than 1000 cells.
    bool ReadRow(std::vector<CsvCell>& row);

  private:
    CsvCell ReadCell(int column);
    void ReadQuoted(CsvCell& cell, int column);
    bool TakeLineEnd();

    std::string_view rest_;
    int line_ = 1;
};

// A cell as it is written, in quotes where it needs them.
std::string CsvText(std::string_view text);

// A text that no spreadsheet takes for a formula: an apostrophe goes before one that begins, behind
// blanks and other apostrophes, with the sign of a formula. WithoutGuard takes it away again.
std::string WithGuard(std::string text);
std::string WithoutGuard(std::string text);

}  // namespace tav
