#include "desktop/printing.h"

#include "desktop/pdf_file.h"
#include "page_pictures.h"
#include "pdf/pdf_document.h"
#include "qt_application.h"
#include "support/report_fixture.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <sys/resource.h>

namespace tav {
namespace {

// A disk on which a file can't grow beyond so many bytes, for as long as it lives.
class FullDisk {
  public:
    explicit FullDisk(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit small{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
        handler_ = std::signal(SIGXFSZ, SIG_IGN);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

  private:
    rlimit before_{};
    void (*handler_)(int) = nullptr;
};

class PrintingTest : public ReportTest {
  protected:
    PrintingTest() {
        QtApplication();
        Load("Dry Cow");
    }

    QString Place(const std::string& name) const {
        return QString::fromStdString(folder.Path(name));
    }
    std::string Content(const std::string& name) const {
        std::ifstream file(folder.Path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    std::ptrdiff_t Files() const {
        return std::distance(std::filesystem::directory_iterator(folder.Path("")), {});
    }
    void Write(const std::string& name, const std::string& content) const {
        std::ofstream(folder.Path(name), std::ios::binary) << content;
    }

    TemporaryFolder folder;
};

TEST_F(PrintingTest, ThePdfFileIsTheDocument) {
    const auto document = Make();
    Write("report.pdf", std::string(1'000'000, 'x'));
    EXPECT_EQ(WritePdf(*document, Place("report.pdf")), "");
    EXPECT_EQ(Content("report.pdf"), PdfOf(*document));
    EXPECT_EQ(Files(), 1);
}

TEST_F(PrintingTest, AFullDiskLeavesWhatWasThere) {
    const auto document = Make();
    Write("report.pdf", "as it was");
    const FullDisk full(5000);
    SavePdf(*document, Place("report.pdf"));
    SavePdf(*document, Place("new.pdf"));
    EXPECT_EQ(Content("report.pdf"), "as it was");
    EXPECT_EQ(Files(), 1);
    ASSERT_EQ(platform.Messages.size(), 2U);
    const Message& told = platform.Messages.back().Shown;
    EXPECT_EQ(told.Title, "Report Not Saved");
    EXPECT_NE(told.Text.find(folder.Path("new.pdf")), std::string::npos) << told.Text;
    EXPECT_NE(told.Text.find("Reason:  File too large"), std::string::npos) << told.Text;
}

TEST_F(PrintingTest, APlaceThatCantBeWrittenToIsTold) {
    Write("a file", "content");
    const auto document = Make();
    for (const char* const place : {"no folder/report.pdf", "a file/report.pdf"}) {
        EXPECT_NE(WritePdf(*document, Place(place)), "") << place;
        EXPECT_EQ(Files(), 1);
    }
    EXPECT_NE(WritePdf(*document, Place("")), "");
    EXPECT_EQ(Files(), 1);
}

TEST_F(PrintingTest, TheFileGetsItsSuffixAndReplacesNothingUnasked) {
    const auto document = Make();
    platform.Files = {folder.Path("cow"), folder.Path("cow"), folder.Path("cow"), std::nullopt};
    AskAndSavePdf(*document);
    EXPECT_EQ(platform.Dialogs[0].Asked.FileName, "Dry Cow - Report.pdf");
    EXPECT_EQ(Content("cow.pdf"), PdfOf(*document));
    Write("cow.pdf", "old");
    platform.Answers = {MessageAnswer::No, MessageAnswer::Yes};
    AskAndSavePdf(*document);
    EXPECT_EQ(Content("cow.pdf"), "old");
    AskAndSavePdf(*document);
    EXPECT_EQ(Content("cow.pdf"), PdfOf(*document));
    AskAndSavePdf(*document);  // cancelled
    EXPECT_EQ(Files(), 1);
    EXPECT_EQ(platform.Dialogs.back().Asked.InitDir + "/", folder.Path(""));
}

TEST_F(PrintingTest, TheNameIsOneThatEverySystemTakes) {
    const auto document = Make();
    const auto named = [&](const std::string& simulation) {
        TheProgram().SimulationFileName = simulation;
        return ProposedPdfName(*document);
    };
    EXPECT_EQ(named("Herd 7.tav"), "Herd 7 - Report.pdf");
    EXPECT_EQ(named("a/b:c*?.tav"), "a_b_c__ - Report.pdf");
    EXPECT_EQ(named(""), "TAV Dairy Cattle Program - Report.pdf");
    EXPECT_EQ(named("..hidden"), "_hidden - Report.pdf");
    EXPECT_LT(named(std::string(500, 'x')).size(), 100U);
}

TEST_F(PrintingTest, PaperShowsWhatThePdfShows) {
    const auto document = Make();
    Write("own.pdf", PdfOf(*document));
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(Place("printed.pdf"));
    printer.setPageSize(QPageSize(QPageSize::Letter));
    const std::vector<int> pages = {3, 1, 4};
    EXPECT_EQ(document->Pages[2].Orientation, kLandscape);
    EXPECT_EQ(document->Pages[0].Orientation, kPortrait);
    ASSERT_TRUE(PrintPages(printer, *document, pages));
    for (int i = 0; i < 3; ++i) {
        SCOPED_TRACE(pages[static_cast<std::size_t>(i)]);
        ExpectSamePicture(PictureOfPdf(folder.Path("own.pdf"), pages[static_cast<std::size_t>(i)]),
                          PictureOfPdf(folder.Path("printed.pdf"), i + 1));
    }
}

TEST_F(PrintingTest, NarrowerPaperTakesThePageSmaller) {
    ReportDocument document;
    document.Pages.push_back({0, 12240, 15840, {}, {{0, 7920, 12240, 7920, 40}}, "", "", ""});
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(Place("printed.pdf"));
    printer.setPageSize(QPageSize(QPageSize::A4));
    ASSERT_TRUE(PrintPages(printer, document, {1}));
    const QImage picture = PictureOfPdf(folder.Path("printed.pdf"), 1);
    const int middle = picture.height() / 2;
    EXPECT_TRUE(HasInk(picture, 2, middle));
    EXPECT_TRUE(HasInk(picture, picture.width() - 3, middle));
}

TEST_F(PrintingTest, APrinterThatCantBeReachedIsNoCrash) {
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(Place("no folder/printed.pdf"));
    EXPECT_FALSE(PrintPages(printer, *Make(), {1}));
}

TEST_F(PrintingTest, TheSetupGivesTheOrientationOnlyIfItIsConfirmed) {
    const auto answer = [](int orientation, QDialogButtonBox::StandardButton button) {
        QTimer::singleShot(0, [=] {
            auto* const dialog = dynamic_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            const auto choices = dialog->findChildren<QRadioButton*>();
            choices[orientation]->setChecked(true);
            dialog->findChild<QDialogButtonBox*>()->button(button)->click();
        });
    };
    answer(1, QDialogButtonBox::Ok);
    EXPECT_EQ(ShowPrinterSetup(0, nullptr), 1);
    answer(0, QDialogButtonBox::Ok);
    EXPECT_EQ(ShowPrinterSetup(1, nullptr), 0);
    answer(1, QDialogButtonBox::Cancel);
    EXPECT_EQ(ShowPrinterSetup(0, nullptr), 0);
}

}  // namespace
}  // namespace tav
