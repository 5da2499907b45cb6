#include "scenario/comparison.h"

#include <gtest/gtest.h>

namespace tav {
namespace {

struct Case {
    const char* Value;
    const char* Operator;
    std::vector<std::string> Expected;
    bool Holds;
};

TEST(Comparison, EachOperatorOnTextsAndNumbers) {
    const std::vector<Case> cases = {
        {"12.000", "==", {"12"}, true},      // both are numbers
        {"12.000", "is", {"12"}, false},     // to the letter
        {"12.000", "is", {"12.000"}, true},  //
        {"12.000 kg", "==", {"12 kg"}, false},
        {"1.5E+07", "==", {"15000000"}, true},
        {"12", "!=", {"12.0"}, false},
        {"", "==", {"0"}, false},
        {"", "==", {""}, true},
        {"Yes", "==", {"yes"}, false},
        {"two lines", "~", {"line"}, true},
        {"two lines", "!~", {"line"}, false},
        {"two lines", "!~", {"Line"}, true},
        {"10.05", "near", {"10", "0.1"}, true},
        {"9.9", "near", {"10", "0"}, false},
        {"ten", "near", {"10", "5"}, false},
    };
    for (const Case& each : cases) {
        EXPECT_EQ(Fits(std::string(each.Value), each.Operator, each.Expected), each.Holds)
            << each.Value << ' ' << each.Operator << ' ' << each.Expected[0];
    }
}

TEST(Comparison, WhatIsNotThereFitsNothing) {
    for (const char* const comparison : {"==", "!=", "is", "~", "!~"}) {
        EXPECT_FALSE(Fits(std::nullopt, comparison, {""})) << comparison;
    }
}

TEST(Comparison, ShowsATextAsAScriptWritesIt) {
    EXPECT_EQ(Quoted("a \"b\"\r\nc\\"), R"("a \"b\"\r\nc\\")");
}

}  // namespace
}  // namespace tav
