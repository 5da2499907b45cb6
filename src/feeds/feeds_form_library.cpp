// The commands of the feeds screen that deal with the feed library.
#include "core/number_text.h"
#include "core/platform.h"
#include "core/program_state.h"
#include "feeds/collection.h"
#include "feeds/feed_row.h"
#include "feeds/feeds_form.h"
#include "forms/form_registry.h"

namespace tav {
namespace {

// The message of a save that finds no library carries the name of a sibling system's library.
constexpr std::string_view kSiblingLibraryFile = "Ruminal Ledger Feed Library.mdb";

void ReportMissingLibrary(std::string_view fileName) {
    ThePlatform().ShowMessage(
        {"The Feed Library is not in the program directory.\r\r"
         "1. If it has been moved, please move it back to :  " +
             TheProgram().AppPath +
             "\r\r2. If the name has been changed, please rename it :  " + std::string(fileName) +
             "\r\r3.  If the Library has been lost, please re-install the program to get a new "
             "copy.",
         "Cannot Find Feed Library", MessageIcon::Critical});
}

void ReportFailure(const RuntimeError& error, std::string_view fileName) {
    if (error.Number == kCouldNotFindFile) {
        ReportMissingLibrary(fileName);
        return;
    }
    ThePlatform().ShowMessage({"Error Number :  " + SignedText(error.Number) +
                                   "\rError Description :  " + error.Description,
                               "Error", MessageIcon::Critical});
}

// Runs a task to its end, or to the first failure, which is shown. The library is closed either
// way.
template <class Task>
void RunLibraryTask(std::string_view fileName, Task&& task) {
    try {
        task();
    } catch (const RuntimeError& error) {
        ReportFailure(error, fileName);
    }
}

bool Ask(const std::string& text, const std::string& title) {
    return ThePlatform().ShowMessage({text, title, MessageIcon::Question, MessageButtons::YesNo}) ==
           MessageAnswer::Yes;
}

// A presence check.
void OpenAndCloseLibrary() { FeedLibrary(LibraryUse::ReadOnly).Close(); }

}  // namespace

void FeedsForm::cmdAddFeed_Click() {
    RunLibraryTask(kLibraryFile, [] {
        OpenAndCloseLibrary();
        try {
            TheForms().ShowModal("frmAddFeed");
        } catch (const RuntimeError&) {
            TheForms().Unload("frmAddFeed");
            throw;
        }
    });
}

void FeedsForm::cmdSaveFeedToLibrary_Click() {
    RunLibraryTask(kSiblingLibraryFile, [this] { SaveFeedToLibrary(); });
}

void FeedsForm::SaveFeedToLibrary() {
    RetrieveFeedData(SelectedFeed);
    FeedLibrary library(LibraryUse::ReadWrite);
    Recordset& table = library.Table();
    if (!library.Find(FeedAt(SelectedFeed).Name)) {
        if (!Ask("You are about to create a new feed in the Feed Library.  Continue?",
                 "Create New Feed?")) {
            return;
        }
        table.AddNew();
        StoreFeedInLibrary(table);
    } else if (IsDefaultFeed(table)) {
        ThePlatform().ShowMessage(
            {"A feed with this name already exists and cannot be altered.\r"
             "Please assign it a new name and try again.",
             "Feed Already Exists", MessageIcon::Critical});
    } else if (Ask("A feed with this name already exists.  Replace it?", "Replace Feed Record?")) {
        table.Edit();
        StoreFeedInLibrary(table);
        table.Edit();
        table.Update();
        library.Close();
        SetUpFeeds(SelectedFeed);
    }
}

// Writes the selected feed into the row that is open. A failure leaves the feed as it was.
void FeedsForm::StoreFeedInLibrary(Recordset& row) {
    RetrieveFeedData(SelectedFeed);
    FeedRecord& feed = FeedAt(SelectedFeed);
    const bool wasReadOnly = feed.ReadOnly;
    try {
        StoreFeedRow(row, feed);
    } catch (const RuntimeError&) {
        feed.ReadOnly = wasReadOnly;
        throw;
    }
}

void FeedsForm::cmdRemoveFromLibrary_Click() {
    bool deleted = false;
    RunLibraryTask(kLibraryFile, [&] { deleted = DeleteFromLibrary(); });
    if (!deleted) return;
    if (Ask("Feed removed from Library.  Remove it from the ration as well?", "Record Removed")) {
        cmdRemoveFeed_Click();
    }
}

bool FeedsForm::DeleteFromLibrary() const {
    FeedLibrary library(LibraryUse::ReadWrite);
    Recordset& table = library.Table();
    if (!library.Find(FeedAt(SelectedFeed).Name)) {
        ThePlatform().ShowMessage(
            {"This feed does not exist in the Feed Library.", "Record Not Present"});
        return false;
    }
    if (IsDefaultFeed(table)) {
        ThePlatform().ShowMessage(
            {"This feed is one of the Feed Library default feeds and cannot be deleted.",
             "Cannot Delete Record"});
        return false;
    }
    const MessageAnswer answer =
        ThePlatform().ShowMessage({"Are you sure you wish to delete this feed from Feed Library?",
                                   "Confirm Delete", MessageIcon::None, MessageButtons::OKCancel});
    if (answer != MessageAnswer::OK) return false;
    table.Delete();
    table.MoveNext();
    return true;
}

}  // namespace tav
