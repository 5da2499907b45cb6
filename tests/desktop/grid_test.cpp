// A spreadsheet's habits in the grids, with mouse and keys.
#include "grid_fixture.h"

#include <QComboBox>
#include <QHeaderView>
#include <QScrollBar>

namespace tav {
namespace {

TEST_F(Grids, TypingOpensACellAndEnterTakesItDown) {
    OpenRation();
    ClickCell(2, 1);
    EXPECT_EQ(Cursor(), Place(2, 1));
    Type("9");
    EXPECT_EQ(EditorText(), "9");
    Type(".5");
    Key(Qt::Key_Return);
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(Cell(2, 1), "9.500");
    EXPECT_FLOAT_EQ(static_cast<float>(TheSimulation().Feeds[0].Qty.Value()), 9.5F);
    EXPECT_EQ(Cursor(), Place(3, 1));
    EXPECT_EQ(Keyboard(), "frmRation.grdRation");
    EXPECT_EQ(Table().currentIndex(), IndexOf(3, 1));

    // Down the column with nothing but keys.
    Type("4");
    Key(Qt::Key_Enter, Qt::KeypadModifier);
    Type("2");
    Key(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(Cursor(), Place(3, 1));
    EXPECT_EQ(TheSimulation().Feeds[1].Qty.Value(), 4);
    EXPECT_EQ(TheSimulation().Feeds[2].Qty.Value(), 2);
}

TEST_F(Grids, TabGoesThroughTheCellsAndOutAtTheEnd) {
    OpenRation();
    ClickCell(2, 1);
    Type("9");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Cursor(), Place(2, 2));
    EXPECT_EQ(Cell(2, 1), "9.000");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Cursor(), Place(3, 1));
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Cursor(), Place(2, 2));
    ClickCell(TheGrid().Rows() - 1, 2);
    Key(Qt::Key_Tab);
    EXPECT_EQ(Keyboard(), "frmRation.txtTotalIntake");
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Keyboard(), "frmRation.grdRation");
}

TEST_F(Grids, EscapeGivesUpAndF2OpensWhatStandsThere) {
    OpenRation();
    const std::string before = Cell(2, 1);
    ClickCell(2, 1);
    Type("777");
    Key(Qt::Key_Escape);
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(Cell(2, 1), before);
    EXPECT_EQ(Keyboard(), "frmRation.grdRation");
    EXPECT_NE(TheForms().Find("frmRation"), nullptr);

    Key(Qt::Key_F2);
    EXPECT_EQ(EditorText(), before);
    Key(Qt::Key_End);
    Key(Qt::Key_Backspace);
    Type("5");
    Key(Qt::Key_Return);
    EXPECT_NE(Cell(2, 1), before);

    ClickCell(2, 1);
    Key(Qt::Key_Delete);
    EXPECT_EQ(EditorText(), "");
    Key(Qt::Key_Escape);

    ClickCell(4, 1);
    QTest::mouseDClick(Table().viewport(), Qt::LeftButton, {},
                       Table().visualRect(IndexOf(4, 1)).center());
    EXPECT_EQ(EditorText(), Cell(4, 1));
    Key(Qt::Key_Escape);
}

TEST_F(Grids, CellsThatCannotBeEditedStayClosed) {
    OpenRation();
    for (const int row : {1, TheGrid().Rows() - 2, TheGrid().Rows() - 1}) {
        ClickCell(row, 1);
        Type("5");
        EXPECT_EQ(Editor(), nullptr) << row;
        Key(Qt::Key_F2);
        EXPECT_EQ(Editor(), nullptr) << row;
    }
}

TEST_F(Grids, ARefusedEntryStaysOpenUntilItIsRight) {
    OpenRation();
    ClickCell(2, 1);
    Type("8,2x");
    Key(Qt::Key_Return);
    const Said said = TheMessage();
    EXPECT_EQ(said.Text, "You can only enter numbers and a decimal point.");
    EXPECT_EQ(said.Title, "Error");
    EXPECT_EQ(said.Icon, QMessageBox::Critical);
    EXPECT_EQ(EditorText(), "8,2x");
    EXPECT_EQ(qobject_cast<QLineEdit*>(Editor())->selectedText().toStdString(), "8,2x");
    EXPECT_EQ(QApplication::focusWidget(), Editor());
    Type("8.25");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(Cell(2, 1), "8.250");
}

