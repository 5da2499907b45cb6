#include "reports/reports_form.h"

#include "forms/form_registry.h"
#include "support/report_fixture.h"

namespace tav {
namespace {

// Keeps what happens in front of the user, in its order.
class WatchedPlatform : public HeadlessPlatform {
  public:
    MessageAnswer ShowMessage(const Message& message) override {
        Seen.push_back(message.Title);
        return HeadlessPlatform::ShowMessage(message);
    }
    void ShowHourglass(bool on) override { Seen.emplace_back(on ? "hourglass" : "arrow"); }

    std::vector<std::string> Seen;
};

using Seen = std::vector<std::string>;

class ReportsFormTest : public ReportTest {
  protected:
    ReportsFormTest() {
        watched.Clock = platform.Clock;
        SetPlatform(watched);
        Load("Dry Cow");
        SetReportPrinter([this](std::shared_ptr<const ReportDocument> document) {
            printed.push_back(std::move(document));
        });
        form.SetUpReports();
    }
    ~ReportsFormTest() override { SetReportPrinter({}); }
    ReportsFormTest(const ReportsFormTest&) = delete;
    ReportsFormTest& operator=(const ReportsFormTest&) = delete;

    WatchedPlatform watched;
    std::vector<std::shared_ptr<const ReportDocument>> printed;
    ReportsForm form;
};

TEST_F(ReportsFormTest, TheHourglassStandsFromTheCheckOfTheRationOn) {
    form.cmdPrintPreview.Click();
    EXPECT_EQ(watched.Seen, (Seen{"hourglass", "Error", "arrow"}));
    watched.Seen.clear();
    form.lstReportComponents.SetSelected(3, true);
    form.cmdPrintPreview.Click();
    EXPECT_EQ(watched.Seen, (Seen{"hourglass", "arrow"}));
    watched.Seen.clear();
    TheSimulation().TotalDMI = 0;
    form.cmdPrint.Click();
    EXPECT_EQ(watched.Seen, (Seen{"No Ration Specified"}));
}

TEST_F(ReportsFormTest, AFaultOfAReportTakesTheHourglassAway) {
    form.lstReportComponents.SetSelected(0, true);
    TheSimulation().Feeds[0].DM = 0;
    EXPECT_THROW(form.cmdPrint.Click(), RuntimeError);
    EXPECT_EQ(watched.Seen.back(), "arrow");
    EXPECT_TRUE(printed.empty());
}

TEST_F(ReportsFormTest, APrintGoesToThePrinter) {
    form.lstReportComponents.SetSelected(3, true);
    form.cmdPrintPreview.Click();
    EXPECT_TRUE(printed.empty());
    EXPECT_EQ(form.vp.Document(), LastReport().Document);
    form.cmdPrint.Click();
    ASSERT_EQ(printed.size(), 1U);
    EXPECT_NE(form.vp.Document(), printed[0]);
    EXPECT_EQ(printed[0]->Title, "TAV Dairy Cattle Program - Report");
    // With the pane on show a new set-up of the printer makes the document anew, and it goes where
    // the last one went.
    form.cmdPrinterSetup.Click();
    EXPECT_EQ(printed.size(), 2U);
    form.cmdPrintPreview.Click();
    form.cmdPrinterSetup.Click();
    EXPECT_EQ(printed.size(), 2U);
    EXPECT_EQ(form.vp.Document(), LastReport().Document);
}

TEST_F(ReportsFormTest, ThePageOnShowStaysOnShow) {
    for (int i = 0; i < form.lstReportComponents.ListCount(); ++i)
        form.lstReportComponents.SetSelected(i, true);
    form.cmdPrintPreview.Click();
    ASSERT_GT(form.vp.PageCount(), 5);
    form.vp.SetPreviewPage(5);
    form.cmdPrinterSetup.Click();
    EXPECT_EQ(form.vp.PreviewPage(), 5);
}

TEST_F(ReportsFormTest, ThePaneReachesToTheFootOfTheScreen) {
    TheForms().Register("frmReports", [] { return std::make_unique<ReportsForm>(); });
    TheForms().Run([] {
        auto& shown = dynamic_cast<ReportsForm&>(TheForms().Show("frmReports"));
        shown.lstReportComponents.SetSelected(3, true);
        shown.cmdPrintPreview.Click();
        EXPECT_TRUE(shown.vp.Visible);
        shown.Resize(12000, 9000);
        EXPECT_EQ(Number(shown.vp.Height), 9000 - 300 - Number(shown.vp.Top));
        EXPECT_FALSE(shown.vp.Visible);
        shown.Resize(12000, 1000);
        EXPECT_EQ(Number(shown.vp.Height), 0);
    });
    TheForms().Clear();
}

}  // namespace
}  // namespace tav
