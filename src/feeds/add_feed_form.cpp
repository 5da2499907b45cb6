#include "feeds/add_feed_form.h"

#include "core/platform.h"
#include "feeds/collection.h"
#include "feeds/feed_columns.h"
#include "feeds/feed_row.h"
#include "feeds/feeds_form.h"
#include "feeds/picker_values.h"
#include "feeds/value_limits.h"
#include "forms/form_registry.h"
#include "forms/form_resizing.h"

#include <algorithm>
#include <array>

namespace tav {
namespace {

constexpr int kCalfList = 8;
constexpr std::string_view kUserMark = "* ";

constexpr std::array<std::string_view, AddFeedForm::kCategories> kCaptions = {
    "Grass/Legume Forages",
    "Grain Crop Forages",
    "Energy Sources",
    "Fat",
    "Plant Protein",
    "Animal Protein",
    "By-Product/Other Feeds",
    "Vitamins and Minerals",
    "Calf Feeds"};

// Design geometry in layout units: three rows of three lists, the values below, then the buttons.
constexpr int kMargin = 180;
constexpr int kListWidth = 3600;
constexpr int kListHeight = 1380;
constexpr int kCaptionHeight = 255;
constexpr int kRowPitch = 1770;
constexpr int kGridTop = 5430;
constexpr int kGridHeight = 1530;
constexpr int kGridWidth = 3 * kListWidth + 2 * kMargin;
constexpr int kButtonTop = 7110;
constexpr int kButtonWidth = 1500;
constexpr int kButtonHeight = 405;

// The list of a category, from 0; -1 for one that is listed nowhere.
int ListOf(std::string_view category) {
    const auto found = std::find(kFeedCategories.begin(), kFeedCategories.end(), category);
    if (found == kFeedCategories.end()) return -1;
    return std::min(static_cast<int>(found - kFeedCategories.begin()), kCalfList);
}

// Whether feeds of the ration have that name, each of which is told to the user; for the last feed
// to be added the first is enough.
bool IsInRation(const std::string& name, bool firstIsEnough) {
    bool found = false;
    for (int i = 1; i <= TheSimulation().NumFeeds; ++i) {
        if (FeedAt(i).Name != name) continue;
        ThePlatform().ShowMessage({"'" + name + "'  is already in the ration.",
                                   "Feed Already Selected", MessageIcon::Critical});
        found = true;
        if (firstIsEnough) break;
    }
    return found;
}

// An empty feed at the end. A ration that can count no further keeps its length, and its last feed
// is read over, with the quantity that it has. This is meant.
FeedRecord& FeedToFill() {
    try {
        return AddFeed();
    } catch (const RuntimeError&) {
        return FeedAt(TheSimulation().NumFeeds);
    }
}

}  // namespace

AddFeedForm::AddFeedForm() : Form("frmAddFeed") {
    Caption = "Add Feeds to Ration";
    Sizable = false;
    SetUpControls();
    PlaceControls();
}

void AddFeedForm::SetUpControls() {
    lblCategory.ForEach([](Label& label, int i) {
        label.Caption = std::string(kCaptions[static_cast<std::size_t>(i)]);
    });
    lstCategory.ForEach([this](ListBox& list, int i) {
        list.MultiSelect = true;
        list.Click = [this, i] { lstCategory_Click(i); };
    });
    lblNoFeedsSelected.Caption = "No Feeds Selected";
    lblNoFeedsSelected.Alignment = Alignment::Center;
    grdFeedValues.Editable = false;
    grdFeedValues.FixedRows = 1;
    grdFeedValues.FixedCols = 1;
    cmdAddFeed.Caption = "&Add Feed";
    cmdAddFeed.Default = true;
    cmdAddFeed.Click = [this] { cmdAddFeed_Click(); };
    cmdCancel.Caption = "&Cancel";
    cmdCancel.Cancel = true;
    cmdCancel.Click = [this] { cmdCancel_Click(); };
}

void AddFeedForm::PlaceControls() {
    for (int i = 0; i < kCategories; ++i) {
        const int left = kMargin + i % 3 * (kListWidth + kMargin);
        const int top = 120 + i / 3 * kRowPitch;
        lblCategory[i].Move(left, top, kListWidth, kCaptionHeight);
        lstCategory[i].Move(left, top + kCaptionHeight, kListWidth, kListHeight);
    }
    grdFeedValues.Move(kMargin, kGridTop, kGridWidth, kGridHeight);
    lblNoFeedsSelected.Move(kMargin, kGridTop + kGridHeight / 2, kGridWidth, kCaptionHeight);
    const int middle = kMargin + kGridWidth / 2;
    cmdAddFeed.Move(middle - kMargin / 2 - kButtonWidth, kButtonTop, kButtonWidth, kButtonHeight);
    cmdCancel.Move(middle + kMargin / 2, kButtonTop, kButtonWidth, kButtonHeight);
    Width = kGridWidth + 2 * kMargin + FrameWidth;
    Height = kButtonTop + kButtonHeight + kMargin + FrameHeight;
}

void AddFeedForm::FitToMainWindow() {
    const ScreenScale scale = ScaleOfMainWindow();
    Resize(ClientWidth() * scale.X + FrameWidth, ClientHeight() * scale.Y + FrameHeight);
    ResizeScreen(*this);
}

void AddFeedForm::Form_Load() {
    FitToMainWindow();
    const ScreenSize screen = ThePlatform().Screen();
    Left = (screen.Width - Width) / 2;
    Top = (screen.Height - Height) / 2;
    library_.emplace(LibraryUse::ReadOnly);
    DatabaseOpen = true;
    FillLists();
    YoungCalf = TheSimulation().AnimalType == kYoungCalf;
    lblNoFeedsSelected.Visible = true;
    grdFeedValues.Visible = false;
    cmdAddFeed.Enabled = false;
}

void AddFeedForm::Form_Unload(bool& /*cancel*/) { CloseLibrary(); }

void AddFeedForm::CloseLibrary() {
    library_.reset();
    DatabaseOpen = false;
}

void AddFeedForm::FillLists() {
    Recordset& table = library_->Table();
    table.MoveFirst();
    for (; !table.AtEnd(); table.MoveNext()) {
        const int list = ListOf(ShownText(table.Value(kCategoryColumn)));
        if (list < 0) continue;
        const std::string mark(IsDefaultFeed(table) ? "" : kUserMark);
        lstCategory[list].AddItem(mark + ShownText(table.Value(kFeedNameColumn)));
    }
}

bool AddFeedForm::FindLibraryFeed(std::string_view name) {
    if (name.starts_with('*')) name.remove_prefix(std::min(kUserMark.size(), name.size()));
    return library_->Find(name);
}

void AddFeedForm::lstCategory_Click(int index) {
    ListBox& list = lstCategory[index];
    const int clicked = list.ListIndex();
    const bool marked = clicked >= 0 && list.Selected(clicked);
    if (!YoungCalf && index == kCalfList && marked) {
        ThePlatform().ShowMessage(
            {"Calf feeds can only be selected for a 'Young Calf' Animal Type.",
             "Cannot Select Calf Feeds"});
        list.SetSelected(clicked, false);
        return;
    }
    RebuildSelection();
    cmdAddFeed.Enabled = SelectedCount > 0;
    if (SelectedCount > 0) {
        FindLibraryFeed(marked ? list.List(clicked) : SelectedNames.back());
        cmdAddFeed.Caption = SelectedCount == 1 ? "&Add Feed" : "&Add Feeds";
    }
    ShowSelectedFeedValues();
}

void AddFeedForm::RebuildSelection() {
    SelectedNames.clear();
    for (int i = 0; i < kCategories; ++i) {
        const ListBox& list = lstCategory[i];
        for (int j = 0; j < list.ListCount(); ++j) {
            if (list.Selected(j)) SelectedNames.push_back(list.List(j));
        }
    }
    SelectedCount = ToInteger(static_cast<double>(SelectedNames.size()));
}

void AddFeedForm::ShowSelectedFeedValues() {
    const bool any = SelectedCount > 0;
    grdFeedValues.Visible = any;
    lblNoFeedsSelected.Visible = !any;
    if (!any) return;
    const std::vector<std::string> headers = PickerHeaders();
    grdFeedValues.SetRows(SelectedCount + 1);
    grdFeedValues.SetCols(static_cast<int>(headers.size()));
    const auto fill = [this](int row, const std::vector<std::string>& cells) {
        for (std::size_t i = 0; i < cells.size(); ++i) {
            grdFeedValues.SetTextMatrix(row, static_cast<int>(i), cells[i]);
        }
    };
    fill(0, headers);
    for (int row = 1; row <= SelectedCount; ++row) {
        const bool found = FindLibraryFeed(SelectedNames[static_cast<std::size_t>(row) - 1]);
        fill(row,
             found ? PickerCells(library_->Table()) : std::vector<std::string>(headers.size()));
    }
    FitGrid();
}

// Columns as wide as their longest text, and the grid as wide as its columns, within the form.
void AddFeedForm::FitGrid() {
    constexpr int kCharacter = 105;
    constexpr int kPadding = 150;
    Number width = 0;
    for (int col = 0; col < grdFeedValues.Cols(); ++col) {
        std::size_t longest = 0;
        for (int row = 0; row < grdFeedValues.Rows(); ++row) {
            longest = std::max(longest, LengthOf(grdFeedValues.TextMatrix(row, col)));
        }
        grdFeedValues.SetColWidth(col, longest * kCharacter + kPadding);
        width += grdFeedValues.ColWidth(col);
    }
    const Number room = ClientWidth() - 2 * grdFeedValues.Left;
    grdFeedValues.Width = width < room ? width : room;
}

void AddFeedForm::cmdAddFeed_Click() {
    for (const std::string& name : SelectedNames) {
        if (!AddSelectedFeed(name, &name == &SelectedNames.back())) return;
    }
    CloseLibrary();
    TheForms().Get<FeedsForm>("frmFeeds").SetUpFeeds(TheSimulation().NumFeeds > 0 ? 1 : 0);
    TheForms().Unload(Name());
}

// False when the last of the marked feeds is in the ration already: the picker stays open then,
// with those before it added. A feed that can't be read is left out.
bool AddFeedForm::AddSelectedFeed(const std::string& name, bool isLast) {
    try {
        if (!FindLibraryFeed(name)) return true;
        const std::string feedName = ToText(library_->Table().Value(kFeedNameColumn));
        if (IsInRation(feedName, isLast)) return !isLast;
        ReadFeedRow(library_->Table(), FeedToFill());
    } catch (const RuntimeError&) {
        // There is nothing of it to add.
    }
    return true;
}

void AddFeedForm::cmdCancel_Click() {
    CloseLibrary();
    TheForms().Unload(Name());
}

}  // namespace tav
