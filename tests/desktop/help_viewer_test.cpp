// Reading the help, and the small window with the text on a control.
#include "desktop/help_viewer.h"

#include "desktop/help_document.h"
#include "desktop/help_panel.h"
#include "desktop/whats_this_pop_up.h"
#include "qt_application.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QScrollBar>
#include <QTabWidget>
#include <QTextBlock>
#include <QTextBrowser>
#include <QToolButton>
#include <QUrl>

#include <gtest/gtest.h>

namespace tav {
namespace {

void Press(QWidget& widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QKeyEvent press(QEvent::KeyPress, key, modifiers);
    QApplication::sendEvent(&widget, &press);
}

class Displayed : public testing::Test {
  protected:
    Displayed() { QtApplication(); }
};

class Viewer : public Displayed {
  protected:
    std::string Title() const { return Page().document()->firstBlock().text().toStdString(); }
    QTextBrowser& Page() const { return *Viewed.findChild<QTextBrowser*>(); }
    QToolButton& Button(int place) const {
        return *Viewed.findChildren<QToolButton*>(Qt::FindDirectChildrenOnly).at(place);
    }
    // The entry and the list of the index (1) or the search (2).
    HelpPanel& Panel(int tab) const {
        return *dynamic_cast<HelpPanel*>(Viewed.findChild<QTabWidget*>()->widget(tab));
    }
    void Follow(const char* link) { Q_EMIT Page().anchorClicked(QUrl(link)); }

    // The heading that stands at the top of what is seen of the page.
    std::string TopHeading() const {
        QApplication::processEvents();
        const QTextBlock block = Page().cursorForPosition({20, 24}).block();
        return block.text().toStdString();
    }

    const HelpFile Help = HelpFile::Read(HELP_FILE);
    HelpViewer Viewed{Help};
};

TEST_F(Viewer, OpensThePageOfAControlAtItsSection) {
    EXPECT_FALSE(Viewed.ShowTopic("lblNowhere"));
    EXPECT_FALSE(Viewed.isVisible());
    ASSERT_TRUE(Viewed.ShowTopic("frmInputs.txtConditionScore"));
    EXPECT_TRUE(Viewed.isVisible());
    EXPECT_EQ(Title(), "Animal description");
    EXPECT_EQ(TopHeading(), "Condition score");
}

TEST_F(Viewer, GoesBackAndForwardThroughThePages) {
    Viewed.ShowContents();
    EXPECT_EQ(Title(), "Welcome");
    EXPECT_FALSE(Button(0).isEnabled());
    Follow("ration.md#shares");
    EXPECT_EQ(Title(), "The ration");
    EXPECT_EQ(TopHeading(), "Shares");
    Follow("#total-intake");
    EXPECT_EQ(TopHeading(), "Total Intake");
    Follow("nowhere.md");
    EXPECT_EQ(Title(), "The ration");

    Button(0).click();
    EXPECT_EQ(TopHeading(), "Shares");
    Button(0).click();
    EXPECT_EQ(Title(), "Welcome");
    EXPECT_FALSE(Button(0).isEnabled());
    Button(1).click();
    EXPECT_EQ(TopHeading(), "Shares");
    // Another page from here takes the place of those that lay ahead.
    Follow("units.md");
    EXPECT_FALSE(Button(1).isEnabled());
    Button(2).click();
    EXPECT_EQ(Title(), "Welcome");
}

TEST_F(Viewer, IndexLeadsToTheKeywordThatBeginsWithTheText) {
    HelpPanel& index = Panel(1);
    auto* const entry = index.findChild<QLineEdit*>();
    entry->setText("hair");
    Press(*entry, Qt::Key_Return);
    EXPECT_EQ(Title(), "Management and environment");
    entry->setText("no such keyword");
    Press(*entry, Qt::Key_Return);
    EXPECT_EQ(Title(), "Management and environment");
}

TEST_F(Viewer, SearchMarksTheWordsAndLosesThemOnAnotherPage) {
    HelpPanel& search = Panel(2);
    auto* const entry = search.findChild<QLineEdit*>();
    auto* const hits = search.findChild<QListWidget*>();
    entry->setText("insulation");
    ASSERT_GT(hits->count(), 1);
    Press(*entry, Qt::Key_Down);
    EXPECT_EQ(hits->currentRow(), 1);
    Press(*entry, Qt::Key_Return);
    EXPECT_FALSE(Page().extraSelections().isEmpty());
    Follow("units.md");
    EXPECT_TRUE(Page().extraSelections().isEmpty());
    Button(0).click();
    QApplication::processEvents();  // paints the page that was marked

    entry->setText("xyzzy");
    ASSERT_EQ(hits->count(), 1);
    Press(*entry, Qt::Key_Return);
    EXPECT_NE(Title(), "");
}

TEST_F(Viewer, MakesLettersLargerAlsoOfAFontInPixels) {
    QFont pixels = QApplication::font();
    pixels.setPixelSize(12);
    const QFont before = QApplication::font();
    QApplication::setFont(pixels);
    const HelpViewer viewer{Help};
    QApplication::setFont(before);
    auto* const page = viewer.findChild<QTextBrowser*>();
    const double size = page->font().pointSizeF();
    EXPECT_GT(size, 0);
    page->zoomIn();
    EXPECT_GT(page->font().pointSizeF(), size);
}

TEST_F(Viewer, TakesUpTheColoursOfANewPalette) {
    Viewed.ShowTopic("txtTotalIntake");
    QPalette dark = Viewed.palette();
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Text, QColor(240, 240, 240));
    dark.setColor(QPalette::Link, QColor(0, 0, 255));
    Viewed.setPalette(dark);
    EXPECT_EQ(Title(), "The ration");
    const QColor link = ReadableLink(dark, dark.color(QPalette::Base), dark.color(QPalette::Text));
    EXPECT_NE(link, dark.color(QPalette::Link));
    bool found = false;
    for (QTextBlock block = Page().document()->begin(); block.isValid(); block = block.next()) {
        for (const QTextLayout::FormatRange& range : block.textFormats()) {
            if (range.format.anchorHref().isEmpty()) continue;
            found = true;
            EXPECT_EQ(range.format.foreground().color(), link);
        }
    }
    EXPECT_TRUE(found);
}

class PopUp : public Displayed {
  protected:
    void Show(const char* control, QPoint at = {100, 100}) {
        Window.ShowWhatsThis(
            Help, control, "Hair Depth", at, [this] { ++Jumps; }, [this](QPoint) { ++Menus; });
    }
    std::string Texts() const {
        QString texts;
        for (const QLabel* const label : Window.findChildren<QLabel*>())
            texts += label->text() + '\n';
        return texts.toStdString();
    }

