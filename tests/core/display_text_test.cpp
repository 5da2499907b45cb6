#include "core/display_text.h"

#include <gtest/gtest.h>

namespace tav {
namespace {

TEST(DisplayText, KeepsUtf8AndTakesOtherBytesAsWindows1252) {
    EXPECT_EQ(DisplayText("Hay"), "Hay");
    EXPECT_EQ(DisplayText("Gr\xC3\xA4ser"), "Gr\xC3\xA4ser");         // UTF-8 already
    EXPECT_EQ(DisplayText("Gr\xE4ser"), "Gr\xC3\xA4ser");             // a single byte
    EXPECT_EQ(DisplayText("5 \x80"), "5 \xE2\x82\xAC");               // the euro sign
    EXPECT_EQ(DisplayText("\x81"), "\xC2\x81");                       // an unused place
    EXPECT_EQ(DisplayText("\xC3"), "\xC3\x83");                       // cut off
    EXPECT_EQ(DisplayText("\xC0\xAF"), "\xC3\x80\xC2\xAF");           // overlong, not UTF-8
    EXPECT_EQ(DisplayText("\xED\xA0\x80").substr(0, 2), "\xC3\xAD");  // a surrogate, not UTF-8
    EXPECT_EQ(DisplayText("\xF0\x9F\x90\x84"), "\xF0\x9F\x90\x84");   // a cow
}

}  // namespace
}  // namespace tav
