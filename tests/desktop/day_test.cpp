// A whole day of a nutritionist, on the screens as they are, from the terms of use to the second
// start.
#include "driven_program.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QListWidget>
#include <QPushButton>
#include <QTableView>
#include <array>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <sstream>

namespace tav {
namespace {

namespace fs = std::filesystem;

// Reads what a tool of poppler prints.
std::string OutputOf(const std::string& command) {
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
    std::string output;
    std::array<char, 4096> part{};
    while (const std::size_t count = std::fread(part.data(), 1, part.size(), pipe.get()))
        output.append(part.data(), count);
    return output;
}

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

class Day : public DrivenProgram {
  protected:
    void DescribeTheCow() {
        Click("frmInputs.optEnglish");
        ClickTab("frmInputs.InputTabs", 1);
        Enter("frmInputs.txtBodyWeight", "1400");
        Enter("frmInputs.txtAge", "48");
        Enter("frmInputs.txtDaysInMilk", "120 days");
        ClickTab("frmInputs.InputTabs", 2);
        Enter("frmInputs.txtMilkProduction", "80");
        Enter("frmInputs.txtMilkFat", "3.8");
        ClickTab("frmInputs.InputTabs", 3);
        Enter("frmInputs.txtTemperature", "50");
        ClickTab("frmInputs.InputTabs", 0);
        EXPECT_NEAR(TheSimulation().BodyWeight.Value(), 635.03, 0.01);
        EXPECT_NEAR(TheSimulation().MilkProduction.Value(), 36.287, 0.01);
        EXPECT_EQ(TheSimulation().DaysInMilk, 120);
        EXPECT_EQ(TheSimulation().Temperature.Value(), 10);
    }

    // By name, from the lists in which they stand.
    void AddFeeds(const std::vector<std::string>& names) {
        Click("frmFeeds.cmdAddFeed");
        for (const std::string& name : names) {
            for (int list = 0; list < 9; ++list) {
                const std::string control = "frmAddFeed.lstCategory(" + std::to_string(list) + ")";
                if (Model<ListBox>(control).IndexOf(name) >= 0) Mark(control, name);
            }
        }
        EXPECT_EQ(Model<Grid>("frmAddFeed.grdFeedValues").Rows(),
                  static_cast<int>(names.size()) + 1);
        Key(Qt::Key_Return);
        EXPECT_EQ(TheForms().Find("frmAddFeed"), nullptr);
        EXPECT_EQ(TheSimulation().NumFeeds, static_cast<int>(names.size()));
    }

    void EditCell(const std::string& grid, int row, int col, const std::string& text) {
        auto& table = Widget<QTableView>(grid);
        const auto& model = Model<Grid>(grid);
        const QModelIndex cell = table.model()->index(row - model.FixedRows, col - model.FixedCols);
        table.scrollTo(cell);
        Click(*table.viewport(), table.visualRect(cell).center());
        Type(text);
        Key(Qt::Key_Return);
    }

    void PrintToFile(const std::string& path) {
        Asked.Do([](QWidget& dialog) {
            auto* const printers = dialog.findChild<QComboBox*>();
            printers->setCurrentIndex(printers->count() - 1);  // the file
            auto* const buttons = dialog.findChild<QDialogButtonBox*>();
            QTest::mouseClick(buttons->button(QDialogButtonBox::Ok), Qt::LeftButton);
        });
        Click("frmReports.cmdPrinterSetup");
        Asked.ChooseFile(path);
        Click("frmReports.cmdPrint");
    }

