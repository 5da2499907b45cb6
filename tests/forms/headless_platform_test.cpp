#include "forms/sample_form.h"

namespace tav {
namespace {

using std::chrono::milliseconds;

class TimerForm : public SampleForm {
  public:
    TimerForm(const std::string& name, EventLog& log) : SampleForm(name, log) {
        tmrSlow.Interval = 30000;
        tmrFast.Interval = 20000;
        tmrSlow.Tick = [this] { Events.push_back("slow"); };
        tmrFast.Tick = [this] { Events.push_back("fast"); };
    }
    Timer tmrSlow{*this, "tmrSlow"};
    Timer tmrFast{*this, "tmrFast"};
};

class HeadlessPlatformTest : public FormsTest {
  protected:
    MessageAnswer Ask(MessageButtons buttons) {
        return Platform.ShowMessage({"text", "title", MessageIcon::None, buttons});
    }

    TimerForm& Form = Open<TimerForm>();
};

TEST_F(HeadlessPlatformTest, TimersTickEachTimeTheirIntervalHasPassed) {
    Platform.Advance(milliseconds(50000));
    EXPECT_TRUE(Events.empty());
    Form.tmrSlow.Start();
    Form.tmrFast.Start();
    Platform.Advance(milliseconds(39999));
    EXPECT_EQ(Events, (EventLog{"fast", "slow"}));
    Platform.Advance(milliseconds(1));
    EXPECT_EQ(Events, (EventLog{"fast", "slow", "fast"}));
}

TEST_F(HeadlessPlatformTest, StartBeginsAWholeInterval) {
    Form.tmrFast.Start();
    Platform.Advance(milliseconds(19000));
    Form.tmrFast.Stop();
    Form.tmrFast.Start();
    Platform.Advance(milliseconds(19000));
    EXPECT_TRUE(Events.empty());
    Platform.Advance(milliseconds(1000));
    EXPECT_EQ(Events.size(), 1u);
}

TEST_F(HeadlessPlatformTest, TickSeesTheTimeAtWhichItIsDue) {
    const auto begin = Platform.Now();
    std::vector<long long> seconds;
    Form.tmrFast.Tick = [&] { seconds.push_back((Platform.Now() - begin).count()); };
    Form.tmrFast.Start();
    Platform.Advance(milliseconds(50000));
    EXPECT_EQ(seconds, (std::vector<long long>{20, 40}));
    EXPECT_EQ((Platform.Now() - begin).count(), 50);
}

TEST_F(HeadlessPlatformTest, TickMayEndTheProgram) {
    Form.tmrFast.Tick = [] { Raise(kDiskFull); };
    Form.tmrFast.Start();
    Form.tmrSlow.Start();
    Platform.Advance(milliseconds(90000));
    EXPECT_EQ(TheProgram().FatalError, kDiskFull);
    EXPECT_TRUE(Events.empty());
}

TEST_F(HeadlessPlatformTest, OnlyBoxesWithAChoiceTakeAnAnswer) {
    Platform.Answers = {MessageAnswer::No, MessageAnswer::OK};
    EXPECT_EQ(Ask(MessageButtons::OK), MessageAnswer::OK);
    EXPECT_EQ(Ask(MessageButtons::YesNoCancel), MessageAnswer::No);
    // An answer that the box doesn't offer isn't one.
    EXPECT_THROW(Ask(MessageButtons::YesNo), NoAnswer);
    EXPECT_EQ(Ask(MessageButtons::OKCancel), MessageAnswer::OK);
    EXPECT_THROW(Ask(MessageButtons::OKCancel), NoAnswer);
    EXPECT_EQ(Platform.Messages.size(), 3u);
}

TEST_F(HeadlessPlatformTest, FileDialogLeavesPathAndTitleOrNothing) {
    CommonDialog dialog;
    dialog.FileName = "first.tav";
    Platform.Files = {std::nullopt, "/herd/cow 7.tav"};
    EXPECT_FALSE(Platform.ShowSaveDialog(dialog));
    EXPECT_EQ(dialog.FileName, "first.tav");
    EXPECT_TRUE(Platform.ShowOpenDialog(dialog));
    EXPECT_EQ(dialog.FileName, "/herd/cow 7.tav");
    EXPECT_EQ(dialog.FileTitle, "cow 7.tav");
    EXPECT_EQ(Platform.Dialogs[1].Asked.FileName, "first.tav");
    EXPECT_THROW(Platform.ShowOpenDialog(dialog), NoAnswer);
    EXPECT_EQ(Platform.ShowPrinterSetup(1), 1);
    Platform.Orientations = {0};
    EXPECT_EQ(Platform.ShowPrinterSetup(1), 0);
}

}  // namespace
}  // namespace tav
