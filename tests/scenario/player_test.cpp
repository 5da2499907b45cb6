// What the statements do.
#include "scenario/small_world.h"

namespace tav {
namespace {

TEST(Player, TypesChoosesMarksAndEdits) {
    ExpectHolds(R"(
start
type frmHerd.txtName "Bella  7"
expect frmHerd.txtName.Text is "Bella  7"
expect frmHerd.Focus is ""
type frmHerd.txtWeight 650
type frmHerd.txtWeight 1001
expect frmHerd.txtWeight.Text == "650 kg"
choose frmHerd.cboType Calf
expect frmHerd.cboType.ListIndex == 1
chooserow frmHerd.cboType 0
expect frmHerd.cboType.Text == Cow
type frmHerd.cboNotes(2) "free text"
expect frmHerd.cboNotes(2).Text == "free text"
mark frmHerd.lstFeeds Hay
markrow frmHerd.lstFeeds 0
unmark frmHerd.lstFeeds Hay
expect frmHerd.lstFeeds.Selected(0) == True
expect frmHerd.lstFeeds.Selected(1) == False
edit frmHerd.grdRation 2 1 "-1.50"
expect frmHerd.grdRation.Cell(2,1) is -1.50
expect frmHerd.grdRation.Cell(2,1) == -1.5
)");
}

TEST(Player, WalksThroughTabsToolbarMenusAndWindows) {
    ExpectHolds(R"(
start
tab frmHerd.tabPages 1
expect frmHerd.tabPages.Tab == 1
type frmHerd.txtHidden x
click frmHerd.Toolbar Feeds
expect frmHerd.Toolbar.Pressed(Feeds) == True
rightclick frmHerd.lblTicks
expect program.Popup == mnuPopUp
click frmHerd.mnuHelp
expect frmHerd.lblTicks.Caption == help
key frmHerd.lblTicks Ctrl+q
expect frmHerd.lblTicks.Caption == Q
focus frmHerd.txtName
expect frmHerd.Focus == txtName
leave frmHerd.txtName
resize frmHerd 7000 5000
expect frmHerd.Width == 7000
minimise frmHerd
expect frmHerd.WindowState == Minimised
maximise frmHerd
expect frmHerd.Width == 19200
folder frmHerd.DirList ${START}
expect frmHerd.DirList.Path ~ start
close frmHerd
expect frmHerd.Loaded == False
expect program.Ended == True
)");
}

TEST(Player, AnswersMessagesAndDialogs) {
    ExpectHolds(R"(
start
answer No
answer Yes
click frmHerd.cmdAsk
expect message.Answer == No
click frmHerd.cmdAsk
expect message.Count == 3
expect message.Title == Done
expect message.Icon == None
expect message(2).Text is "Feed \"Corn\"?\r\nNow?"
expect message(2).Buttons == YesNoCancel
expect message(2).Icon == Question
forget
expect message.Count == 0
dialog cancel
click frmHerd.cmdSave
expect frmHerd.lblTicks.Caption == ""
dialog "${START}/new cow.tav"
click frmHerd.cmdSave
expect frmHerd.lblTicks.Caption ~ "start/new cow.tav"
expect dialog.Count == 2
expect dialog.Kind == Save
expect dialog.FileName == old.tav
expect dialog.Folder == herd
expect dialog.Flags == 4096
)");
}

TEST(Player, ClockStandsUntilItIsAdvanced) {
    ExpectHolds(R"(
now "2026-11-22 15:27:05"
start
advance 3600
expect frmHerd.lblTicks.Caption == ""
click frmHerd.chkTimer
advance 2.5
expect frmHerd.lblTicks.Caption == xx
advance 0.5
expect frmHerd.lblTicks.Caption == xxx
)");
}

TEST(Player, HandlesFilesAndFolders) {
    ExpectHolds(R"(
expect file("${APP}").Exists == True
mkdir ${APP}/sub
writefile "${APP}/sub/a b.txt" "one\r\ntwo\nthree"
copy "${APP}/sub/a b.txt" ${START}/copy.txt
remove "${APP}/sub/a b.txt"
remove "${APP}/sub/a b.txt"
expect file("${APP}/sub/a b.txt").Exists == False
expect file("${START}/copy.txt").Lines == 3
expect file("${START}//copy.txt").Line(1) is one
expect file("${START}/copy.txt").Line(3) is three
expect file("${START}/copy.txt").Text is "one\r\ntwo\nthree"
writefile ${START}/empty ""
expect file("${START}/empty").Lines == 0
start
expect program.StartDir ~ tav-scenario
)");
}

TEST(Player, PrintsAndReportsEachExpectationThatFails) {
    const Played played(
        "start\nprint frmHerd.Caption\nexpect frmHerd.Caption == Cows\n"
        "expect frmHerd.Width near 5999.5 0.1\nexpect message.Title != x\nprint frmHerd.Width\n");
    EXPECT_EQ(played.Result, Outcome::Failed);
    EXPECT_EQ(played.Out, "Herd\n6000\n");
    EXPECT_EQ(played.Errors,
              "test:3: expected frmHerd.Caption == \"Cows\", got \"Herd\"\n"
              "test:4: expected frmHerd.Width near 5999.5 0.1, got \"6000\"\n"
              "test:5: expected message.Title != \"x\", got nothing\n");
}

TEST(Player, StopsAtWhatCantBeDoneAndFailsTheExpectationsBehindIt) {
    const Played played(
        "start\nclick frmHerd.cmdOff\ntype frmHerd.txtName x\nexpect frmHerd.Caption == Herd\n");
    EXPECT_EQ(played.Result, Outcome::Failed);
    EXPECT_EQ(
        played.Errors,
        "test:2: frmHerd.cmdOff is disabled\n"
        "test:4: expected frmHerd.Caption == \"Herd\", got nothing: the script stopped at line "
        "2\n");
}

// What a single line behind the start is refused with.
TEST(Player, SaysWhatIsWrong) {
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"click frmHerd.cmdNowhere", "frmHerd has no control cmdNowhere"},
        {"click frmHerd.cboNotes(3)", "frmHerd has no control cboNotes(3)"},
        {"click frmOther.cmdOK", "frmOther isn't loaded"},
        {"click frmNowhere.cmdOK", "there is no form frmNowhere"},
        {"click frmHerd.Toolbar Nowhere", "frmHerd.Toolbar has no button Nowhere"},
        {"click frmHerd.mnuHelp", "frmHerd.mnuPopUp is hidden"},
        {"click frmHerd.tmrTick", "frmHerd.tmrTick can't be clicked"},
        {"type frmHerd.txtHidden x",
         "frmHerd.txtHidden stands on page 1 of the tabs, which isn't on show"},
        {"type frmHerd.cboType x", "frmHerd.cboType takes no free text"},
        {"type frmHerd.cmdAsk x", "frmHerd.cmdAsk takes no text"},
        {"choose frmHerd.cboType Bull", "frmHerd.cboType has no entry \"Bull\""},
        {"chooserow frmHerd.cboType 2", "frmHerd.cboType has no entry 2"},
        {"edit frmHerd.txtName 0 0 x", "frmHerd.txtName is not a grid"},
        {"edit frmHerd.grdRation 3 0 x", "frmHerd.grdRation has no cell (3,0)"},
        {"tab frmHerd.tabPages 2", "frmHerd.tabPages has no page 2"},
        {"leave frmHerd.txtName", "frmHerd.txtName hasn't got the focus"},
        {"click frmHerd.cmdAsk", "no answer is queued for the message \"Feeding\""},
        {"click frmHerd.cmdSave", "no answer is queued for the file dialog"},
        {"start", "the program has been started already"},
        {"screen 800 600", "screen comes before start"},
        {"print frmHerd.txtName.Colour", "frmHerd.txtName has no property Colour"},
        {"print record.Wool", "the record has no such value: Wool"},
        {"print program.Wool", "nothing of the name Wool can be looked at"},
        {"print library.Count", "this program has no feed library"},
        {"print report.Text", "this program has no reports"},
    };
    for (const auto& [line, message] : cases) {
        EXPECT_EQ(Played("start\n" + line).Errors, "test:2: " + message + "\n");
    }
    EXPECT_EQ(Played("click frmHerd.cmdAsk").Errors, "test:1: the program hasn't been started\n");
    EXPECT_EQ(Played("library feeds.csv").Errors, "test:1: this program has no feed library\n");
    EXPECT_EQ(Played("now \"2026-02-30 00:00:00\"").Errors,
              "test:1: there is no time 2026-02-30 00:00:00\n");
    EXPECT_EQ(Played("library none\nstart").Errors, "");
}

TEST(Player, LooksAtAProgramThatHasEnded) {
    const Played played(
        "start\nclick frmHerd.cmdFail\nexpect program.FatalError == 61\n"
        "expect program.Ended == True\nexpect frmHerd.Visible == False\nclick frmHerd.cmdAsk\n");
    EXPECT_EQ(played.Errors, "test:6: the program has ended with error 61, Disk full\n");
    ExpectHolds("start\nclick frmHerd.cmdEnd\nexpect program.FatalError == 0\n");
}

TEST(Player, UnreadableScriptPlaysNothing) {
    const Played played("start\nprint frmHerd.Caption\nexpect x\n");
    EXPECT_EQ(played.Result, Outcome::Unreadable);
    EXPECT_EQ(played.Out, "");
    EXPECT_EQ(played.Errors, "test:3: expect lacks an argument\n");
    SmallWorld world;
    std::ostringstream out, errors;
    EXPECT_EQ(PlayScript("/nowhere.scenario", world, out, errors), Outcome::Unreadable);
}

}  // namespace
}  // namespace tav
