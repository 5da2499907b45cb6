// Cells to the clipboard and from it, and numbers as the user writes them.
#include "grid_fixture.h"

#include <QContextMenuEvent>

namespace tav {
namespace {

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

    // A share comes back as it was copied, with its sign.
    ClickCell(3, 2);
    Paste(" 12.50 %\n");
    ClickCell(2, 1);
    EXPECT_EQ(Cell(3, 2), "12.50 %");

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

}  // namespace
}  // namespace tav