    void ExitWithBothQuestions() {
        Asked.Press(QMessageBox::Yes);
        Asked.Press(QMessageBox::Yes);
        QTimer::singleShot(0, qApp, [this] { ClickMenu("File", "Exit Program"); });
        EXPECT_EQ(QApplication::exec(), 0);
        const std::vector<Said> said = Messages();
        ASSERT_EQ(said.size(), 2U);
        EXPECT_EQ(said[0].Title, "Exit Program?");
        EXPECT_EQ(said[1].Title, "Save Defaults Before Exiting?");
    }
};

TEST_F(Day, FromTheTermsToTheSecondStart) {
    Begin();
    AcceptTerms();
    EXPECT_EQ(Messages().size(), 2U);  // neither settings nor a simulation yet
    DescribeTheCow();

    ClickToolbar("Feeds");
    AddFeeds({"Maize silage, dough stage", "Lucerne silage, early bloom", "Limestone, ground"});
    constexpr int kProteinRow = 12;
    ASSERT_EQ(Model<Grid>("frmFeeds.grdFeedData").TextMatrix(kProteinRow, 0), "CP (%DM)");
    EditCell("frmFeeds.grdFeedData", kProteinRow, 1, "9.1");
    EditCell("frmFeeds.grdFeedData", 0, 1, "Our maize & <own>");
    Messages();

    ClickToolbar("Ration");
    EXPECT_EQ(TheSimulation().Feeds[0].Name, "Our maize & <own>");
    EXPECT_EQ(TheSimulation().Feeds[0].CP.Value(), Single(9.1).Value());
    EditCell("frmRation.grdRation", 2, 1, "30");
    Type("20");
    Key(Qt::Key_Return);
    Type("0.4");
    Key(Qt::Key_Return);
    Click("frmRation.cmdResetIntake");
    EXPECT_EQ(Model<NumericTextBox>("frmRation.txtTotalIntake").Text, "50.400 lbs/day");
    Click("frmRation.cmdEstimateIntake");
    const double intake = TheSimulation().TotalDMI.Value();
    EXPECT_GT(intake, 15);
    EXPECT_NE(Model<NumericTextBox>("frmRation.txtTotalIntake").Text, "50.400 lbs/day");

    ClickToolbar("Reports");
    for (const std::string& report : Model<ListBox>("frmReports.lstReportComponents").Items()) {
        if (!Model<ListBox>("frmReports.lstReportComponents")
                 .Selected(Model<ListBox>("frmReports.lstReportComponents").IndexOf(report)))
            Mark("frmReports.lstReportComponents", report);
    }
    Click("frmReports.cmdPrintPreview");
    const int pages = Model<DocumentPane>("frmReports.vp").PageCount();
    EXPECT_GT(pages, 4);
    EXPECT_TRUE(WidgetOf("frmReports.vp").isVisible());
    PrintToFile(InFolder("day.pdf"));
    EXPECT_TRUE(Messages().empty());

    Asked.ChooseFile(InFolder("Day"));
    ClickMenu("File", "Save Simulation As...");
    EXPECT_EQ(TheMessage().Text, "Simulation Data File Saved");
    EXPECT_EQ(MainWindow().windowTitle().toStdString(),
              "TAV Feeding Standards for Milking Herds v. 1.1.9 - Day");

    ClickMenu("Go To...", "Batch File Utility");
    EXPECT_EQ(TheMessage().Title, "Welcome to the Batch File Utility!");
    Mark("frmBatchOps.FileList", "Day.tav");
    Click("frmBatchOps.cmdAdd");
    Asked.ChooseFile(InFolder("herd.csv"));
    Click("frmBatchOps.cmdRun");
    EXPECT_EQ(TheMessage().Title, "Batch Files Run");

    ClickMenu("File", "Auto-Save Default Data On Exit");
    ExitWithBothQuestions();

    // What the day has left.
    const std::string saved = Content(InFolder("Day.tav"));
    EXPECT_NE(saved.find("Our maize & <own>"), std::string::npos);
    EXPECT_NE(saved.find("Lactating Cow"), std::string::npos);
    const std::vector<std::string> table = LinesOf(Content(InFolder("herd.csv")));
    ASSERT_EQ(table.size(), 5U);
    EXPECT_NE(table[3].find("\"Our maize & <own> ("), std::string::npos) << table[3];
    EXPECT_EQ(table[4].find("\"Day.tav\",\"Lactating Cow\",48,"), 0U) << table[4];
    const std::string text = OutputOf("pdftotext -layout '" + InFolder("day.pdf") + "' -");
    EXPECT_EQ(std::count(text.begin(), text.end(), '\f'), pages);
    EXPECT_NE(text.find("Our maize & <own>"), std::string::npos);
    EXPECT_NE(text.find("(lbs/day)"), std::string::npos);
    const std::vector<std::string> settings =
        LinesOf(Content(InFolder("TAV Dairy Cattle Program Settings Data File")));
    ASSERT_EQ(settings.size(), 20U);
    EXPECT_EQ(settings[0].find("TAV Dairy Cattle Program Settings File"), 0U);

    // The next morning.
    Begin();
    AcceptTerms();
    EXPECT_TRUE(Messages().empty());
    EXPECT_FALSE(TheProgram().UseMetric);
    EXPECT_FALSE(TheProgram().AutoSaveDefault);
    EXPECT_EQ(TheSimulation().NumFeeds, 3);
    EXPECT_EQ(TheSimulation().Feeds[0].Name, "Our maize & <own>");
    EXPECT_NEAR(TheSimulation().TotalDMI.Value(), intake, 0.01);
    EXPECT_FALSE(ActionOf("File", "Auto-Save Default Data On Exit").isChecked());
    ClickToolbar("Ration");
    EXPECT_EQ(Model<Grid>("frmRation.grdRation").TextMatrix(2, 0).find("      1.  Our maize"), 0U);
}

}  // namespace
}  // namespace tav
