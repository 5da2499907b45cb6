#include "desktop/page_arrangement.h"

#include "desktop/drawn_pages.h"
#include "qt_application.h"

#include <gtest/gtest.h>

namespace tav {
namespace {

const QSize kRoom(800, 500);

// Pages of letter size; those named lie on their side.
ReportDocument Document(int pages, const std::vector<int>& landscape = {}) {
    ReportDocument document;
    for (int i = 1; i <= pages; ++i) {
        ReportPage page;
        const bool lies = std::find(landscape.begin(), landscape.end(), i) != landscape.end();
        page.Width = lies ? 15840 : 12240;
        page.Height = lies ? 12240 : 15840;
        document.Pages.push_back(page);
    }
    return document;
}

std::vector<int> Shown(const PageArrangement& arrangement) {
    std::vector<int> pages;
    for (const PagePlace& place : arrangement.Pages)
        pages.push_back(place.Page);
    return pages;
}

QRect Around(const PageArrangement& arrangement) {
    QRect all;
    for (const PagePlace& place : arrangement.Pages)
        all |= place.Place;
    return all;
}

TEST(PageArrangement, APercentageIsThatOfPaperOnAnOrdinaryScreen) {
    const auto arrangement = Arrange(Document(3), 2, {ZoomMode::Percentage, 100}, kRoom);
    EXPECT_EQ(Shown(arrangement), std::vector<int>{2});
    EXPECT_EQ(arrangement.Pages[0].Place.size(), QSize(816, 1056));
    EXPECT_EQ(PercentOf(arrangement.Pages[0]), 100);
    EXPECT_GT(arrangement.Size.height(), 1056);
}

TEST(PageArrangement, SenselessPercentagesGiveAPageAllTheSame) {
    for (const int percent : {-5, 0, 1, 32767}) {
        const auto arrangement = Arrange(Document(1), 1, {ZoomMode::Percentage, percent}, kRoom);
        EXPECT_GE(arrangement.Pages[0].Place.width(), 8) << percent;
        EXPECT_LE(arrangement.Pages[0].Place.width(), 816 * 16) << percent;
    }
}

TEST(PageArrangement, PagesThatFitStandInTheMiddleAndNeedNoScrolling) {
    for (const ZoomMode mode : {ZoomMode::WholePage, ZoomMode::TwoPages}) {
        for (const int page : {1, 2, 3}) {
            const auto arrangement = Arrange(Document(3, {2}), page, {mode, 100}, kRoom);
            EXPECT_EQ(arrangement.Size, kRoom);
            EXPECT_TRUE(QRect(QPoint(0, 0), kRoom).contains(Around(arrangement)));
            // One direction is used up.
            const QRect all = Around(arrangement);
            EXPECT_TRUE(all.height() > kRoom.height() - 36 || all.width() > kRoom.width() - 36 ||
                        page == 3);
        }
    }
    const auto narrow = Arrange(Document(1), 1, {ZoomMode::WholePage, 100}, QSize(3, 2));
    EXPECT_FALSE(narrow.Pages[0].Place.isEmpty());
}

TEST(PageArrangement, PageWidthFillsTheWidthOfEachPage) {
    for (const int page : {1, 2}) {
        const auto arrangement = Arrange(Document(2, {2}), page, {ZoomMode::PageWidth, 100}, kRoom);
        EXPECT_NEAR(arrangement.Pages[0].Place.width(), kRoom.width() - 32, 1);
        EXPECT_EQ(arrangement.Size.width(), kRoom.width());
    }
}

TEST(PageArrangement, PairsBeginWithOddPages) {
    const ReportDocument document = Document(5);
    const PageZoom pairs{ZoomMode::TwoPages, 100};
    EXPECT_EQ(Shown(Arrange(document, 1, pairs, kRoom)), (std::vector{1, 2}));
    EXPECT_EQ(Shown(Arrange(document, 4, pairs, kRoom)), (std::vector{3, 4}));
    const auto last = Arrange(document, 5, pairs, kRoom);
    EXPECT_EQ(Shown(last), std::vector{5});
    // It stands where it would with a neighbour.
    EXPECT_EQ(last.Pages[0].Place, Arrange(document, 3, pairs, kRoom).Pages[0].Place);
    EXPECT_EQ(PageBeside(4, 1, ZoomMode::TwoPages), 5);
    EXPECT_EQ(PageBeside(4, -1, ZoomMode::TwoPages), 1);
    EXPECT_EQ(PageBeside(4, 1, ZoomMode::WholePage), 5);
}

TEST(PageArrangement, ThumbnailsFlowInRowsWithoutTouching) {
    const auto arrangement =
        Arrange(Document(11, {3, 4}), 1, {ZoomMode::Thumbnail, 100}, QSize(500, 300));
    ASSERT_EQ(arrangement.Pages.size(), 11U);
    EXPECT_EQ(arrangement.Size.width(), 500);
    for (const PagePlace& one : arrangement.Pages) {
        EXPECT_TRUE(QRect(QPoint(0, 0), arrangement.Size)
                        .contains(one.Place.adjusted(-3, -3, 3, kThumbnailLabelHeight)));
        for (const PagePlace& other : arrangement.Pages) {
            EXPECT_TRUE(
                &one == &other ||
                !one.Place.adjusted(0, 0, 0, kThumbnailLabelHeight).intersects(other.Place));
        }
    }
}

TEST(PageArrangement, ADocumentWithoutPagesIsAnEmptyRoom) {
    const auto arrangement = Arrange({}, 1, {ZoomMode::WholePage, 100}, kRoom);
    EXPECT_TRUE(arrangement.Pages.empty());
    EXPECT_EQ(arrangement.Size, kRoom);
}

TEST(DrawnPages, OnlyWhatIsOnShowIsKept) {
    QtApplication();
    const ReportDocument document = Document(40);
    const auto arrangement = Arrange(document, 1, {ZoomMode::Thumbnail, 100}, kRoom);
    QImage screen(kRoom, QImage::Format_RGB32);
    QPainter painter(&screen);
    DrawnPages drawn;
    for (const PagePlace& place : arrangement.Pages)
        drawn.Draw(painter, document.Pages.front(), place, screen.rect());
    EXPECT_EQ(drawn.Kept(), 40U);
    drawn.KeepOnly(arrangement, screen.rect());
    EXPECT_EQ(drawn.Kept(), 12U);  // three rows of four, the last of them cut off
    const auto huge = Arrange(document, 1, {ZoomMode::Percentage, 1600}, kRoom);
    drawn.Draw(painter, document.Pages.front(), huge.Pages[0], screen.rect());
    EXPECT_EQ(drawn.Kept(), 11U);
}

}  // namespace
}  // namespace tav
