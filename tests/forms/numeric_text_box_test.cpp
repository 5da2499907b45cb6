#include "core/number_text.h"
#include "forms/sample_form.h"

namespace tav {
namespace {

class NumberForm : public SampleForm {
  public:
    using SampleForm::SampleForm;
    NumericTextBox txtNumber{*this, "txtNumber"};
    MenuItem mnuSave{*this, "mnuSave", "Save"};
    tav::Toolbar Toolbar{*this, "Toolbar"};
};

class NumericTextBoxTest : public FormsTest {
  protected:
    NumericTextBoxTest() {
        Box.Text = "650 kg";
        Box.Minimum = 227;
        Box.Maximum = 1364;
        Box.Units = "kg";
        Box.Format = "0";
        Box.ValueEntered = [this] { ++Entered; };
    }

    std::string Type(const std::string& text) {
        Box.UserEnter();
        Box.UserType(text);
        Box.UserLeave();
        return Box.Text;
    }

    NumberForm& Form = Open<NumberForm>();
    NumericTextBox& Box = Form.txtNumber;
    int Entered = 0;
};

TEST_F(NumericTextBoxTest, TakesNumbersUpToAndOnItsLimits) {
    EXPECT_EQ(Type("1364"), "1364 kg");
    EXPECT_EQ(Type("1365"), "1364 kg");
    EXPECT_EQ(Type("227"), "227 kg");
    EXPECT_EQ(Type("226.99"), "227 kg");
    EXPECT_EQ(Type("-500"), "227 kg");
    EXPECT_EQ(Entered, 2);
}

TEST_F(NumericTextBoxTest, LimitThatNoSingleHoldsExactlyIsAccepted) {
    Box.Minimum = 11.4;
    Box.Maximum = 79.6;
    Box.Format = "0.0";
    EXPECT_EQ(Type("79.6"), "79.6 kg");
    EXPECT_EQ(Type("11.4"), "11.4 kg");
    EXPECT_EQ(Type("79.7"), "11.4 kg");
}

TEST_F(NumericTextBoxTest, RefusesWhatIsNoNumberAndSaysWhy) {
    for (const char* const text : {"", "abc", "N/A", "1.2.3", "1e3", "--5", "5-", "600 lbs", " "}) {
        Box.Refusal.clear();
        EXPECT_EQ(Type(text), "650 kg") << text;
        EXPECT_FALSE(Box.Refusal.empty()) << text;
    }
    EXPECT_EQ(Type(std::string(400, '9')), "650 kg");
    EXPECT_EQ(Entered, 0);
    Type("600");
    EXPECT_TRUE(Box.Refusal.empty());
}

// Key by key, as hands do it: what came before the wrong sign is no value by itself.
TEST_F(NumericTextBoxTest, HalfOfARefusedTextIsNeverTaken) {
    Box.UserType("6");
    Box.UserType("600");
    Box.UserType("600,");
    EXPECT_EQ(Box.RefusedText(), "600,");
    EXPECT_EQ(Box.Refusal, "Enter a number with a decimal point.");
    Box.UserLeave();
    EXPECT_EQ(Box.Text, "650 kg");
    EXPECT_EQ(Entered, 0);
    Box.UserType("600,");
    Box.UserType("600");
    EXPECT_TRUE(Box.RefusedText().empty());
    Box.UserLeave();
    EXPECT_EQ(Entered, 1);
}

TEST_F(NumericTextBoxTest, TakesTheUnitBehindTheNumber) {
    EXPECT_EQ(Type("700 kg"), "700 kg");
    EXPECT_EQ(Type("710kg "), "710 kg");
    Box.Units = " kph";
    EXPECT_EQ(Type("800"), "800 kph");
    Box.Units = "";
    EXPECT_EQ(Type("900"), "900");
}

TEST_F(NumericTextBoxTest, ShowsTheNumberByItsFormat) {
    Box.Minimum = 0;
    EXPECT_EQ(Type("30.6"), "31 kg");
    Box.Format = "0.00";
    EXPECT_EQ(Type("3.2"), "3.20 kg");
    Box.Format = "";
    EXPECT_EQ(Type("30.65"), "30.65 kg");
}

TEST_F(NumericTextBoxTest, ReadsTheSeparatorInForce) {
    Box.Minimum = 0;
    SetDecimalSeparator(',');
    Box.Format = "0.0";
    EXPECT_EQ(Type("3,5"), "3,5 kg");
    EXPECT_EQ(Type("4.5"), "4,5 kg");
    SetDecimalSeparator('.');
    EXPECT_EQ(Type("5,5"), "4,5 kg");
}

TEST_F(NumericTextBoxTest, LimitsLeaveTheTextAlone) {
    Box.Maximum = 10;
    EXPECT_EQ(Box.Text, "650 kg");
    Box.UserEnter();
    Box.UserLeave();
    EXPECT_EQ(Box.Text, "650 kg");
    EXPECT_EQ(Entered, 0);
}

TEST_F(NumericTextBoxTest, ValueIsEnteredBeforeTheFocusIsLost) {
    Box.ValueEntered = [this] { Events.push_back("entered " + Box.Text); };
    Box.LostFocus = [this] { Events.push_back("left"); };
    Type("700");
    EXPECT_EQ(Events, (EventLog{"entered 700 kg", "left"}));
}

TEST_F(NumericTextBoxTest, MenuToolbarAndClosingFindTheEntryComplete) {
    EventLog seen;
    Form.Toolbar.Buttons.push_back({.Key = "Feeds"});
    Form.mnuSave.Click = [&] { seen.push_back(Box.Text); };
    Form.Toolbar.ButtonClick = [&](ToolbarButton&) { seen.push_back(Box.Text); };
    Box.UserEnter();
    Box.UserType("700");
    Form.mnuSave.UserClick();
    EXPECT_EQ(Form.Focus(), &Box);
    Box.UserType("800");
    Form.Toolbar.UserClickButton("Feeds");
    EXPECT_EQ(seen, (EventLog{"700 kg", "800 kg"}));
    Box.UserType("900");
    TheForms().Unload("frmSample");
    EXPECT_EQ(Box.Text, "900 kg");
}

}  // namespace
}  // namespace tav
