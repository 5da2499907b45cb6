// The layout behind the sink: it measures with the widths of Times, breaks lines and pages, places
// the cells of tables, and yields pages of positioned text and rules. Knows no printer and no pane.
#pragma once

#include "reports/line_breaker.h"
#include "reports/report_document.h"
#include "reports/report_sink.h"

#include <memory>
#include <string>
#include <vector>

namespace tav {

class TableLayout;
struct TableRow;

// Paper is letter size. Text and NewPage raise error 5 while no document is open.
class PageLayout : public ReportSink {
  public:
    void StartDoc() override;
    void EndDoc() override;
    void NewPage() override;

    Twips PageWidth() const override;
    Twips PageHeight() const override;
    Twips CurrentY() const override { return y_; }
    int CurrentPage() const override { return open_ ? open_->PageCount() : 0; }

    void SetFont(const FontFace& font) override;
    const FontFace& Font() const override { return font_; }
    float FontSize() const override { return fontSize_; }
    void SetFontSize(float points) override;

    void Text(std::string_view text) override;
    Twips TextWidth(std::string_view text) const override;
    Twips TextHeight(std::string_view text) const override;

    void StartTable() override;
    void EndTable() override;

    int PreviewPage() const override { return previewPage_; }
    void SetPreviewPage(int page) override { previewPage_ = page; }
    void PrintDialog() override;

    // The document that was closed last, null before the first one.
    std::shared_ptr<const ReportDocument> Document() const { return closed_; }

  private:
    TextStyle Style() const;
    ReportPage& Page() { return open_->Pages.back(); }
    Twips Bottom() const { return PageHeight() - MarginBottom; }
    Twips BodyWidth() const { return PageWidth() - MarginLeft - MarginRight; }

    void RequireOpen() const;
    void BeginPage();
    void CompletePage();
    void BreakPage();
    void EndLine();
    void Place(const LaidLine& line, Twips x, Twips top);

    // Tables: each places what it is named for at y_ and moves on.
    void PlaceHeadings(const TableLayout& layout, int rows);
    void PlaceRow(const TableLayout& layout, const TableRow& row, int firstLine, int lines);
    void PlaceLongRow(const TableLayout& layout, const TableRow& row, int headingRows);
    void CloseGrid(const TableLayout& layout);
    void BreakTable(const TableLayout& layout, int headingRows);

    std::shared_ptr<ReportDocument> open_;
    std::shared_ptr<const ReportDocument> closed_;
    Twips y_ = 0;
    FontFace font_;
    float fontSize_ = font_.Size;
    std::vector<StyledText> line_;  // what has been written of the line at hand
    Twips gridTop_ = 0;             // of the part of the table that stands on this page
    int previewPage_ = 1;
};

}  // namespace tav