    const HelpFile Help = HelpFile::Read(HELP_FILE);
    WhatsThisPopUp Window;
    int Jumps = 0;
    int Menus = 0;
};

TEST_F(PopUp, ShowsTheTextAndLeadsOn) {
    Show("txtHairDepth");
    EXPECT_TRUE(Window.isVisible());
    EXPECT_NE(Texts().find(Help.Note("txtHairDepth")->Text.toStdString()), std::string::npos);
    Press(Window, Qt::Key_Return);
    EXPECT_FALSE(Window.isVisible());
    EXPECT_EQ(Jumps, 1);

    Show("txtHairDepth");
    Press(Window, Qt::Key_Escape);
    EXPECT_FALSE(Window.isVisible());
    EXPECT_EQ(Jumps, 1);

    Show("txtHairDepth");
    QContextMenuEvent rightClick(QContextMenuEvent::Mouse, {5, 5}, {105, 105});
    QApplication::sendEvent(&Window, &rightClick);
    EXPECT_FALSE(Window.isVisible());
    EXPECT_EQ(Menus, 1);
}

TEST_F(PopUp, OffersTheContentsWhereThereIsNoText) {
    Show("lblNowhere");
    EXPECT_NE(Texts().find("Open the contents of the help"), std::string::npos);
    Press(Window, Qt::Key_Return);
    EXPECT_EQ(Jumps, 1);
}

TEST_F(PopUp, StaysOnTheScreen) {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    for (const QPoint at :
         {room.topLeft(), room.topRight(), room.bottomLeft(), room.bottomRight()}) {
        Show("txtBodyWeight", at);
        EXPECT_TRUE(room.contains(Window.geometry())) << at.x() << " " << at.y();
        Window.close();
    }
}

}  // namespace
}  // namespace tav
