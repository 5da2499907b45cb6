// Text of numbers as files, screens and reports have it.
#include "core/number_text.h"

#include <gtest/gtest.h>

namespace tav {
namespace {

TEST(NumberText, IsTheGeneralFormOfUpToSevenDigits) {
    const struct {
        double Value;
        const char* Text;
    } cases[] = {
        {0, "0"},
        {650, "650"},
        {4.78, "4.78"},
        {0.25, "0.25"},
        {-3.5, "-3.5"},
        {1.0 / 3, "0.3333333"},
        {1234567, "1234567"},
        {12345678, "1.234568E+07"},
        {0.0001, "0.0001"},
        {0.00001, "1E-05"},
        {1e30, "1E+30"},
        {-0.0, "0"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(NumberText(Single(c.Value)), c.Text);
    EXPECT_EQ(NumberText(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(SignedText(12), " 12");
    EXPECT_EQ(SignedText(Single(-1.5)), "-1.5");
    EXPECT_EQ(PrintedText(Single(23.1)), " 23.1 ");
    EXPECT_EQ(PrintedText(Single(-23.1)), "-23.1 ");
}

TEST(NumberText, UsesTheLocalesSeparatorAndReadsThePointToo) {
    SetDecimalSeparator(',');
    EXPECT_EQ(NumberText(Single(4.78)), "4,78");
    EXPECT_EQ(FixedText(Single(1.5), 2), "1,50");
    EXPECT_EQ(TextToNumber("4,78"), 4.78);
    EXPECT_EQ(TextToNumber("4.78"), 4.78);
    SetDecimalSeparator('.');
    EXPECT_FALSE(IsNumeric("4,78"));
}

TEST(FixedText, RoundsHalfAwayFromZeroOnTheDecimalDigits) {
    const struct {
        double Value;
        int Decimals;
        const char* Text;
    } cases[] = {
        {0.125, 2, "0.13"},       {2.675, 2, "2.68"},    {2.5, 0, "3"},    {3.5, 0, "4"},
        {-2.5, 0, "-3"},          {0.05, 1, "0.1"},      {0.04, 1, "0.0"}, {-0.04, 1, "-0.0"},
        {99.95, 1, "100.0"},      {9.9999, 3, "10.000"}, {0, 3, "0.000"},  {1e-9, 2, "0.00"},
        {1234.5, 4, "1234.5000"}, {0.5, 0, "1"},         {0.49, 0, "0"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(FixedText(Single(c.Value), c.Decimals), c.Text) << c.Value;
        EXPECT_EQ(FixedText(c.Value, c.Decimals), c.Text) << c.Value;
    }
    // In 32 bits 2.35 lies below 2.35; its seven digits are what counts, but not in a 64-bit
    // result.
    EXPECT_EQ(FixedText(Single(2.35), 1), "2.4");
    EXPECT_EQ(FixedText(double{2.35F}, 1), "2.3");
    EXPECT_EQ(FormatNumber(Single(12.3456), "0.000"), "12.346");
    EXPECT_EQ(FormatNumber(Single(12345678), "0"), "12345680");
    EXPECT_THROW(FormatNumber(Single(1), "#.0"), RuntimeError);
}

TEST(TextToNumber, TakesEveryFormOfANumber) {
    const struct {
        const char* Text;
        double Value;
    } cases[] = {
        {"12", 12},
        {" 12 ", 12},
        {"-12", -12},
        {"+1.5", 1.5},
        {".5", 0.5},
        {"5.", 5},
        {"1E3", 1000},
        {"1e-3", 0.001},
        {"1.5D+02", 150},
        {"1e-400", 0},
        {"\t7\t", 7},
        {"0.1", 0.1},
        {"12345678901234567890", 12345678901234567890.0},
        {"0e999", 0},
        {"000000000000000000.25", 0.25},
        {"0.30000000000000004", 0.30000000000000004},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(TextToNumber(c.Text), c.Value) << c.Text;
        EXPECT_TRUE(IsNumeric(c.Text)) << c.Text;
    }
}

TEST(TextToNumber, RefusesEverythingElse) {
    for (const char* text : {"", " ", ".", "-", "abc", "1,000", "1 2", "1e", "1e+", "--1", "0x10",
                             "nan", "inf", "1.2.3", "12kg", "1e5.0", "\r", "1\r"}) {
        EXPECT_FALSE(IsNumeric(text)) << text;
        try {
            TextToNumber(text);
            ADD_FAILURE() << text;
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number, kTypeMismatch) << text;
        }
    }
}

TEST(TextToNumber, TellsANumberTooLargeFromNoNumber) {
    for (const char* text : {"1e400", "-1e400", "1e99999999999999999999"}) {
        try {
            TextToNumber(text);
            ADD_FAILURE() << text;
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number, kOverflow) << text;
        }
    }
    EXPECT_EQ(TextToNumber("1e-99999999999999999999"), 0);
    EXPECT_EQ(TextToNumber(std::string(400, '0') + "1e-2"), 0.01);
    EXPECT_EQ(TextToNumber("0." + std::string(400, '0') + "1e401"), 1);
}

TEST(TextToBoolean, TakesWordsInAnyCaseAndNumbers) {
    for (const char* text : {"True", "true", "TRUE", "1", "-1", "0.5", " 2 "})
        EXPECT_TRUE(TextToBoolean(text)) << text;
    for (const char* text : {"False", "fALSE", "0", " 0 ", "0.0"})
        EXPECT_FALSE(TextToBoolean(text)) << text;
    for (const char* text : {"", "yes", "Truee", "T"})
        EXPECT_THROW(TextToBoolean(text), RuntimeError) << text;
}

}  // namespace
}  // namespace tav
