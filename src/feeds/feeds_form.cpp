#include "feeds/feeds_form.h"

#include "core/platform.h"
#include "feeds/collection.h"
#include "feeds/feed_grid.h"
#include "feeds/feed_grid_rules.h"
#include "forms/context_help.h"

namespace tav {
namespace {

constexpr double kLeftMarginShare = 0.375;  // of the width that the frames leave free
constexpr double kGapShare = 0.25;          // between the frames
constexpr int kGap = 120;

}  // namespace

FeedsForm::FeedsForm() : ScreenForm("Feeds") {
    SetUpControls();
    PlaceControls();
    TieEvents();
}

void FeedsForm::SetUpControls() {
    lblFeedsList.Caption = "Feeds";
    cmdMoveUp.Caption = "Up";
    cmdMoveUp.ToolTip = "Move the selected feed up in the list";
    cmdMoveDown.Caption = "Down";
    cmdMoveDown.ToolTip = "Move the selected feed down in the list";
    cmdAddFeed.Caption = "&Add Feed(s) to Ration";
    cmdRemoveFeed.Caption = "&Remove Feed from Ration";
    cmdSaveFeedToLibrary.Caption = "&Save Feed in Feed Library";
    cmdRemoveFromLibrary.Caption = "&Remove Feed from Feed Library";
    lblFeedComponents.Caption = "Feed Components";
    lblFeedComponents.Visible = false;
    grdFeedData.Visible = false;
}

void FeedsForm::PlaceControls() {
    fraFeedsCollection.Move(300, 120, 4500, 8100);
    lblFeedsList.Move(180, 180, 3060, 255);
    lstFeeds.Move(180, 450, 3060, 5100);
    cmdAddFeed.Move(180, 5790, 3060, 450);
    cmdRemoveFeed.Move(180, 6330, 3060, 450);
    cmdSaveFeedToLibrary.Move(180, 6930, 3060, 450);
    cmdRemoveFromLibrary.Move(180, 7470, 3060, 450);
    fraFeedComponents.Move(5100, 120, 6300, 8100);
    lblFeedComponents.Move(180, 180, 5940, 255);
    grdFeedData.Move(180, 450, 5940, 7100);
    grdFeedData.RowHeight = 270;
    cmdMoveUp.Move(0, 0, 960, 450);
    cmdMoveDown.Move(0, 0, 960, 450);
    PlaceMoveButtons();
}

void FeedsForm::TieEvents() {
    lstFeeds.Click = [this] { lstFeeds_Click(); };
    cmdMoveUp.Click = [this] { cmdMoveUp_Click(); };
    cmdMoveDown.Click = [this] { cmdMoveDown_Click(); };
    cmdAddFeed.Click = [this] { cmdAddFeed_Click(); };
    cmdRemoveFeed.Click = [this] { cmdRemoveFeed_Click(); };
    cmdSaveFeedToLibrary.Click = [this] { cmdSaveFeedToLibrary_Click(); };
    cmdRemoveFromLibrary.Click = [this] { cmdRemoveFromLibrary_Click(); };
    grdFeedData.BeforeEdit = [this](int row, int col, bool& cancel) {
        grdFeedData_BeforeEdit(row, col, cancel);
    };
    grdFeedData.ValidateEdit = [this](int row, int col, bool& cancel) {
        grdFeedData_ValidateEdit(row, col, cancel);
    };
    grdFeedData.AfterEdit = [this](int row, int col) { grdFeedData_AfterEdit(row, col); };
    for (Control* const control : Controls()) {
        control->MouseUp = [control](MouseButton button) {
            if (button == MouseButton::Right) OpenContextMenu(*control);
        };
    }
}

void FeedsForm::PlaceFrames() {
    const Number free = ClientWidth() - fraFeedsCollection.Width - fraFeedComponents.Width;
    fraFeedsCollection.Left = free * kLeftMarginShare;
    fraFeedComponents.Left = fraFeedsCollection.Left + fraFeedsCollection.Width + free * kGapShare;
}

// Beside the list, one above the other around its middle.
void FeedsForm::PlaceMoveButtons() {
    const Number left = lstFeeds.Left + lstFeeds.Width + kGap;
    const Number middle = lstFeeds.Top + lstFeeds.Height / 2;
    cmdMoveUp.Left = left;
    cmdMoveUp.Top = middle - cmdMoveUp.Height - kGap / 2;
    cmdMoveDown.Left = left;
    cmdMoveDown.Top = middle + kGap / 2;
}

void FeedsForm::SetUp() {
    const SimulationRecord& r = TheSimulation();
    SelectedFeedName = r.NumFeeds == 0 ? std::string() : FeedAt(1).Name;
    SetUpFeeds(r.NumFeeds == 0 ? 0 : 1);
}

// The second step raises a click, so that the feed on show is the selected one. The click also
// takes the values as the grid shows them, rounded, into the feed. This is meant.
void FeedsForm::Form_Load() {
    Loading = true;
    ScreenForm::Form_Load();
    PlaceFrames();
    Loading = false;
    if (TheSimulation().NumFeeds == 0) return;
    lstFeeds.SetListIndex(-1);
    lstFeeds.SetListIndex(0);
}

void FeedsForm::Form_Unload(bool& /*cancel*/) { RetrieveFeedData(PreviousFeed); }

void FeedsForm::Store() {
    if (TheSimulation().NumFeeds == 0 || lstFeeds.ListCount() == 0) return;
    if (lstFeeds.ListIndex() != 0) {
        lstFeeds.SetListIndex(0);
    } else if (lstFeeds.ListCount() >= 2) {
        lstFeeds.SetListIndex(1);
        lstFeeds.SetListIndex(0);
    }
}

void FeedsForm::SetUpFeeds(int index) {
    RefreshFeedsList();
    FillFeedDataGrid(index);
    if (index == 0) {
        SelectedFeed = 0;
        return;
    }
    PreviousFeed = static_cast<std::int16_t>(index);
    lstFeeds.SetListIndex(lstFeeds.IndexOf(FeedAt(index).Name));
    PlaceMoveButtons();
}

void FeedsForm::RefreshFeedsList() {
    lstFeeds.Clear();
    for (int i = 1; i <= TheSimulation().NumFeeds; ++i)
        lstFeeds.AddItem(FeedAt(i).Name);
}

void FeedsForm::RetrieveFeedData(int index) {
    if (grdFeedData.Visible) RetrieveFeedGrid(grdFeedData, FeedAt(index));
}

void FeedsForm::FillFeedDataGrid(int index) {
    constexpr double kHeightPerRow = 1.01;  // of the row height, for the lines between the rows
    constexpr int kBelow = 1000;            // of the frame that the grid leaves free
    const bool any = index != 0;
    lblFeedComponents.Visible = any;
    grdFeedData.Visible = any;
    if (!any) return;
    FillFeedGrid(grdFeedData, FeedAt(index));
    const Single height = grdFeedData.Rows() * grdFeedData.RowHeight * kHeightPerRow;
    const Single room = fraFeedComponents.Height - kBelow;
    grdFeedData.Height = height < room ? height : room;
}

void FeedsForm::lstFeeds_Click() {
    SelectedFeed = static_cast<std::int16_t>(lstFeeds.ListIndex() + 1);
    if (SelectedFeed == 0) return;
    if (!Loading && !ReselectingList) {
        RetrieveFeedData(PreviousFeed);
        SelectedFeedName = FeedAt(SelectedFeed).Name;
        FillFeedDataGrid(SelectedFeed);
        const int first = lstFeeds.IndexOf(SelectedFeedName);
        if (first >= 0) {
            ReselectingList = true;
            lstFeeds.SetListIndex(first);
        }
    }
    ReselectingList = false;
    PreviousFeed = SelectedFeed;
}

// The place of the feed to move, from 0. A rename leaves nothing selected in the list; the feed on
// show is meant then.
int FeedsForm::Position() const {
    return lstFeeds.ListIndex() >= 0 ? lstFeeds.ListIndex() : SelectedFeed - 1;
}

void FeedsForm::cmdMoveUp_Click() {
    const int p = Position();
    if (p <= 0 || TheSimulation().NumFeeds == 0) return;
    std::swap(FeedAt(p), FeedAt(p + 1));
    SetUpFeeds(p);
}

void FeedsForm::cmdMoveDown_Click() {
    const int p = Position();
    if (p < 0 || TheSimulation().NumFeeds == 0 || p >= TheSimulation().NumFeeds - 1) return;
    std::swap(FeedAt(p + 1), FeedAt(p + 2));
    SetUpFeeds(p + 2);
}

void FeedsForm::cmdRemoveFeed_Click() {
    const SimulationRecord& r = TheSimulation();
    if (r.NumFeeds == 0 || SelectedFeed == 0) return;
    if (r.NumFeeds == 1) {
        const MessageAnswer answer =
            ThePlatform().ShowMessage({"You are about to remove your last feed.  Continue?",
                                       "Warning", MessageIcon::Critical, MessageButtons::OKCancel});
        if (answer == MessageAnswer::Cancel) return;
    }
    RemoveFeed(SelectedFeed);
    if (r.NumFeeds <= 1) {
        SetUpFeeds(r.NumFeeds);
    } else {
        SetUpFeeds(SelectedFeed > r.NumFeeds ? SelectedFeed - 1 : SelectedFeed);
    }
}

void FeedsForm::grdFeedData_BeforeEdit(int row, int col, bool& cancel) {
    BeforeFeedEdit(grdFeedData, row, col, cancel);
}

void FeedsForm::grdFeedData_ValidateEdit(int row, int col, bool& cancel) {
    if (row == kNameRow && col == kValueColumn) RenameFeed(cancel);
    ValidateFeedEdit(grdFeedData, row, col, cancel);
}

void FeedsForm::grdFeedData_AfterEdit(int row, int /*col*/) { AfterFeedEdit(grdFeedData, row); }

// The record and the list take the new name even where the cell keeps the old one, and the limit on
// the length is that of the name held so far. Both are meant.
void FeedsForm::RenameFeed(bool& cancel) {
    constexpr std::size_t kLongestName = 30;
    const std::string& name = grdFeedData.EditText;
    FeedRecord& feed = FeedAt(SelectedFeed);
    if (name == CellText(grdFeedData, kNameRow)) return;
    if (name != feed.Name) {
        for (int i = 1; i <= TheSimulation().NumFeeds; ++i) {
            if (FeedAt(i).Name != name) continue;
            ThePlatform().ShowMessage(
                {"The name you have given to this feed has already been assigned to another in the "
                 "Feeds List.\rPlease rename it",
                 "Duplicate Feed Name Assigned", MessageIcon::Critical});
            cancel = true;
        }
    }
    if (LengthOf(feed.Name) > kLongestName) {
        ThePlatform().ShowMessage({"The feed name cannot exceed 30 characters.",
                                   "Feed Name Too Long", MessageIcon::Critical});
        cancel = true;
    }
    feed.Name = name;
    RefreshFeedsList();
}

}  // namespace tav
