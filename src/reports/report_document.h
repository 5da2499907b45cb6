// A finished document: what its pages hold, for whoever draws, prints or reads them.
#pragma once

#include "forms/document_pane.h"
#include "reports/times_metrics.h"

#include <string>
#include <vector>

namespace tav {

// A piece of text on one line. Width is how wide it is to be drawn, whatever the font at hand makes
// of it.
struct TextRun {
    Twips X = 0;
    Twips Baseline = 0;
    Twips Width = 0;
    std::string Text;  // UTF-8
    std::string FontName;
    TextStyle Style;
};

// A line of the given thickness, vertical or horizontal.
struct Rule {
    Twips X1 = 0, Y1 = 0, X2 = 0, Y2 = 0;
    Twips Thickness = 0;
};

struct ReportPage {
    int Orientation = 0;
    Twips Width = 0;
    Twips Height = 0;
    std::vector<TextRun> Runs;
    std::vector<Rule> Rules;

    // The same in words: header and footer with the page number put in, and what stands between.
    std::string Header;
    std::string Footer;
    std::string Text;
};

class ReportDocument : public PagedDocument {
  public:
    std::string Title;
    std::vector<ReportPage> Pages;

    int PageCount() const override { return static_cast<int>(Pages.size()); }
};

// The document as text: each page with its header and footer in brackets, a table row a line with
// its cells trimmed and joined by " | ", a form feed on a line of its own between two pages.
std::string TextForm(const ReportDocument& document);

}  // namespace tav
