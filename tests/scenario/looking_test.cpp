// The record's fields and the controls' properties, as a script sees them.
#include "scenario/looking.h"

#include "scenario/record_values.h"
#include "scenario/small_world.h"

namespace tav {
namespace {

class RecordLook : public testing::Test {
  protected:
    std::string At(const std::string& path) {
        return RecordValue(Record, ReadExpression(path)).value_or("nothing");
    }

    SimulationRecord Record;
};

TEST_F(RecordLook, ShowsEachKindOfField) {
    Record.BodyWeight = 43.2;
    Record.LactationNumber = 200;
    Record.DaysPregnant = -3;
    Record.Grazing = true;
    Record.Breed = "Jersey";
    EXPECT_EQ(At("record.BodyWeight"), "43.2");
    EXPECT_EQ(At("record.LactationNumber"), "200");
    EXPECT_EQ(At("record.DaysPregnant"), "-3");
    EXPECT_EQ(At("record.Grazing"), "True");
    EXPECT_EQ(At("record.Breed"), "Jersey");
    EXPECT_EQ(At("record.EnergyGain"), "");
    Record.EnergyGain = 0.1;
    EXPECT_EQ(At("record.EnergyGain"), "0.1");
}

TEST_F(RecordLook, CountsFeedsRowsAndScoresFromOneAndHeadersFromZero) {
    Record.HeaderFields = {"left", "centre", "right"};
    Record.Feeds.resize(2);
    Record.Feeds[1].Name = "Hay";
    Record.Feeds[1].Qty = 2.5;
    Record.FeedDMI = {1, 2};
    Record.CSEBW[8] = 900;
    Record.MineralRows[0].Name = "Ca";
    Record.BalanceTable[5].Label = "last";
    EXPECT_EQ(At("record.HeaderFields(0)"), "left");
    EXPECT_EQ(At("record.HeaderFields(2)"), "right");
    EXPECT_EQ(At("record.HeaderFields(3)"), "nothing");
    EXPECT_EQ(At("record.Feeds(2).Name"), "Hay");
    EXPECT_EQ(At("record.Feeds(2).Qty"), "2.5");
    EXPECT_EQ(At("record.Feeds(0).Name"), "nothing");
    EXPECT_EQ(At("record.Feeds(3).Name"), "nothing");
    EXPECT_EQ(At("record.FeedDMI(2)"), "2");
    EXPECT_EQ(At("record.CSEBW(9)"), "900");
    EXPECT_EQ(At("record.MineralRows(1).Name"), "Ca");
    EXPECT_EQ(At("record.BalanceTable(6).Label"), "last");
}

TEST_F(RecordLook, RefusesWhatIsNoField) {
    Record.Feeds.resize(1);
    for (const char* const path :
         {"record", "record.Feeds", "record.Feeds(1)", "record.Feeds(x).Name",
          "record.Feeds(1).Wool", "record.Feeds(1,2).Name", "record.Age(1)", "record.Age.Unit",
          "record.CSEBW(1).Unit"}) {
        EXPECT_THROW(At(path), NotPossible) << path;
    }
}

TEST(ControlLook, ShowsEachKindOfProperty) {
    ExpectHolds(R"(
start
expect frmHerd.txtWeight.Minimum == 0
expect frmHerd.txtWeight.Maximum is 1000
expect frmHerd.txtWeight.Units == kg
expect frmHerd.txtWeight.Format == ""
expect frmHerd.txtName.Alignment == Left
expect frmHerd.txtName.FontSize == 8
expect frmHerd.txtHidden.Left == -75000
expect frmHerd.cboType.ListCount == 2
expect frmHerd.cboType.List(1) == Calf
expect frmHerd.lstFeeds.ListIndex == -1
expect frmHerd.grdRation.Rows == 3
expect frmHerd.grdRation.Cols == 2
expect frmHerd.grdRation.ComboList == ""
expect frmHerd.chkTimer.Value == False
expect frmHerd.chkTimer.Checked == False
expect frmHerd.mnuHelp.Checked == False
expect frmHerd.cmdOff.Enabled == False
expect frmHerd.mnuPopUp.Visible == False
expect frmHerd.WindowState == Normal
expect frmOther.Loaded == False
expect frmOther.Visible == False
)");
    const Played beyond(
        "start\nexpect frmHerd.cboType.List(2) == x\n"
        "expect frmHerd.grdRation.Cell(3,0) == x\n");
    EXPECT_EQ(beyond.Errors,
              "test:2: expected frmHerd.cboType.List(2) == \"x\", got nothing\n"
              "test:3: expected frmHerd.grdRation.Cell(3,0) == \"x\", got nothing\n");
}

TEST(ControlLook, BytesThatAreNoUtf8AreShownAsTheCodePageHasThem) {
    SmallWorld world;
    Surroundings surroundings(world, "");
    TheSimulation().Comments = "caf\xE9";
    EXPECT_EQ(Look(ReadExpression("record.Comments"), surroundings, world), "caf\u00E9");
}

}  // namespace
}  // namespace tav
