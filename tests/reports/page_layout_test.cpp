#include "reports/page_layout.h"

#include "core/runtime_error.h"

#include <algorithm>
#include <set>

#include <gtest/gtest.h>

namespace tav {
namespace {

class PageLayoutTest : public testing::Test {
  protected:
    PageLayoutTest() {
        layout.MarginLeft = layout.MarginRight = 720;
        layout.MarginTop = 1080;
        layout.MarginHeader = layout.MarginFooter = 360;
        layout.StartDoc();
    }

    const ReportDocument& Close() {
        layout.EndDoc();
        return *layout.Document();
    }

    void AddTable(int rows, int columns, int border) {
        layout.StartTable();
        layout.TableBorder = border;
        layout.TableCell().SetSize(rows, columns);
        for (int row = 1; row <= rows; ++row)
            layout.TableCell().SetText(row, 1, "Row " + std::to_string(row));
    }

    PageLayout layout;
};

const TextRun* RunOf(const ReportPage& page, const std::string& text) {
    const auto found = std::find_if(page.Runs.begin(), page.Runs.end(),
                                    [&](const TextRun& run) { return run.Text == text; });
    return found == page.Runs.end() ? nullptr : &*found;
}

int PageOf(const ReportDocument& document, const std::string& text) {
    for (int i = 0; i < document.PageCount(); ++i) {
        if (RunOf(document.Pages[static_cast<std::size_t>(i)], text)) return i + 1;
    }
    return 0;
}

// The widths of Times are 1000 to the em in its tables: A 722, blank 250, digits 500, bold A 722,
// bold digits 500, italic A 611.
TEST_F(PageLayoutTest, MeasuresWithTimes) {
    layout.SetFontSize(10);
    EXPECT_NEAR(layout.TextWidth("A"), 144.4, 0.1);
    EXPECT_NEAR(layout.TextWidth("1 2"), 250, 0.1);
    layout.FontItalic = true;
    EXPECT_NEAR(layout.TextWidth("A"), 122.2, 0.1);
    layout.FontItalic = false;
    layout.FontBold = true;
    EXPECT_NEAR(layout.TextWidth("b"), 111.2, 0.1);
    layout.SetFontSize(0);
    EXPECT_EQ(layout.FontSize(), 1);
}

TEST_F(PageLayoutTest, BytesThatAreNoUtf8MeasureAsWindows1252) {
    EXPECT_EQ(layout.TextWidth("\xE9"), layout.TextWidth("\xC3\xA9"));
}

TEST_F(PageLayoutTest, ALineThatIsTooLongGoesOnInTheNext) {
    std::string text;
    for (int i = 0; i < 50; ++i)
        text += "word ";
    layout.Text(text + "\r\n");
    const ReportDocument& document = Close();
    const auto& runs = document.Pages[0].Runs;
    ASSERT_EQ(runs.size(), 3u);
    for (const TextRun& run : runs)
        EXPECT_LE(run.X + run.Width, 12240 - 720 + 0.01);
    EXPECT_LT(runs[0].Baseline, runs[1].Baseline);
    EXPECT_EQ(document.Pages[0].Text, text + "\n");
}

TEST_F(PageLayoutTest, AWordWiderThanThePageIsBrokenAndLosesNothing) {
    const std::string word(400, 'W');
    layout.Text(word);
    std::string drawn;
    for (const TextRun& run : Close().Pages[0].Runs) {
        drawn += run.Text;
        EXPECT_LE(run.X + run.Width, 12240 - 720 + 0.01);
    }
    EXPECT_EQ(drawn, word);
}

TEST_F(PageLayoutTest, StylesOfOneLineFollowEachOther) {
    layout.Text("total ");
    layout.FontItalic = true;
    layout.FontUnderline = true;
    layout.Text("absorbable");
    layout.FontItalic = layout.FontUnderline = false;
    layout.Text(" supplied.\r\n");
    const ReportPage& page = Close().Pages[0];
    ASSERT_EQ(page.Runs.size(), 3u);
    EXPECT_TRUE(page.Runs[1].Style.Italic);
    EXPECT_NEAR(page.Runs[1].X, page.Runs[0].X + TextWidthOf("total ", {}), 0.01);
    EXPECT_EQ(page.Runs[0].Baseline, page.Runs[1].Baseline);
    ASSERT_EQ(page.Rules.size(), 1u);
    EXPECT_NEAR(page.Rules[0].X1, page.Runs[1].X, 0.01);
    EXPECT_EQ(page.Text, "total absorbable supplied.\n");
}

TEST_F(PageLayoutTest, EveryLineStandsOnAPageBetweenItsMargins) {
    for (int i = 1; i <= 120; ++i)
        layout.Text("Line " + std::to_string(i) + "\r\n");
    const ReportDocument& document = Close();
    EXPECT_EQ(document.PageCount(), 3);
    std::set<std::string> seen;
    for (const ReportPage& page : document.Pages) {
        for (const TextRun& run : page.Runs) {
            EXPECT_GT(run.Baseline, 1080);
            EXPECT_LT(run.Baseline, page.Height - 720);
            seen.insert(run.Text);
        }
    }
    EXPECT_EQ(seen.size(), 120u);
}

TEST_F(PageLayoutTest, EmptyLinesAtTheFootDoNotBeginAPage) {
    for (int i = 0; i < 200; ++i)
        layout.Text("\r\n");
    EXPECT_EQ(layout.CurrentPage(), 1);
    layout.Text("next\r\n");
    EXPECT_EQ(layout.CurrentPage(), 2);
}

TEST_F(PageLayoutTest, TheOrientationTakesEffectFromTheNextPage) {
    layout.Orientation = kLandscape;
    EXPECT_EQ(layout.PageWidth(), 12240);
    layout.Text("upright");
    layout.NewPage();
    EXPECT_EQ(layout.PageWidth(), 15840);
    EXPECT_EQ(layout.PageHeight(), 12240);
    EXPECT_EQ(layout.CurrentY(), layout.MarginTop);
    const ReportDocument& document = Close();
    EXPECT_EQ(document.Pages[0].Orientation, kPortrait);
    EXPECT_EQ(document.Pages[1].Orientation, kLandscape);
}

TEST_F(PageLayoutTest, ANewStartDiscardsWhatWasOpen) {
    layout.Text("gone");
    layout.Orientation = kLandscape;
    layout.StartDoc();
    layout.Text("kept\r\n");
    const ReportDocument& document = Close();
    ASSERT_EQ(document.PageCount(), 1);
    EXPECT_EQ(document.Pages[0].Text, "kept\n");
    EXPECT_EQ(document.Pages[0].Orientation, kLandscape);
}

TEST_F(PageLayoutTest, HeaderAndFooterStandAtLeftCentreAndRight) {
    layout.HdrFont = {"Times New Roman", 8};
    layout.Header = "left|centre|Page %d";
    layout.Footer = "|%d of %d|";
    layout.NewPage();
    const ReportDocument& document = Close();
    const ReportPage& page = document.Pages[1];
    EXPECT_EQ(page.Header, "left|centre|Page 2");
    EXPECT_EQ(page.Footer, "|2 of 2|");
    EXPECT_NEAR(RunOf(page, "left")->X, 720, 0.01);
    const TextRun& centre = *RunOf(page, "centre");
    EXPECT_NEAR(centre.X + centre.Width / 2, 6120, 0.01);
    const TextRun& right = *RunOf(page, "Page 2");
    EXPECT_NEAR(right.X + right.Width, 12240 - 720, 0.01);
    EXPECT_LT(right.Baseline, layout.MarginTop);
    EXPECT_GT(RunOf(page, "2 of 2")->Baseline, page.Height - 720);
}

TEST_F(PageLayoutTest, LongHeaderFieldsDoNotRunIntoEachOther) {
    const std::string field(300, 'x');
    layout.Header = field + "|" + field + "|" + field;
    const ReportPage& page = Close().Pages[0];
    ASSERT_EQ(page.Runs.size(), 3u);
    EXPECT_LT(page.Runs[0].X + page.Runs[0].Width, page.Runs[1].X);
    EXPECT_LT(page.Runs[1].X + page.Runs[1].Width, page.Runs[2].X);
    EXPECT_EQ(page.Header.size(), 902u);
}

TEST_F(PageLayoutTest, ATableBreaksBetweenRowsAndRepeatsItsHeadings) {
    AddTable(260, 2, kFullGrid);
    layout.TableCell().HeadingRows = 1;
    layout.TableCell().SetText(1, 1, "Feed Name");
    layout.EndTable();
    const ReportDocument& document = Close();
    EXPECT_GT(document.PageCount(), 5);
    for (int row = 2; row <= 260; ++row)
        EXPECT_GT(PageOf(document, "Row " + std::to_string(row)), 0) << row;
    for (const ReportPage& page : document.Pages) {
        const TextRun* const head = RunOf(page, "Feed Name");
        ASSERT_NE(head, nullptr);
        EXPECT_TRUE(head->Style.Bold);
        for (const Rule& rule : page.Rules)
            EXPECT_LE(rule.Y2, page.Height - 720 + 0.01);
    }
    // In the text they stand once.
    const std::string text = TextForm(document);
    EXPECT_EQ(text.find("Feed Name"), text.rfind("Feed Name"));
}

TEST_F(PageLayoutTest, HeadingsDoNotStandAloneAtTheFoot) {
    for (int i = 0; i < 49; ++i)
        layout.Text("line\r\n");
    AddTable(3, 1, kNoBorder);
    layout.TableCell().HeadingRows = 1;
    layout.EndTable();
    const ReportDocument& document = Close();
    EXPECT_EQ(PageOf(document, "Row 1"), 2);
    EXPECT_EQ(PageOf(document, "Row 2"), 2);
}

TEST_F(PageLayoutTest, ATableThatIsKeptWholeGoesToTheNextPage) {
    for (int i = 0; i < 45; ++i)
        layout.Text("line\r\n");
    AddTable(10, 1, kNoBorder);
    layout.TableCell().KeepWhole = true;
    layout.EndTable();
    EXPECT_EQ(PageOf(Close(), "Row 1"), 2);
}

TEST_F(PageLayoutTest, ALongCellIsBrokenWithinItsColumn) {
    AddTable(1, 2, kFullGrid);
    layout.TableCell().SetText(1, 1,
                               "A very long name of a feed that nobody could read in one line");
    layout.TableCell().SetText(1, 2, "8.20");
    layout.TableCell().SetWidth(1, 1800);
    layout.TableCell().SetWidth(2, 1500);
    layout.EndTable();
    const ReportPage& page = Close().Pages[0];
    EXPECT_GE(page.Runs.size(), 4u);
    for (const TextRun& run : page.Runs) {
        if (run.Text == "8.20") continue;
        EXPECT_LE(run.X + run.Width, 720 + 1800);
    }
    EXPECT_EQ(RunOf(page, "8.20")->Baseline, page.Runs[0].Baseline);
}

TEST_F(PageLayoutTest, ARowHigherThanAPageLosesNothing) {
    AddTable(1, 1, kFullGrid);
    std::string text;
    for (int i = 0; i < 300; ++i)
        text += "name" + std::to_string(i) + " ";
    layout.TableCell().SetText(1, 1, text);
    layout.TableCell().SetWidth(1, 1300);
    layout.EndTable();
    const ReportDocument& document = Close();
    EXPECT_GT(document.PageCount(), 3);
    EXPECT_GT(PageOf(document, "name299"), 3);
}

TEST_F(PageLayoutTest, HeadingsStandWithTheBeginningOfARowHigherThanAPage) {
    AddTable(2, 1, kFullGrid);
    std::string text = "begins";
    for (int i = 0; i < 300; ++i)
        text += " name" + std::to_string(i);
    layout.TableCell().HeadingRows = 1;
    layout.TableCell().SetText(2, 1, text);
    layout.TableCell().SetWidth(1, 1300);
    layout.EndTable();
    const ReportDocument& document = Close();
    EXPECT_NE(RunOf(document.Pages[0], "begins"), nullptr);
    EXPECT_GT(PageOf(document, "name299"), 3);
    for (const ReportPage& page : document.Pages) {
        EXPECT_NE(RunOf(page, "Row 1"), nullptr);
        for (const TextRun& run : page.Runs)
            EXPECT_LT(run.Baseline, page.Height - 720);
    }
}

TEST_F(PageLayoutTest, NumbersOfAColumnStandUnderEachOther) {
    AddTable(4, 1, kFullGrid);
    const std::vector<std::string> cells = {"8.25", "-1234.5", "0.35 ppm", "N/A"};
    for (int row = 1; row <= 4; ++row)
        layout.TableCell().SetText(row, 1, cells[static_cast<std::size_t>(row - 1)]);
    layout.TableCell().SetWidth(1, 3000);
    layout.TableCell().SetAlign(1, ColumnAlign::Decimal);
    layout.EndTable();
    const ReportPage& page = Close().Pages[0];
    const auto point = [&](const char* whole, const char* text) {
        return RunOf(page, text)->X + TextWidthOf(whole, {});
    };
    EXPECT_NEAR(point("8", "8.25"), point("-1234", "-1234.5"), 0.01);
    EXPECT_NEAR(point("0", "0.35 ppm"), point("8", "8.25"), 0.01);
}

TEST_F(PageLayoutTest, TablesInTheTextFormHaveTrimmedCells) {
    layout.Text("before");
    AddTable(3, 3, kNoBorder);
    layout.TableCell().SetText(1, 2, " - ");
    layout.TableCell().SetText(2, 1, "");
    layout.TableCell().SetText(3, 3, "Totals :   ");
    layout.EndTable();
    layout.Text("after");
    EXPECT_EQ(TextForm(Close()), "[]\nbefore\nRow 1 | - | \n\nRow 3 |  | Totals :\nafter\n[]\n");
}

TEST_F(PageLayoutTest, OutsideOfADocumentNothingCanBeWritten) {
    Close();
    EXPECT_THROW(layout.Text("x"), RuntimeError);
    EXPECT_THROW(layout.NewPage(), RuntimeError);
    EXPECT_EQ(layout.CurrentPage(), 0);
}

}  // namespace
}  // namespace tav
