#include "desktop/document_view.h"

#include "desktop/desktop.h"
#include "desktop/form_view.h"
#include "forms/form_registry.h"
#include "qt_application.h"
#include "support/report_fixture.h"

#include <QLabel>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

namespace tav {
namespace {

class PaneForm : public Form {
  public:
    PaneForm() : Form("frmPane") {
        Width = 12000;
        Height = 9000;
        vp.Move(150, 150, 11000, 8000);
    }
    DocumentPane vp{*this, "vp"};
};

class DocumentViewTest : public ReportTest {
  protected:
    DocumentViewTest() {
        QtApplication();
        Load("Dry Cow");
        TheForms().Register("frmPane", [] { return std::make_unique<PaneForm>(); });
        TheDesktop().Perform([this] {
            TheForms().Show("frmPane");
            Pane().SetDocument(Make());
            Pane().ZoomMode = ZoomMode::WholePage;
        });
    }
    ~DocumentViewTest() override {
        TheForms().Clear();
        TheDesktop().Refresh();
    }
    DocumentViewTest(const DocumentViewTest&) = delete;
    DocumentViewTest& operator=(const DocumentViewTest&) = delete;

    static DocumentPane& Pane() { return TheForms().Get<PaneForm>("frmPane").vp; }
    static PageArea& Area() {
        FormView* const form = TheDesktop().ViewOf(*TheForms().Find("frmPane"));
        return dynamic_cast<PageArea&>(*form->ViewOf(Pane())->FocusWidget());
    }
    static QString BarText() { return Area().parentWidget()->findChild<QLabel*>()->text(); }