TEST_F(Grids, AClickElsewhereTakesTheEntryAndDoesWhatItIsFor) {
    OpenRation();
    ClickCell(2, 1);
    Type("9");
    ClickCell(4, 1);
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(Cell(2, 1), "9.000");
    EXPECT_EQ(Cursor(), Place(4, 1));

    Type("3");
    Click("frmRation.cmdResetIntake");
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(TheSimulation().Feeds[2].Qty.Value(), 3);
    EXPECT_EQ(Cell(TheGrid().Rows() - 1, 2), "100%");

    // A menu, the toolbar and the window's close box take it as well.
    ClickCell(5, 1);
    Type("1.75");
    ClickMenu("File", "Save Simulation");
    EXPECT_EQ(TheSimulation().Feeds[3].Qty.Value(), 1.75);
    ClickCell(5, 1);
    Type("1.5");
    ClickToolbar("Feeds");
    EXPECT_EQ(TheSimulation().Feeds[3].Qty.Value(), 1.5);
    ClickToolbar("Ration");
    ClickCell(5, 1);
    Type("1.25");
    Asked.Press(QMessageBox::No);
    MainWindow().close();
    Settle();
    EXPECT_EQ(TheMessage().Title, "Exit Program?");
    EXPECT_EQ(TheSimulation().Feeds[3].Qty.Value(), 1.25);
}

TEST_F(Grids, ARefusedEntryIsGivenUpByAClickElsewhere) {
    OpenRation();
    const std::string before = Cell(2, 1);
    ClickCell(2, 1);
    Type("abc");
    Click("frmRation.cmdResetIntake");
    EXPECT_EQ(TheMessage().Title, "Error");
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(Cell(2, 1), before);

    // Another cell keeps the user in the refused one.
    ClickCell(3, 1);
    Type("abc");
    ClickCell(5, 1);
    EXPECT_EQ(TheMessage().Title, "Error");
    EXPECT_EQ(EditorText(), "abc");
    EXPECT_EQ(Cursor(), Place(3, 1));
    Key(Qt::Key_Escape);
}

TEST_F(Grids, DropDownsOpenWhereTheGridHasThem) {
    OpenFeed();
    ASSERT_EQ(Cell(3, 1), "Forage");
    ClickCell(3, 1);
    Key(Qt::Key_F2);
    auto* box = qobject_cast<QComboBox*>(Editor());
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->currentText().toStdString(), "Forage");
    ASSERT_EQ(box->count(), 3);
    Key(Qt::Key_Down);  // in the open list
    Key(Qt::Key_Return);
    EXPECT_EQ(Cell(3, 1), "Concentrate");
    EXPECT_EQ(Cell(4, 1), "Concentrate");
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(Keyboard(), "frmFeeds.grdFeedData");

    // Escape closes the list, then the cell, and nothing has changed.
    ClickCell(3, 1);
    Key(Qt::Key_F2);
    Key(Qt::Key_Down);
    Key(Qt::Key_Escape);
    if (Editor() != nullptr) Key(Qt::Key_Escape);
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_EQ(Cell(3, 1), "Concentrate");
    EXPECT_EQ(Keyboard(), "frmFeeds.grdFeedData");
}

TEST_F(Grids, ANameIsTakenAsItIsTyped) {
    OpenFeed();
    ClickCell(0, 1);
    Type("<b>Hay</b> & \"co\"");
    Key(Qt::Key_Return);
    EXPECT_EQ(TheSimulation().Feeds[0].Name, "<b>Hay</b> & \"co\"");
    EXPECT_EQ(Model<ListBox>("frmFeeds.lstFeeds").List(0), "<b>Hay</b> & \"co\"");
    EXPECT_EQ(IndexOf(0, 1).data().toString().toStdString(), "<b>Hay</b> & \"co\"");
}

// The periodic save shows the first feed; what is typed must not become that one's.
TEST_F(Grids, ATimerWaitsUntilTheCellIsClosed) {
    OpenFeed();
    Mark("frmFeeds.lstFeeds", Model<ListBox>("frmFeeds.lstFeeds").List(4));
    ClickCell(0, 1);
    Type("New name");
    auto& timer = Model<Timer>("frmParent.AutoSaveTimer");
    int ticks = 0;
    timer.Interval = 1;
    timer.Tick = [&ticks] { ++ticks; };
    TheDesktop().Perform([&timer] { timer.Start(); });
    QTest::qWait(300);
    EXPECT_EQ(ticks, 0);
    EXPECT_EQ(EditorText(), "New name");
    Key(Qt::Key_Return);
    EXPECT_EQ(TheSimulation().Feeds[4].Name, "New name");
    QTest::qWait(300);
    EXPECT_GT(ticks, 0);
}

// Names, figures and titles can be read.
TEST_F(Grids, ColumnsAreWideEnoughForTheirTexts) {
    OpenRation();
    const QFontMetrics metrics(Table().font());
    for (int col = 1; col < TheGrid().Cols(); ++col) {
        for (int row = 0; row < TheGrid().Rows(); ++row) {
            EXPECT_LE(metrics.horizontalAdvance(QString::fromStdString(Cell(row, col))),
                      Table().columnWidth(col - 1))
                << row << ", " << col;
        }
    }
    for (int row = 1; row < TheGrid().Rows(); ++row)
        EXPECT_LE(metrics.horizontalAdvance(QString::fromStdString(Cell(row, 0))),
                  Table().verticalHeader()->width())
            << row;
    EXPECT_FALSE(Table().horizontalScrollBar()->isVisible());
}

}  // namespace
}  // namespace tav
