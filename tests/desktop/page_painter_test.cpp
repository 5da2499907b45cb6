#include "desktop/page_painter.h"

#include "page_pictures.h"
#include "pdf/pdf_document.h"
#include "qt_application.h"
#include "support/report_fixture.h"

#include <QPalette>
#include <fstream>

namespace tav {
namespace {

class PagePainterTest : public ReportTest {
  protected:
    PagePainterTest() { QtApplication(); }

    static ReportPage PageWith(std::vector<TextRun> runs, std::vector<Rule> rules = {}) {
        ReportPage page;
        page.Width = 12240;
        page.Height = 2880;
        page.Runs = std::move(runs);
        page.Rules = std::move(rules);
        return page;
    }

    // The columns from the first to the last that hold ink, in twips.
    static std::pair<double, double> InkOf(const QImage& picture) {
        int first = picture.width();
        int last = -1;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (!HasInk(picture, x, y)) continue;
                first = std::min(first, x);
                last = std::max(last, x);
            }
        }
        return {first / kPictureScale, (last + 1) / kPictureScale};
    }

    static TextRun Run(const std::string& text, Twips width, const TextStyle& style = {}) {
        return {720, 1440, width, text, "Times New Roman", style};
    }
};

TEST_F(PagePainterTest, InkStandsWhereThePdfHasIt) {
    Load("Lactating Cow");
    const auto document = Make();
    const TemporaryFolder folder;
    std::ofstream(folder.Path("report.pdf"), std::ios::binary) << PdfOf(*document);
    for (const int page : {1, 3, document->PageCount()}) {  // text, a landscape page, tables
        SCOPED_TRACE(page);
        ExpectSamePicture(PictureOf(document->Pages[static_cast<std::size_t>(page - 1)]),
                          PictureOfPdf(folder.Path("report.pdf"), page));
    }
}

TEST_F(PagePainterTest, TextIsAsWideAsThePageSays) {
    const TextStyle large{.Size = 24, .Bold = true};
    const Twips own = TextWidthOf("HHHHHHHH", large);
    for (const double share : {0.5, 1.0, 1.5}) {
        TextRun run = Run("HHHHHHHH", own * share, large);
        // A font that isn't there, with whatever stands in for it.
        for (const char* const font : {"Times New Roman", "Liberation Mono", "No Such Font"}) {
            run.FontName = font;
            const auto [first, last] = InkOf(PictureOf(PageWith({run})));
            EXPECT_NEAR(first, 720, 70 * share) << font << " " << share;
            EXPECT_NEAR(last, 720 + own * share, 70 * share) << font << " " << share;
        }
    }
}

TEST_F(PagePainterTest, ScriptsThatTimesLacksKeepToTheirRoom) {
    for (const std::string text : {"\xE7\x8E\x89\xE7\xB1\xB3", "\xD0\xAF\xD1\x87\xD0\xBC"}) {
        const auto [first, last] = InkOf(PictureOf(PageWith({Run(text, 2000)})));
        EXPECT_GT(last, first);
        EXPECT_GE(first, 700);
        EXPECT_LE(last, 2740);
    }
}

TEST_F(PagePainterTest, StylesDiffer) {
    std::vector<QImage> pictures;
    for (const TextStyle& style : {TextStyle{}, TextStyle{.Bold = true}, TextStyle{.Italic = true},
                                   TextStyle{.Bold = true, .Italic = true}}) {
        const QImage picture = PictureOf(PageWith({Run("Hay", 720, style)}));
        EXPECT_EQ(std::count(pictures.begin(), pictures.end(), picture), 0);
        pictures.push_back(picture);
    }
}

TEST_F(PagePainterTest, RulesAreSharpAtAnyScale) {
    const ReportPage page = PageWith({}, {{1440, 720, 1440, 1440, 8}, {2880, 720, 2880, 1440, 40}});
    for (const double pixels : {0.01, 0.05, 1 / 15.0, 0.0837, 0.2}) {
        QImage picture(800, 600, QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&picture);
        painter.scale(pixels, pixels);
        PaintPage(painter, page);
        painter.end();
        std::vector<QRgb> shades;
        const int y = static_cast<int>(1000 * pixels);
        for (int x = 0; x < std::min(800, static_cast<int>(2000 * pixels)); ++x) {
            if (qGray(picture.pixel(x, y)) < 250) shades.push_back(picture.pixel(x, y));
        }
        // All of its points alike: no grey fringe beside it.
        EXPECT_EQ(shades.size(), static_cast<std::size_t>(std::max(1.0, std::round(8 * pixels))));
        EXPECT_EQ(std::count(shades.begin(), shades.end(), shades.front()),
                  static_cast<long>(shades.size()));
    }
}

TEST_F(PagePainterTest, ASharperScreenShowsTheSamePageWithMorePoints) {
    Load("Young Calf");
    const ReportPage page = Make()->Pages.front();
    const double scale = kPictureScale / 2;
    QImage picture((QSizeF(page.Width, page.Height) * kPictureScale).toSize(),
                   QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(2);
    QPainter painter(&picture);
    painter.scale(scale, scale);
    PaintPage(painter, page);
    painter.end();
    ExpectSamePicture(picture, PictureOf(page));
}

TEST_F(PagePainterTest, PaperIsWhiteAndInkBlackOnADarkDesktop) {
    const QPalette before = QApplication::palette();
    const ReportPage page = PageWith({Run("HHHH", 3000, {.Size = 24})});
    const QImage light = PictureOf(page);
    QApplication::setPalette(QPalette(QColor(20, 20, 20)));
    const QImage dark = PictureOf(page);
    QApplication::setPalette(before);
    EXPECT_EQ(light, dark);
    EXPECT_EQ(dark.pixel(0, 0), qRgb(255, 255, 255));
}

TEST_F(PagePainterTest, AClippedPageIsTheSameWhereItIsDrawn) {
    Load("Young Calf");
    const ReportPage page = Make()->Pages.front();
    const QImage whole = PictureOf(page);
    QImage part(whole.size(), whole.format());
    part.fill(Qt::white);
    const QRect shown(200, 300, 400, 200);
    QPainter painter(&part);
    painter.setClipRect(shown);
    painter.scale(kPictureScale, kPictureScale);
    PaintPage(painter, page);
    painter.end();
    EXPECT_EQ(part.copy(shown), whole.copy(shown));
}

}  // namespace
}  // namespace tav