    // What the program does to the pane, then shown.
    static void Set(const std::function<void(DocumentPane&)>& change) {
        TheDesktop().Perform([&] { change(Pane()); });
    }
    static void Press(Qt::Key key) { QTest::keyClick(&Area(), key); }
    static void Wheel(int turned, Qt::KeyboardModifiers held = Qt::NoModifier) {
        QWheelEvent event(QPointF(50, 50), QPointF(50, 50), {}, {0, turned}, Qt::NoButton, held,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(Area().viewport(), &event);
    }
};

TEST_F(DocumentViewTest, KeysTurnThePagesOfThePane) {
    const int last = Pane().PageCount();
    ASSERT_GT(last, 3);
    const std::vector<std::pair<Qt::Key, int>> steps = {
        {Qt::Key_PageUp, 1}, {Qt::Key_PageDown, 2},    {Qt::Key_PageDown, 3}, {Qt::Key_PageUp, 2},
        {Qt::Key_End, last}, {Qt::Key_PageDown, last}, {Qt::Key_Home, 1}};
    for (const auto& [key, page] : steps) {
        Press(key);
        EXPECT_EQ(Pane().PreviewPage(), page);
        EXPECT_EQ(Area().Page(), page);
        EXPECT_EQ(BarText(), QString("Page %1 of %2").arg(page).arg(last));
    }
}

TEST_F(DocumentViewTest, OnlyThePaneTurnsThePage) {
    Set([](DocumentPane& pane) { pane.SetPreviewPage(3); });
    EXPECT_EQ(Area().Page(), 3);
    // A pane that can't be used refuses, and the view stays with it.
    Set([](DocumentPane& pane) { pane.Enabled = false; });
    Area().TurnBy(1);
    EXPECT_EQ(Pane().PreviewPage(), 3);
    EXPECT_EQ(Area().Page(), 3);
    Set([](DocumentPane& pane) { pane.Enabled = true; });
    Area().TurnBy(1);
    EXPECT_EQ(Pane().PreviewPage(), 4);
}

TEST_F(DocumentViewTest, TwoPagesTurnAsOne) {
    Set([](DocumentPane& pane) { pane.ZoomMode = ZoomMode::TwoPages; });
    Press(Qt::Key_PageDown);
    EXPECT_EQ(Pane().PreviewPage(), 3);
    EXPECT_TRUE(BarText().startsWith("Pages 3 and 4 of ")) << BarText().toStdString();
    Press(Qt::Key_PageUp);
    EXPECT_EQ(Pane().PreviewPage(), 1);
}

TEST_F(DocumentViewTest, TheWheelScrollsAndTurnsAtTheEdge) {
    Set([](DocumentPane& pane) {
        pane.ZoomMode = ZoomMode::Percentage;
        pane.Zoom = 75;
    });
    QScrollBar& bar = *Area().verticalScrollBar();
    ASSERT_GT(bar.maximum(), 0);
    Wheel(-120);
    EXPECT_EQ(Pane().PreviewPage(), 1);
    EXPECT_GT(bar.value(), 0);
    bar.setValue(bar.maximum());
    Wheel(-60);
    EXPECT_EQ(Pane().PreviewPage(), 1);  // half a notch
    Wheel(-60);
    EXPECT_EQ(Pane().PreviewPage(), 2);
    EXPECT_EQ(bar.value(), 0);
    Wheel(120);
    EXPECT_EQ(Pane().PreviewPage(), 1);
    EXPECT_EQ(bar.value(), bar.maximum());  // back where one came from
}

TEST_F(DocumentViewTest, TheZoomOfTheWheelIsTheViewsOwn) {
    Set([](DocumentPane& pane) {
        pane.ZoomMode = ZoomMode::Percentage;
        pane.Zoom = 80;
    });
    Wheel(120, Qt::ControlModifier);
    EXPECT_EQ(Area().ZoomText(), "100%");
    EXPECT_EQ(Pane().Zoom, 80);
    Press(Qt::Key_PageDown);
    EXPECT_EQ(Area().ZoomText(), "100%");  // stays from page to page
    QTest::keyClick(&Area(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(Area().ZoomText(), "80%");
    Wheel(-240, Qt::ControlModifier);
    EXPECT_EQ(Area().ZoomText(), "51%");
    const auto another = Make({"Summary Report"});
    Set([&](DocumentPane& pane) { pane.SetDocument(another); });
    EXPECT_EQ(Area().ZoomText(), "80%");
}

TEST_F(DocumentViewTest, AThumbnailLeadsToItsPage) {
    Set([](DocumentPane& pane) { pane.ZoomMode = ZoomMode::Thumbnail; });
    const QSize room = Area().viewport()->size();
    const auto document = std::dynamic_pointer_cast<const ReportDocument>(Pane().Document());
    const auto places = Arrange(*document, 1, {ZoomMode::Thumbnail, 100}, room).Pages;
    QTest::mouseClick(Area().viewport(), Qt::LeftButton, {}, places[2].Place.center());
    EXPECT_EQ(Pane().PreviewPage(), 3);
    QTest::mouseClick(Area().viewport(), Qt::LeftButton, {}, QPoint(2, 2));
    EXPECT_EQ(Pane().PreviewPage(), 3);
    QTest::mouseDClick(Area().viewport(), Qt::LeftButton, {}, places[0].Place.center());
    EXPECT_NE(Area().ZoomText(), "Thumbnails");  // opened to be read
    EXPECT_EQ(Pane().ZoomMode, ZoomMode::Thumbnail);
}

TEST_F(DocumentViewTest, AnEmptyPaneIsQuiet) {
    Set([](DocumentPane& pane) { pane.SetDocument(nullptr); });
    EXPECT_EQ(BarText(), "No pages");
    for (const Qt::Key key : {Qt::Key_PageDown, Qt::Key_End, Qt::Key_Plus, Qt::Key_Down})
        QTest::keyClick(&Area(), key, Qt::ControlModifier);
    Wheel(-120);
    Wheel(120, Qt::ControlModifier);
    const QImage seen = Area().viewport()->grab().toImage();
    EXPECT_EQ(seen.pixel(seen.width() / 2, seen.height() / 2), seen.pixel(20, 20));
    EXPECT_EQ(Pane().PreviewPage(), 1);
}

TEST_F(DocumentViewTest, ThePageIsThereForThoseWhoHearIt) {
    EXPECT_FALSE(Area().accessibleName().isEmpty());
    const QString words = Area().accessibleDescription();
    EXPECT_TRUE(words.startsWith("Page 1 of ")) << words.toStdString();
    EXPECT_TRUE(words.contains("Summary Report")) << words.toStdString();
}

}  // namespace
}  // namespace tav
