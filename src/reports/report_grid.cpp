#include "reports/report_grid.h"

#include "reports/table_layout.h"

#include <algorithm>

namespace tav {
namespace {

// How much of the first column has to fit beside the others before the font is made smaller: longer
// texts are broken.
constexpr Twips kFirstColumnShare = 3000;
constexpr std::string_view kColumnGap = "    ";

std::string CutTo(const ReportSink& sink, std::string_view text, Twips width) {
    std::string kept;
    while (!text.empty() && sink.TextWidth(kept) < width) {
        const std::size_t length = CharacterLength(text);
        kept += text.substr(0, length);
        text.remove_prefix(length);
    }
    return kept;
}

}  // namespace

ReportGrid::ReportGrid(ReportWriter& writer, std::vector<ColumnAlign> columns, TableBorders border)
    : writer_(writer), columns_(std::move(columns)), border_(border), widths_(columns_.size()) {}

void ReportGrid::Set(int row, int column, std::string text) {
    const auto rows = static_cast<std::size_t>(row);
    const auto columns = static_cast<std::size_t>(column);
    if (rows_.size() < rows) rows_.resize(rows);
    Cells& cells = rows_[rows - 1];
    if (cells.size() < columns) cells.resize(columns);
    cells[columns - 1] = std::move(text);
}

void ReportGrid::WidenTo(int column, Twips width) { At(column).Least = width; }
void ReportGrid::FixWidth(int column, Twips width) { At(column).Fixed = width; }
void ReportGrid::FixWidth(int column, std::string sample) {
    At(column).FixedSample = std::move(sample);
}

const std::string& ReportGrid::Cell(std::size_t row, std::size_t column) const {
    static const std::string none;
    return column < rows_[row].size() ? rows_[row][column] : none;
}

void ReportGrid::MeasureColumn(std::size_t column) {
    ReportSink& sink = writer_.Sink();
    Width& width = widths_[column];
    width.Heading = 0;
    std::vector<std::string_view> numbers;
    for (std::size_t row = 0; row < rows_.size(); ++row) {
        const std::string_view text = Cell(row, column);
        sink.FontBold = row < static_cast<std::size_t>(headingRows_);
        const Twips own = sink.TextWidth(text);
        if (own > width.Heading) {
            width.Heading = own;
            width.Widest = text;
        }
        if (!sink.FontBold && columns_[column] == ColumnAlign::Decimal) numbers.push_back(text);
    }
    sink.FontBold = false;
    width.Numbers =
        MeasureNumbers(numbers, [&](std::string_view text) { return sink.TextWidth(text); });
    if (width.Numbers.Least() > width.Heading) width.Widest = width.Numbers.Sample;
}

void ReportGrid::MeasureCells() {
    for (std::size_t column = 0; column < columns_.size(); ++column)
        MeasureColumn(column);
}

void ReportGrid::SetWidths(Spacing spacing) {
    Twips widest = 0;
    for (std::size_t column = 0; column < widths_.size(); ++column) {
        Width& width = widths_[column];
        const NumberColumn& numbers = width.Numbers;
        const Twips own = spacing == Spacing::Tight ? numbers.Least() : numbers.Centred();
        width.Final = std::max(std::max(width.Heading, own) + CellPadding(border_), width.Least);
        if (columns_[column] == ColumnAlign::Decimal) widest = std::max(widest, width.Final);
    }
    for (std::size_t column = 0; column < widths_.size(); ++column) {
        Width& width = widths_[column];
        if (spacing == Spacing::Alike && columns_[column] == ColumnAlign::Decimal)
            width.Final = widest;
        if (!width.FixedSample.empty())
            width.Final = writer_.Sink().TextWidth(width.FixedSample) + CellPadding(border_);
        if (width.Fixed > 0) width.Final = width.Fixed;
    }
}

Twips ReportGrid::TotalWidth() const {
    Twips total = 0;
    for (const Width& width : widths_)
        total += width.Final;
    return total;
}

void ReportGrid::SetWidths() {
    for (const Spacing spacing : {Spacing::Alike, Spacing::Centred, Spacing::Tight}) {
        SetWidths(spacing);
        if (TotalWidth() <= writer_.BodyWidth()) return;
    }
}

void ReportGrid::FitFont() {
    MeasureCells();
    ReportSink& sink = writer_.Sink();
    std::vector<std::string> row;
    for (std::size_t column = 0; column < columns_.size(); ++column) {
        const Width& width = widths_[column];
        std::string text = width.FixedSample.empty() ? width.Widest : width.FixedSample;
        if (column == 0) text = CutTo(sink, text, kFirstColumnShare);
        row.push_back(text + std::string(kColumnGap));
    }
    sink.FontBold = headingRows_ > 0;
    writer_.KeepTogether(headingRows_ + 1, row);
    sink.FontBold = false;
}

Twips ReportGrid::Height() const {
    Twips height = 0;
    for (const auto& row : rows_) {
        const bool empty = std::all_of(row.begin(), row.end(),
                                       [](const std::string& cell) { return cell.empty(); });
        height += TableRowHeight(empty ? 0 : 1, writer_.Sink().FontSize(), border_);
    }
    return height;
}

// The first column takes what the others leave.
void ReportGrid::ShareWidths() {
    Twips others = 0;
    for (std::size_t column = 1; column < widths_.size(); ++column)
        others += widths_[column].Final;
    Twips& first = widths_.front().Final;
    const Twips left = writer_.BodyWidth() - others;
    if (left > 0) first = std::min(first, left);
}

// The narrowest columns of numbers grow to the width of the next one, then all of these on
// together.
void ReportGrid::EvenOut() {
    std::vector<Width*> numbers;
    for (std::size_t column = 0; column < columns_.size(); ++column) {
        if (columns_[column] == ColumnAlign::Decimal) numbers.push_back(&widths_[column]);
    }
    std::sort(numbers.begin(), numbers.end(),
              [](const Width* a, const Width* b) { return a->Final < b->Final; });
    Twips left = writer_.BodyWidth() - TotalWidth();
    for (std::size_t count = 1; count <= numbers.size() && left > 0; ++count) {
        const Twips own = numbers[count - 1]->Final;
        Twips growth = left / static_cast<double>(count);
        if (count < numbers.size()) growth = std::min(growth, numbers[count]->Final - own);
        for (std::size_t i = 0; i < count; ++i)
            numbers[i]->Final = own + growth;
        left -= growth * static_cast<double>(count);
    }
}

void ReportGrid::Write() {
    ReportSink& sink = writer_.Sink();
    const float size = sink.FontSize();
    FitFont();
    MeasureCells();
    SetWidths();
    ShareWidths();
    if (fillsWidth_) EvenOut();
    sink.StartTable();
    sink.TableBorder = border_;
    ReportTable& table = sink.TableCell();
    table.SetSize(static_cast<int>(rows_.size()), static_cast<int>(columns_.size()));
    table.HeadingRows = headingRows_;
    table.KeepWhole = keepWhole_;
    for (int column = 1; column <= table.Columns(); ++column) {
        const auto i = static_cast<std::size_t>(column - 1);
        table.SetWidth(column, widths_[i].Final);
        table.SetAlign(column, columns_[i]);
        for (int row = 1; row <= table.Rows(); ++row)
            table.SetText(row, column, Cell(static_cast<std::size_t>(row - 1), i));
    }
    sink.EndTable();
    sink.SetFontSize(size);
}

ReportGrid TextColumns(ReportWriter& writer, int columns) {
    ReportGrid grid(writer, std::vector<ColumnAlign>(static_cast<std::size_t>(columns)), kNoBorder);
    const Twips share = writer.BodyWidth() / columns;
    for (int column = 1; column < columns; ++column)
        grid.WidenTo(column, share);
    return grid;
}

}  // namespace tav
