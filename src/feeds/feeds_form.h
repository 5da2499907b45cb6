// The feeds screen, frmFeeds: the feeds of the simulation and their values.
#pragma once

#include "core/simulation_record.h"
#include "feeds/feed_library.h"
#include "forms/controls.h"
#include "forms/screen_form.h"

#include <cstdint>
#include <string>

namespace tav {

class FeedsForm : public ScreenForm {
  public:
    FeedsForm();

    Frame fraFeedsCollection{*this, "fraFeedsCollection"};
    Label lblFeedsList{fraFeedsCollection, "lblFeedsList"};
    ListBox lstFeeds{fraFeedsCollection, "lstFeeds"};
    CommandButton cmdMoveUp{fraFeedsCollection, "cmdMoveUp"};
    CommandButton cmdMoveDown{fraFeedsCollection, "cmdMoveDown"};
    CommandButton cmdAddFeed{fraFeedsCollection, "cmdAddFeed"};
    CommandButton cmdRemoveFeed{fraFeedsCollection, "cmdRemoveFeed"};
    CommandButton cmdSaveFeedToLibrary{fraFeedsCollection, "cmdSaveFeedToLibrary"};
    CommandButton cmdRemoveFromLibrary{fraFeedsCollection, "cmdRemoveFromLibrary"};
    Frame fraFeedComponents{*this, "fraFeedComponents"};
    Label lblFeedComponents{fraFeedComponents, "lblFeedComponents"};
    Grid grdFeedData{fraFeedComponents, "grdFeedData"};

    std::int16_t SelectedFeed = 0;  // in lstFeeds, from 1; 0: none
    std::int16_t PreviousFeed = 0;  // the one whose values the grid holds
    std::string SelectedFeedName;
    bool Loading = false;
    bool ReselectingList = false;  // the click handler sets the list's position itself

    // Fills the list, shows the feed of that place (from 1; 0 none) and selects it in the list.
    void SetUpFeeds(int index);

    // Fills the list with the names, which leaves nothing selected in it.
    void RefreshFeedsList();

    // Copies the grid's cells into the feed, if the grid is on show. Only a click in the list, the
    // unload and a save to the library do so: a move, a removal and the picker drop what has been
    // typed since.
    void RetrieveFeedData(int index);

    // Shows the feed's values in the grid; hides it for 0.
    void FillFeedDataGrid(int index);

    void SetUp() override;

    // Moves the list's position, whose click stores the feed on show. One feed that is selected
    // stays as it is.
    void Store() override;

  private:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;

    void SetUpControls();
    void PlaceControls();
    void TieEvents();
    void PlaceFrames();
    void PlaceMoveButtons();

    void lstFeeds_Click();
    void cmdMoveUp_Click();
    void cmdMoveDown_Click();
    void cmdAddFeed_Click();
    void cmdRemoveFeed_Click();
    void cmdSaveFeedToLibrary_Click();
    void cmdRemoveFromLibrary_Click();
    void grdFeedData_BeforeEdit(int row, int col, bool& cancel);
    void grdFeedData_ValidateEdit(int row, int col, bool& cancel);
    void grdFeedData_AfterEdit(int row, int col);

    int Position() const;
    void SaveFeedToLibrary();
    void StoreFeedInLibrary(Recordset& row);
    bool DeleteFromLibrary() const;
    void RenameFeed(bool& cancel);
};

}  // namespace tav
