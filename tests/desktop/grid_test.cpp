// A spreadsheet's habits in the grids, with mouse, keys and clipboard.
#include "core/number_text.h"
#include "desktop/form_view.h"
#include "driven_program.h"

#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QTableView>

namespace tav {
namespace {

class Grids : public DrivenProgram {
  protected:
    ~Grids() override { SetDecimalSeparator('.'); }

    void OpenRation() {
        OpenCow("Ration");
        name_ = "frmRation.grdRation";
    }
    void OpenFeed() {
        OpenCow("Feeds");
        name_ = "frmFeeds.grdFeedData";
    }
    QTableView& Table() const { return Widget<QTableView>(name_); }
    Grid& TheGrid() const { return Model<Grid>(name_); }
    std::string Cell(int row, int col) const { return TheGrid().TextMatrix(row, col); }
    QWidget* Editor() const {
        for (QWidget* const child :
             Table().viewport()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            if (child->isVisible()) return child;
        }
        return nullptr;
    }
    std::string EditorText() const {
        const auto* const edit = qobject_cast<QLineEdit*>(Editor());
        return edit == nullptr ? "no editor" : edit->text().toStdString();
    }
    QModelIndex IndexOf(int row, int col) const {
        return Table().model()->index(row - TheGrid().FixedRows, col - TheGrid().FixedCols);
    }
    // The grid's cell, counted with its fixed rows and columns.
    void ClickCell(int row, int col) const {
        Table().scrollTo(IndexOf(row, col));
        Click(*Table().viewport(), Table().visualRect(IndexOf(row, col)).center());
    }
    void Paste(const char* text) {
        QGuiApplication::clipboard()->setText(QString::fromUtf8(text));
        Key(Qt::Key_V, Qt::ControlModifier);
    }
    static std::string Copied() { return QGuiApplication::clipboard()->text().toStdString(); }
    std::pair<int, int> Cursor() const { return {TheGrid().Row(), TheGrid().Col()}; }

