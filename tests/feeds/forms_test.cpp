// The two forms of the feeds: their geometry, and a simulation that is full.
#include "core/platform.h"
#include "core/program_state.h"
#include "feeds/add_feed_form.h"
#include "feeds/collection.h"
#include "feeds/feeds_form.h"
#include "feeds/small_library.h"
#include "forms/form_registry.h"
#include "forms/headless_platform.h"

#include <gtest/gtest.h>

namespace tav {
namespace {

bool Overlap(const Control& a, const Control& b) {
    return a.Left < b.Left + b.Width && b.Left < a.Left + a.Width && a.Top < b.Top + b.Height &&
           b.Top < a.Top + a.Height;
}

void ExpectTidy(const Form& form, Number width, Number height) {
    for (const Control* const a : form.Controls()) {
        SCOPED_TRACE(a->FullName());
        const Control* const container = a->Container();
        EXPECT_TRUE(a->Width > 0 && a->Height > 0);
        EXPECT_TRUE(a->Left >= 0 && a->Top >= 0);
        EXPECT_TRUE(a->Left + a->Width <= (container ? Number(container->Width) : width));
        EXPECT_TRUE(a->Top + a->Height <= (container ? Number(container->Height) : height));
        for (const Control* const b : form.Controls()) {
            if (a == b || container != b->Container()) continue;
            // The label stands where the grid stands when there is something to show.
            if (a->Name() == "lblNoFeedsSelected" || b->Name() == "lblNoFeedsSelected") continue;
            EXPECT_FALSE(Overlap(*a, *b)) << b->FullName();
        }
    }
}

TEST(FeedForms, AreTidyAtTheirDesignSize) {
    ExpectTidy(FeedsForm(), 800 * 15, 600 * 15);
    const AddFeedForm picker;
    ExpectTidy(picker, picker.ClientWidth(), picker.ClientHeight());
    EXPECT_TRUE(picker.Width <= 800 * 15 && picker.Height <= 600 * 15);
}

TEST(Collection, CountsTo255AndNoFurther) {
    TheSimulation() = {};
    for (int i = 1; i <= 255; ++i)
        AddFeed().Qty = 1;
    EXPECT_EQ(ErrorOf([] { AddFeed(); }), kOverflow);
    EXPECT_EQ(TheSimulation().NumFeeds, 255);
    EXPECT_EQ(TheSimulation().Feeds.size(), 255U);
    RemoveFeed(1);
    EXPECT_EQ(TheSimulation().TotalDMI, 254);
    EXPECT_EQ(ErrorOf([] { FeedAt(255); }), kSubscriptOutOfRange);
    EXPECT_EQ(ErrorOf([] { FeedAt(0); }), kSubscriptOutOfRange);
    TheSimulation() = {};
}

// The screens on a program with a library and a simulation of its own.
class FeedScreens : public ::testing::Test {
  protected:
    FeedScreens() {
        SetPlatform(platform);
        TheProgram() = {};
        TheSimulation() = {};
        TheProgram().AppPath = small.Path("");
        TheProgram().AppPath.pop_back();
        std::filesystem::rename(small.Path(), small.Path(std::string(kLibraryFile)));
        TheForms().Register("frmFeeds", [] { return std::make_unique<FeedsForm>(); });
        TheForms().Register("frmAddFeed", [] { return std::make_unique<AddFeedForm>(); });
    }
    ~FeedScreens() override {
        TheForms().Clear();
        TheSimulation() = {};
    }

    static AddFeedForm& OpenPicker() {
        auto& feeds = static_cast<FeedsForm&>(TheForms().Show("frmFeeds"));
        feeds.cmdAddFeed.UserClick();
        return TheForms().Get<AddFeedForm>("frmAddFeed");
    }

    const SmallLibrary small;
    HeadlessPlatform platform;
};

// A full ration counts no further: what is added is read over the last feed, which keeps its
// amount.
TEST_F(FeedScreens, ReadsTheFeedBehindThe255thOverTheLastOne) {
    for (int i = 1; i <= 254; ++i)
        AddFeed().Name = "Feed " + std::to_string(i);
    AddFeed().Name = "Last";
    FeedAt(255).Qty = 4;
    FeedAt(255).CaBio = 0.5;
    AddFeedForm& picker = OpenPicker();
    picker.lstCategory[2].UserMark(0, true);  // Corn
    picker.lstCategory[2].UserMark(1, true);  // Barley
    picker.cmdAddFeed.UserClick();
    EXPECT_EQ(TheForms().Find("frmAddFeed"), nullptr);
    EXPECT_EQ(platform.Messages.size(), 0U);
    EXPECT_EQ(TheSimulation().NumFeeds, 255);
    EXPECT_EQ(TheSimulation().Feeds.size(), 255U);
    EXPECT_EQ(FeedAt(254).Name, "Feed 254");
    EXPECT_EQ(FeedAt(255).Name, "Barley");
    EXPECT_EQ(FeedAt(255).Qty, 4);
    EXPECT_EQ(FeedAt(255).CP, 12);
    EXPECT_EQ(FeedAt(255).Ca, Single(0.03));  // Barley's is Null, so that Corn's stands
    EXPECT_EQ(FeedAt(255).CaBio, 0.5);
}

// A save that fails tells its number, and the feed stays a default feed of the collection.
TEST_F(FeedScreens, AFailedSaveLeavesTheCollectionAsItWas) {
    FeedRecord& feed = AddFeed();
    feed.Name = "New";
    feed.Category = "Energy Source";
    feed.ReadOnly = true;
    auto& form = static_cast<FeedsForm&>(TheForms().Show("frmFeeds"));
    {
        const FeedLibrary other(LibraryUse::ReadOnly);
        form.cmdSaveFeedToLibrary.UserClick();
    }
    ASSERT_EQ(platform.Messages.size(), 1U);
    EXPECT_EQ(platform.Messages[0].Shown.Text,
              "Error Number :   3045\rError Description :  Could not use; file already in use");
    EXPECT_TRUE(FeedAt(1).ReadOnly);
    EXPECT_EQ(TheSimulation().NumFeeds, 1);
    platform.Answers = {MessageAnswer::Yes};
    form.cmdSaveFeedToLibrary.UserClick();
    EXPECT_FALSE(FeedAt(1).ReadOnly);
    EXPECT_TRUE(FeedLibrary(LibraryUse::ReadOnly).Find("New"));
}

}  // namespace
}  // namespace tav
