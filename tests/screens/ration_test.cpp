// What no script sees of the ration screen: when the model runs, and how its grid fits.
#include "screens/ration_form.h"
#include "screens/screen_fixture.h"

namespace tav {
namespace {

// The gain with the conceptus of a cow rests on the EBG of the run before. A value that no run
// leaves there tells one run from two.
constexpr double kPlanted = 500;

class Ration : public ScreenTest {
  protected:
    static RationForm& Open() { return ScreenTest::Open<RationForm>("frmRation"); }

    static void Plant() {
        TheSimulation().EBG = kPlanted;
        TheSimulation().ADGEnergyConceptus = -1;
    }
    enum class Runs { None, One, More };
    static Runs RunsSincePlanted() {
        if (TheSimulation().EBG == kPlanted) return Runs::None;
        return TheSimulation().ADGEnergyConceptus > kPlanted ? Runs::One : Runs::More;
    }
};

TEST_F(Ration, TheModelRunsOnceOnLoading) {
    LoadSample("Lactating Cow.tav");
    Plant();
    Open();
    EXPECT_EQ(RunsSincePlanted(), Runs::One);
}

TEST_F(Ration, AnEditRunsTheModelTwice) {
    LoadSample("Lactating Cow.tav");
    RationForm& form = Open();
    Plant();
    form.grdRation.UserEdit(2, 1, "9");
    EXPECT_EQ(RunsSincePlanted(), Runs::More);
    Plant();
    form.grdRation.UserEdit(2, 1, "-9");
    EXPECT_EQ(RunsSincePlanted(), Runs::None);
    ASSERT_EQ(Platform.Messages.size(), 1U);
    EXPECT_EQ(Platform.Messages[0].Shown.Text, "This value cannot be negative.");
}

TEST_F(Ration, SettingTheTotalToTheSumRunsNothing) {
    LoadSample("Lactating Cow.tav");
    RationForm& form = Open();
    Plant();
    form.cmdResetIntake.UserClick();
    EXPECT_EQ(RunsSincePlanted(), Runs::None);
    form.cmdEstimateIntake.UserClick();
    EXPECT_EQ(RunsSincePlanted(), Runs::More);
}

TEST_F(Ration, WithoutQuantitiesTheModelDoesNotRun) {
    LoadSample("Lactating Cow.tav");
    for (FeedRecord& feed : TheSimulation().Feeds)
        feed.Qty = 0;
    TheSimulation().TotalDMI = 0;
    Plant();
    RationForm& form = Open();
    EXPECT_EQ(RunsSincePlanted(), Runs::None);
    EXPECT_EQ(form.lblResults[4].Caption, "No Ration Specified");
    EXPECT_EQ(form.lblResults[4].Alignment, Alignment::Center);
    EXPECT_EQ(form.lblResults[0].Caption, "");
    form.grdRation.UserEdit(2, 1, "0");
    EXPECT_EQ(RunsSincePlanted(), Runs::None);
}

TEST_F(Ration, ATotalThatIsNotLeftYetCountsWhenTheScreenIsStored) {
    LoadSample("Lactating Cow.tav");
    RationForm& form = Open();
    form.txtTotalIntake.UserEnter();
    form.txtTotalIntake.UserType("20");
    TheForms().Unload("frmRation");
    EXPECT_EQ(TheSimulation().Feeds[0].Qty, Single(7.1));
    EXPECT_NEAR(TheSimulation().TotalDMI.Value(), 20, 0.01);
    // A save stores it as well, once, and the user is still there.
    RationForm& again = Open();
    again.txtTotalIntake.UserEnter();
    again.txtTotalIntake.UserType("10");
    Form::FinishEntries();
    again.Store();
    EXPECT_EQ(TheSimulation().Feeds[0].Qty, Single(3.549));  // 35.49 %, of two decimals
    EXPECT_EQ(again.Focus(), &again.txtTotalIntake);
    again.grdRation.SetTextMatrix(2, 1, "4");
    again.Store();
    EXPECT_EQ(TheSimulation().Feeds[0].Qty, 4);
}

// Shares have two decimals: scaling by them would round the small quantities.
TEST_F(Ration, StandingAtTheTotalWithoutAnEntryChangesNothing) {
    LoadSample("Lactating Cow.tav");
    const Single before = TheSimulation().Feeds[8].Qty;
    Open().txtTotalIntake.UserEnter();
    TheForms().Unload("frmRation");
    EXPECT_EQ(TheSimulation().Feeds[8].Qty, before);
}

TEST_F(Ration, OnlySharesThatAddUpExactlyAreAHundred) {
    LoadSample("Lactating Cow.tav");
    RationForm& form = Open();
    const auto totalOf = [&](const char* first, const char* second, const char* third) {
        for (int row = 5; row <= TheSimulation().NumFeeds + 1; ++row)
            form.grdRation.SetTextMatrix(row, 2, "0.00 %");
        form.grdRation.SetTextMatrix(2, 2, first);
        form.grdRation.SetTextMatrix(3, 2, second);
        form.grdRation.SetTextMatrix(4, 2, third);
        form.UpdateRationTotals();
        return form.grdRation.TextMatrix(TheSimulation().NumFeeds + 3, 2);
    };
    EXPECT_EQ(totalOf("25 %", "25.00 %", "50%"), "100%");
    EXPECT_EQ(totalOf("28.72 %", "35.48 %", "35.80 %"), "100.0%");
    EXPECT_EQ(totalOf("28.72 %", "35.48 %", "35.90 %"), "100.1%");
}

TEST_F(Ration, AFaultOfTheModelLeavesTheEventAndEndsTheProgram) {
    LoadSample("Lactating Cow.tav");
    RationForm& form = Open();
    TheSimulation().BodyWeight = 0;
    TheForms().Run([&] { form.grdRation.UserEdit(2, 1, "9"); });
    EXPECT_TRUE(TheProgram().Ended);
    EXPECT_NE(TheProgram().FatalError, 0);
}

TEST_F(Ration, TheGridsFontShrinksUntilTheColumnsFit) {
    LoadSample("Lactating Cow.tav");
    const auto sumOfColumns = [](const Grid& grid) {
        return grid.ColWidth(0) + grid.ColWidth(1) + grid.ColWidth(2);
    };
    RationForm& form = Open();
    const Number room = form.lblPredIntake.Left - form.grdRation.Left;
    const Single usual = form.grdRation.FontSize;
    EXPECT_LE(sumOfColumns(form.grdRation), room);
    TheSimulation().Feeds[0].Name = std::string(30, 'W');
    form.grdRation.FontSize = 12;
    form.FillRationInput();
    EXPECT_LT(form.grdRation.FontSize, 12);
    EXPECT_LE(sumOfColumns(form.grdRation), room);
    TheSimulation().Feeds[0].Name = std::string(200, 'W');
    form.FillRationInput();
    EXPECT_EQ(form.grdRation.FontSize, 8.25);
    EXPECT_GT(usual, 8);
}

// Entering what is shown changes a quantity by no more than the last decimal that is shown.
TEST_F(Ration, StoringWhatIsShownKeepsTheQuantities) {
    for (const char* const sample : {"Lactating Cow.tav", "Young Calf.tav"}) {
        for (const bool metric : {true, false}) {
            for (const bool dry : {true, false}) {
                LoadSample(sample);
                TheProgram().UseMetric = metric;
                TheProgram().DryMatterBasis = dry;
                const FeedList before = TheSimulation().Feeds;
                RationForm& form = Open();
                form.RetrieveRation();
                Number sum;
                for (std::size_t i = 0; i < TheSimulation().NumFeeds; ++i) {
                    const FeedRecord& feed = TheSimulation().Feeds[i];
                    EXPECT_NEAR(feed.Qty.Value(), before[i].Qty.Value(), 0.0006)
                        << sample << " " << feed.Name;
                    sum += feed.Qty;
                }
                EXPECT_NEAR(TheSimulation().TotalDMI.Value(), sum.Value(), 1e-4);
                TheForms().Clear();
            }
        }
    }
}

}  // namespace
}  // namespace tav