  private:
    std::string name_;
};

using Place = std::pair<int, int>;

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

TEST_F(Grids, CellsAreCopiedAsTextWithTabs) {
    OpenRation();
    ClickCell(2, 1);
    Key(Qt::Key_Right, Qt::ShiftModifier);
    Key(Qt::Key_Down, Qt::ShiftModifier);
    Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Copied(),
              Cell(2, 1) + "\t" + Cell(2, 2) + "\n" + Cell(3, 1) + "\t" + Cell(3, 2) + "\n");
    Key(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(Copied(), "\t" + Cell(0, 1) + "\t" + Cell(0, 2) + "\n" + Cell(2, 0) + "\t" +
                            Cell(2, 1) + "\t" + Cell(2, 2) + "\n" + Cell(3, 0) + "\t" + Cell(3, 1) +
                            "\t" + Cell(3, 2) + "\n");
    // By mouse the same is offered.
    Asked.ChooseEntry("Copy");
    ClickCell(4, 1);
    QContextMenuEvent ask(QContextMenuEvent::Mouse, Table().visualRect(IndexOf(4, 1)).center(),
                          Table().viewport()->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(Table().viewport(), &ask);
    Settle();
    EXPECT_EQ(Copied(), Cell(4, 1) + "\n");
}

TEST_F(Grids, ABlockIsPastedAndWhatWasRefusedIsListedOnce) {
    OpenRation();
    ClickCell(2, 1);
    Paste("8.5\r\n4.25\r\nmuch\r\n-1\r\n0.75\r\n");
    EXPECT_EQ(TheSimulation().Feeds[0].Qty.Value(), 8.5);
    EXPECT_EQ(TheSimulation().Feeds[1].Qty.Value(), 4.25);
    EXPECT_EQ(TheSimulation().Feeds[4].Qty.Value(), 0.75);
    const Said said = TheMessage();
    EXPECT_EQ(said.Title, "Paste");
    EXPECT_EQ(said.Format, Qt::PlainText);
    EXPECT_NE(said.Text.find("2 cells were not taken"), std::string::npos) << said.Text;
    EXPECT_NE(said.Text.find("much"), std::string::npos);
    EXPECT_NE(said.Text.find("This value cannot be negative."), std::string::npos);
    EXPECT_EQ(Editor(), nullptr);

    // Beyond the last cell.
    ClickCell(TheGrid().Rows() - 1, 2);
    Paste("1\t2\n3\t4");
    EXPECT_NE(TheMessage().Text.find("4 cells were not taken"), std::string::npos);

    // What the program has to say is heard again afterwards.
    ClickCell(2, 1);
    Type("x");
    Key(Qt::Key_Return);
    EXPECT_EQ(TheMessage().Title, "Error");
    Key(Qt::Key_Escape);
}

TEST_F(Grids, WhatIsCopiedHereIsPastedHereAsItWas) {
    OpenFeed();
    const std::string name = "\"Best\" hay";
    TheDesktop().Perform([&] { TheGrid().UserEdit(0, 1, name); });
    ClickCell(0, 1);
    Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Copied(), "\"\"\"Best\"\" hay\"\n");
    const std::string copied = Copied();
    Mark("frmFeeds.lstFeeds", Model<ListBox>("frmFeeds.lstFeeds").List(1));
    TheDesktop().Perform([&] { TheSimulation().Feeds[0].Name = "other"; });
    ClickCell(0, 1);
    Paste(copied.c_str());
    EXPECT_EQ(Cell(0, 1), name);
    Messages();

    // A quote inside is no sign, as in a bale of six inches.
    TheDesktop().Perform([&] { TheSimulation().Feeds[1].Name = "other"; });
    Paste("6\" bale\n");
    EXPECT_EQ(Cell(0, 1), "6\" bale");
    Messages();
}

TEST_F(Grids, TheCommaIsADecimalSignAndNothingIsRescaled) {
    SetDecimalSeparator(',');
    OpenRation();
    EXPECT_EQ(Cell(2, 1), "8,200");
    ClickCell(2, 1);
    Type("8,75");
    Key(Qt::Key_Return);
    EXPECT_EQ(TheSimulation().Feeds[0].Qty.Value(), 8.75);
    EXPECT_EQ(Cell(2, 1), "8,750");
    Type("4.125");
    Key(Qt::Key_Return);
    EXPECT_EQ(TheSimulation().Feeds[1].Qty.Value(), 4.125);
    ClickCell(2, 1);
    Paste("1.234,5\n2,5\n");
    EXPECT_NE(TheMessage().Text.find("1.234,5"), std::string::npos);
    EXPECT_EQ(TheSimulation().Feeds[0].Qty.Value(), 8.75);
    EXPECT_EQ(TheSimulation().Feeds[1].Qty.Value(), 2.5);
    // Opened and closed without a change, a cell keeps its value.
    ClickCell(2, 1);
    Key(Qt::Key_F2);
    Key(Qt::Key_Return);
    EXPECT_EQ(TheSimulation().Feeds[0].Qty.Value(), 8.75);
    EXPECT_TRUE(Messages().empty());
}

TEST_F(Grids, AGridForLookingAtIsOnlyCopiedFrom) {
    OpenCow("Feeds");
    Click("frmFeeds.cmdAddFeed");
    Mark("frmAddFeed.lstCategory(0)", Model<ListBox>("frmAddFeed.lstCategory(0)").List(0));
    auto& table = Widget<QTableView>("frmAddFeed.grdFeedValues");
    table.setFocus(Qt::TabFocusReason);
    Settle();
    Type("7");
    Key(Qt::Key_F2);
    Key(Qt::Key_Delete);
    EXPECT_FALSE(Model<Grid>("frmAddFeed.grdFeedValues").IsEditing());
    Key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Copied(), Model<Grid>("frmAddFeed.grdFeedValues").TextMatrix(1, 1) + "\n");
    Key(Qt::Key_V, Qt::ControlModifier);
    EXPECT_TRUE(Messages().empty());
    // Enter is the default button's.
    Key(Qt::Key_Return);
    EXPECT_EQ(TheForms().Find("frmAddFeed"), nullptr);
    for (const Said& said : Messages())
        EXPECT_EQ(said.Title, "Feed Already Selected");
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
