#include "screens/leading_number.h"

#include "core/runtime_error.h"
#include "core/temperature.h"

#include <gtest/gtest.h>

namespace tav {
namespace {

TEST(LeadingNumberText, IsThePartBeforeTheUnit) {
    EXPECT_EQ(LeadingNumberText("650 kg"), "650");
    EXPECT_EQ(LeadingNumberText("3.20 (%)"), "3.20");
    EXPECT_EQ(LeadingNumberText("  -4.5 deg C "), "-4.5");
    EXPECT_EQ(LeadingNumberText("75%"), "75");
    EXPECT_EQ(LeadingNumberText("33.33 %"), "33.33");
    EXPECT_EQ(LeadingNumberText("12"), "12");
    EXPECT_EQ(LeadingNumberText("N/A"), "N/A");
    EXPECT_EQ(LeadingNumberText("   "), "");
}

TEST(LeadingNumberText, EndsAtTheSecondPoint) {
    EXPECT_EQ(LeadingNumberText("1.2.3"), "1.2");
    EXPECT_EQ(LeadingNumberText(".5.5%"), ".5");
}

// A percent sign gives a result only if nothing behind it does.
TEST(LeadingNumberText, APercentSignDoesNotEndTheWalk) {
    EXPECT_EQ(LeadingNumberText("75% of it"), "75%");
    EXPECT_EQ(LeadingNumberText("7%5%"), "7%5");
    EXPECT_EQ(LeadingNumberText("7%.5"), "7");
    EXPECT_EQ(LeadingNumberText("1.5%.2"), "1.5%");
    EXPECT_EQ(LeadingNumberText("%"), "");
}

TEST(LeadingNumberText, CountsItsCharactersInAByte) {
    EXPECT_EQ(LeadingNumberText(std::string(255, '7')).size(), 255U);
    EXPECT_EQ(LeadingNumberText("  " + std::string(255, '7') + "  ").size(), 255U);
    try {
        LeadingNumberText(std::string(256, '7'));
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number, kOverflow);
    }
}

TEST(LeadingNumber, RaisesATypeMismatchForAWord) {
    EXPECT_EQ(LeadingNumber("12.5 lbs"), 12.5);
    for (const char* const word : {"N/A", "", "kg"}) {
        try {
            LeadingNumber(word);
            FAIL() << word;
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number, kTypeMismatch);
        }
    }
}

TEST(Temperature, MeetsItsFixedPoints) {
    EXPECT_DOUBLE_EQ(CelsiusToFahrenheit(0).Value(), 32);
    EXPECT_DOUBLE_EQ(CelsiusToFahrenheit(100).Value(), 212);
    EXPECT_DOUBLE_EQ(CelsiusToFahrenheit(-40).Value(), -40);
    EXPECT_DOUBLE_EQ(FahrenheitToCelsius(32).Value(), 0);
    EXPECT_DOUBLE_EQ(FahrenheitToCelsius(68).Value(), 20);
    EXPECT_DOUBLE_EQ(FahrenheitToCelsius(-40).Value(), -40);
}

}  // namespace
}  // namespace tav
