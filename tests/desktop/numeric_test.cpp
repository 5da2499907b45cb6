// Boxes for one number: what the keys do to them.
#include "core/number_text.h"
#include "driven_program.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>

namespace tav {
namespace {

class NumericBoxes : public DrivenProgram {
  protected:
    ~NumericBoxes() override { SetDecimalSeparator('.'); }

    void OpenDescription() {
        OpenCow("Inputs");
        ClickTab("frmInputs.InputTabs", 1);
    }
    QLineEdit& Weight() const { return Widget<QLineEdit>("frmInputs.txtBodyWeight"); }
    std::string Text() const { return Model<NumericTextBox>("frmInputs.txtBodyWeight").Text; }
    // The note under a box; empty if none is seen.
    std::string Note() const {
        for (const QLabel* const label : MainWindow().findChildren<QLabel*>("refusal")) {
            if (label->isVisible()) return label->text().toStdString();
        }
        return {};
    }
};

TEST_F(NumericBoxes, TypingReplacesTheValueAndTheUnitComesBack) {
    OpenDescription();
    EXPECT_EQ(Weight().text().toStdString(), "650 kg");
    Click(Weight());
    EXPECT_EQ(Weight().selectedText().toStdString(), "650 kg");
    Type("612.5");
    EXPECT_EQ(Weight().text().toStdString(), "612.5");
    EXPECT_EQ(Text(), "650 kg");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Keyboard(), "frmInputs.txtDaysPregnant");
    EXPECT_EQ(Widget<QLineEdit>("frmInputs.txtDaysPregnant").selectedText().toStdString(),
              Model<NumericTextBox>("frmInputs.txtDaysPregnant").Text);
    EXPECT_EQ(Weight().text().toStdString(), Text());
    EXPECT_TRUE(Text().ends_with(" kg")) << Text();
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Keyboard(), "frmInputs.txtBodyWeight");
    EXPECT_EQ(Weight().selectedText().toStdString(), Text());
}

TEST_F(NumericBoxes, AValueWithItsUnitIsTypedLetterByLetter) {
    OpenDescription();
    Enter("frmInputs.txtBodyWeight", "640 kg");
    EXPECT_EQ(Text(), "640 kg");
    EXPECT_EQ(Note(), "");
    // The number goes, the unit stays, a new number comes.
    Click(Weight());
    Key(Qt::Key_Home);
    for (int i = 0; i < 3; ++i)
        Key(Qt::Key_Delete);
    EXPECT_EQ(Weight().text().toStdString(), " kg");
    Type("7");
    Type("01");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Text(), "701 kg");
}

TEST_F(NumericBoxes, WhatIsNoNumberStaysOutAndIsSaid) {
    OpenDescription();
    Click(Weight());
    Type("6x");
    EXPECT_EQ(Weight().text().toStdString(), "6x");
    EXPECT_EQ(Note(), "Enter a number.");
    Key(Qt::Key_Backspace);
    Type("4");
    EXPECT_EQ(Weight().text().toStdString(), "64");
    EXPECT_EQ(Note(), "");
    Type("99999");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Text(), "650 kg");
    EXPECT_EQ(Weight().text().toStdString(), "650 kg");
    EXPECT_NE(Note().find("Enter a value from "), std::string::npos) << Note();
    EXPECT_EQ(Weight().accessibleDescription().toStdString(), Note());
    // Turning to it again and going on wipes the note away.
    Enter("frmInputs.txtBodyWeight", "600");
    EXPECT_EQ(Text(), "600 kg");
    EXPECT_EQ(Note(), "");
    EXPECT_EQ(Weight().accessibleDescription().toStdString(), "");
}

// A sign that isn't this country's makes no other number of what was meant.
TEST_F(NumericBoxes, AForeignSeparatorRescalesNothing) {
    OpenDescription();
    Click(Weight());
    Type("650,5");
    EXPECT_EQ(Weight().text().toStdString(), "650,5");
    EXPECT_EQ(Note(), "Enter a number with a decimal point.");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Text(), "650 kg");
    EXPECT_EQ(Weight().text().toStdString(), "650 kg");
    Enter("frmInputs.txtBodyWeight", "700 lbs");
    EXPECT_EQ(Text(), "650 kg");
}

// The note belongs to what is on show: another page has its own.
TEST_F(NumericBoxes, TheNoteGoesWithThePage) {
    OpenDescription();
    Click(Weight());
    Type("x");
    ASSERT_NE(Note(), "");
    ClickTab("frmInputs.InputTabs", 0);
    EXPECT_EQ(Note(), "");
}

TEST_F(NumericBoxes, EnterTakesTheValueAndTypingGoesOnAnew) {
    OpenDescription();
    Click(Weight());
    Type("610");
    Key(Qt::Key_Return);
    EXPECT_EQ(Text(), "610 kg");
    EXPECT_EQ(Weight().text().toStdString(), "610 kg");
    Type("620");
    EXPECT_EQ(Weight().text().toStdString(), "620");
    Key(Qt::Key_Tab);
    EXPECT_EQ(Text(), "620 kg");
}

TEST_F(NumericBoxes, TheCommaIsADecimalSignWhereItIsTheUsers) {
    SetDecimalSeparator(',');
    OpenCow("Ration");
    EXPECT_EQ(Widget<QLineEdit>("frmRation.txtTotalIntake").text().toStdString(), "23,100 kg/day");
    Enter("frmRation.txtTotalIntake", "24,5");
    EXPECT_EQ(Model<NumericTextBox>("frmRation.txtTotalIntake").Text, "24,500 kg/day");
    EXPECT_NEAR(TheSimulation().TotalDMI.Value(), 24.5, 0.01);
    // A point is one, too, and never one of thousands.
    Enter("frmRation.txtTotalIntake", "23.25");
    EXPECT_EQ(Model<NumericTextBox>("frmRation.txtTotalIntake").Text, "23,250 kg/day");
    EXPECT_NEAR(TheSimulation().TotalDMI.Value(), 23.25, 0.01);
    Enter("frmRation.txtTotalIntake", "1.234,5");
    EXPECT_EQ(Model<NumericTextBox>("frmRation.txtTotalIntake").Text, "23,250 kg/day");
    EXPECT_NE(Note(), "");
}

TEST_F(NumericBoxes, PastedTextIsJudgedAsAWhole) {
    OpenDescription();
    for (const auto& [pasted, taken] : {std::pair{"701 kg", "701 kg"},
                                        {" 702 ", "702 kg"},
                                        {"703 lbs", "702 kg"},
                                        {"7e2", "702 kg"},
                                        {"705\n", "705 kg"}}) {
        QGuiApplication::clipboard()->setText(pasted);
        Click(Weight());
        Key(Qt::Key_V, Qt::ControlModifier);
        Key(Qt::Key_Tab);
        EXPECT_EQ(Text(), taken) << pasted;
    }
}

}  // namespace
}  // namespace tav
