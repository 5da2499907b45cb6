// A table of a report: its cells row by row, columns as wide as what stands in them.
#pragma once

#include "reports/number_cell.h"
#include "reports/report_writer.h"

#include <string>
#include <vector>

namespace tav {

class ReportGrid {
  public:
    using Cells = std::vector<std::string>;

    ReportGrid(ReportWriter& writer, std::vector<ColumnAlign> columns, TableBorders border);

    // Cells from the first column on; what is left out at the end is empty.
    void Row(Cells cells) { rows_.push_back(std::move(cells)); }
    void EmptyRow() { rows_.emplace_back(); }
    // The cell of a row that need not be there yet; rows and columns count from 1.
    void Set(int row, int column, std::string text);
    void SetHeadingRows(int rows) { headingRows_ = rows; }

    // The least width of a column; its width for good; its width as that of a text in the font at
    // hand.
    void WidenTo(int column, Twips width);
    void FixWidth(int column, Twips width);
    void FixWidth(int column, std::string sample);

    // Makes the font smaller until the table is not too wide for the page.
    void FitFont();

    // How high it is in the font at hand, with each row a line.
    Twips Height() const;

    // Keeps the table on one page where one can hold it.
    void KeepWhole() { keepWhole_ = true; }

    // Spreads the columns of numbers over the width of the page, as even as what stands in them
    // lets them be.
    void FillWidth() { fillsWidth_ = true; }

    // Writes the table. Where it is too wide for the page the font is made smaller, and the text of
    // the first column, such as a feed's name, goes on in a second line.
    void Write();

  private:
    struct Width {
        Twips Least = 0;
        Twips Fixed = 0;
        std::string FixedSample;
        Twips Heading = 0;     // the widest cell, without a number's share
        NumberColumn Numbers;  // of a column of numbers
        std::string Widest;
        Twips Final = 0;
    };
    // How generous the columns of numbers are: all alike, with the numbers in the middle, down to
    // what just holds them.
    enum class Spacing { Alike, Centred, Tight };

    const std::string& Cell(std::size_t row, std::size_t column) const;
    Width& At(int column) { return widths_.at(static_cast<std::size_t>(column - 1)); }
    void MeasureCells();
    void MeasureColumn(std::size_t column);
    void SetWidths();
    void SetWidths(Spacing spacing);
    Twips TotalWidth() const;
    void ShareWidths();
    void EvenOut();

    ReportWriter& writer_;
    std::vector<ColumnAlign> columns_;
    TableBorders border_;
    int headingRows_ = 0;
    bool keepWhole_ = false;
    bool fillsWidth_ = false;
    std::vector<Cells> rows_;
    std::vector<Width> widths_;
};

// A table without a border for lines of text in columns beside each other.
ReportGrid TextColumns(ReportWriter& writer, int columns);

}  // namespace tav
