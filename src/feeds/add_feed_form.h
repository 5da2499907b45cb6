// The feed picker, frmAddFeed: marks feeds of the library and adds them to the simulation.
#pragma once

#include "feeds/feed_library.h"
#include "forms/controls.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tav {

// The library is open, read-only, for as long as the form is loaded. A failure to open or read it
// leaves Form_Load.
class AddFeedForm : public Form {
  public:
    static constexpr int kCategories = 9;

    AddFeedForm();

    ControlArray<Label> lblCategory{*this, "lblCategory", kCategories};
    ControlArray<ListBox> lstCategory{*this, "lstCategory", kCategories};
    Label lblNoFeedsSelected{*this, "lblNoFeedsSelected"};
    Grid grdFeedValues{*this, "grdFeedValues"};
    CommandButton cmdAddFeed{*this, "cmdAddFeed"};
    CommandButton cmdCancel{*this, "cmdCancel"};

    std::int16_t SelectedCount = 0;          // feeds marked in all lists
    std::vector<std::string> SelectedNames;  // as the lists show them, list by list
    bool DatabaseOpen = false;
    bool YoungCalf = false;

    // Makes the feed the table's current row. A name as a list shows it: behind the asterisk of a
    // user's feed and a blank stands the name proper. Returns whether there is one.
    bool FindLibraryFeed(std::string_view name);

    // Fills the grid with the marked feeds, or hides it when there are none.
    void ShowSelectedFeedValues();

  private:
    void Form_Load() override;
    void Form_Unload(bool& cancel) override;

    void SetUpControls();
    void PlaceControls();
    void FitToMainWindow();
    void FillLists();
    void CloseLibrary();
    void RebuildSelection();
    void FitGrid();
    bool AddSelectedFeed(const std::string& name, bool isLast);

    void lstCategory_Click(int index);
    void cmdAddFeed_Click();
    void cmdCancel_Click();

    std::optional<FeedLibrary> library_;
};

}  // namespace tav
