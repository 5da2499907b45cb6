// What a report writes to: a document of pages with text and tables.
//
// A component of a report knows nothing but this interface. Lengths are in twips. The document is
// open between StartDoc and EndDoc; text and tables flow down its pages.
#pragma once

#include "forms/document_pane.h"
#include "reports/report_table.h"
#include "reports/times_metrics.h"

#include <string>
#include <string_view>

namespace tav {

struct FontFace {
    std::string Name = "Times New Roman";
    float Size = 12;  // points
};

// The two orientations of a page.
enum PageOrientation : int { kPortrait = 0, kLandscape = 1 };

class ReportSink {
  public:
    ReportSink() = default;
    ReportSink(const ReportSink&) = delete;
    ReportSink& operator=(const ReportSink&) = delete;
    virtual ~ReportSink() = default;

    // Opens an empty document at the top of its first page. One that is open is discarded.
    virtual void StartDoc() = 0;
    // Closes the document, which goes to the pane or to the printer. Nothing if none is open.
    virtual void EndDoc() = 0;
    // Completes a line that is begun and goes to the top of the next page.
    virtual void NewPage() = 0;

    bool Preview = true;  // true: to the pane, false: to the printer
    std::string DocName;  // title of the document

    // Geometry. The margins and the orientation take effect from the next page.
    int Orientation = kPortrait;
    Twips MarginLeft = 1440, MarginRight = 1440, MarginTop = 1440, MarginBottom = 720;
    Twips MarginHeader = 720, MarginFooter = 720;
    virtual Twips PageWidth() const = 0;
    virtual Twips PageHeight() const = 0;
    virtual Twips CurrentY() const = 0;   // top of the line at hand
    virtual int CurrentPage() const = 0;  // from 1; 0 when no document is open

    // Left, centre and right, separated by bars; "%d" becomes the page number. A page takes them as
    // they stand when it is completed.
    std::string Header;
    std::string Footer;
    FontFace HdrFont;

    // The current font. SetFont is the body font, from which FontSize departs; FontSize does not go
    // below 1.
    virtual void SetFont(const FontFace& font) = 0;
    virtual const FontFace& Font() const = 0;
    virtual float FontSize() const = 0;
    virtual void SetFontSize(float points) = 0;
    bool FontBold = false;
    bool FontItalic = false;
    bool FontUnderline = false;

    // Appends text at the current position; "\r\n" ends a line. A line that is too long goes on in
    // the next one, a page that is full on the next page.
    virtual void Text(std::string_view text) = 0;

    // The size of a text in the current font.
    virtual Twips TextWidth(std::string_view text) const = 0;
    virtual Twips TextHeight(std::string_view text) const = 0;

    // A table is set up between the two and placed by EndTable. A new one has no rows and no
    // border. A row stands on one page unless it is higher than one.
    virtual void StartTable() = 0;
    virtual void EndTable() = 0;
    ReportTable& TableCell() { return table_; }
    int TableBorder = kNoBorder;

    // The pane's zoom, and the page that it shows.
    tav::ZoomMode ZoomMode = tav::ZoomMode::Percentage;
    int Zoom = 100;
    virtual int PreviewPage() const = 0;
    virtual void SetPreviewPage(int page) = 0;

    // Lets the user set up the printer, which may change Orientation.
    virtual void PrintDialog() = 0;

  protected:
    ReportTable table_;
};

}  // namespace tav
