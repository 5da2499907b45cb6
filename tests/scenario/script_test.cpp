#include "scenario/script.h"

#include <gtest/gtest.h>

namespace tav {
namespace {

std::vector<std::string> Values(std::string_view line) {
    std::vector<std::string> values;
    for (const Word& word : SplitLine(line))
        values.push_back(word.Value);
    return values;
}

using Words = std::vector<std::string>;

TEST(Lexer, SplitsAtBlanksAndResolvesEscapes) {
    EXPECT_EQ(Values("  type  frmA.txtB 12.5\t"), (Words{"type", "frmA.txtB", "12.5"}));
    EXPECT_EQ(Values(R"(writefile a "one\r\ntwo \"x\" \\n")"),
              (Words{"writefile", "a", "one\r\ntwo \"x\" \\n"}));
    EXPECT_EQ(Values(R"(copy C:\herd\new "")"), (Words{"copy", R"(C:\herd\new)", ""}));
    EXPECT_EQ(Values("start\r"), (Words{"start"}));
}

TEST(Lexer, CommentBeginsALineOrFollowsABlank) {
    EXPECT_TRUE(Values("# a comment").empty());
    EXPECT_TRUE(Values("   # another").empty());
    EXPECT_EQ(Values("type a b#c # why"), (Words{"type", "a", "b#c"}));
    EXPECT_EQ(Values("type a \"# no comment\""), (Words{"type", "a", "# no comment"}));
}

TEST(Lexer, WordOfAnExpressionKeepsItsQuotesAndBrackets) {
    EXPECT_EQ(Values(R"~(print library("Corn, dry")."Ca (%DM)")~"),
              (Words{"print", R"~(library("Corn, dry")."Ca (%DM)")~"}));
    EXPECT_EQ(Values("print frmA.grd.Cell(2, 1)"), (Words{"print", "frmA.grd.Cell(2, 1)"}));
}

TEST(Lexer, RefusesWhatIsLeftOpen) {
    EXPECT_THROW(SplitLine("type a \"b"), ScriptError);
    EXPECT_THROW(SplitLine("type a \"b\\\""), ScriptError);
    EXPECT_THROW(SplitLine("type a \"b\"c"), ScriptError);
    EXPECT_THROW(SplitLine(R"(type a "\t")"), ScriptError);
    EXPECT_THROW(SplitLine("print file(\"x)"), ScriptError);
}

TEST(Expressions, AreReadIntoTheirParts) {
    const Expression path = ReadExpression(R"~(library("Corn \"7\"")."Ca (%DM)")~");
    ASSERT_EQ(path.size(), 2u);
    EXPECT_EQ(path[0].Name, "library");
    EXPECT_EQ(path[0].Args, (Words{"Corn \"7\""}));
    EXPECT_EQ(path[1].Name, "Ca (%DM)");
    EXPECT_TRUE(path[1].Args.empty());
    EXPECT_EQ(ReadExpression("frmA.grd.Cell(2, 1)")[2].Args, (Words{"2", "1"}));
    for (const char* const bad :
         {"", ".", "a.", "a..b", "a(", "a()", "a(1", "a(1)b", "a)", "a\"b\""}) {
        EXPECT_THROW(ReadExpression(bad), ScriptError) << bad;
    }
}

TEST(Expressions, NumbersAreWholeTexts) {
    EXPECT_EQ(WholeNumber("-3"), -3);
    EXPECT_FALSE(WholeNumber("3.0") || WholeNumber("") || WholeNumber("99999999999"));
    EXPECT_EQ(DecimalNumber("1.5E+07"), 1.5e7);
    for (const char* const bad : {"", " 1", "1 ", "inf", "nan", "1,5", "1e999"}) {
        EXPECT_FALSE(DecimalNumber(bad)) << bad;
    }
}

// The line and the message with which reading fails.
std::string Fault(std::string_view script) {
    try {
        ReadScript(script);
        return "none";
    } catch (const ReadError& error) {
        return std::to_string(error.Line) + ": " + error.what();
    }
}

TEST(Script, EveryStatementIsKnown) {
    const auto script = ReadScript(
        "appdir a\nstartdir a\nscreen 800 600\nnow a\nlibrary none\ncopy a b\nwritefile a b\n"
        "remove a\nmkdir a\nanswer OK\ndialog cancel\nprintdialog landscape\nstart\nclick a.b\n"
        "click a.b Key\nchoose a.b c\nchooserow a.b 0\nfolder a.b c\ntype a.b c\nfocus a.b\n"
        "leave a.b\nmark a.b c\nunmark a.b c\nmarkrow a.b 1\nedit a.b 2 1 c\ntab a.b 1\n"
        "key a.b Ctrl+V\nrightclick a.b\nresize a 100 200.5\nmaximise a\nminimise a\nclose a\n"
        "advance 0.5\nforget\nprint a.b.c\nexpect a.b.c == d\nexpect a.b.c near 1 0.5");
    ASSERT_EQ(script.size(), 37u);
    EXPECT_EQ(script.back().Line, 37);
    EXPECT_EQ(script.back().Operator, "near");
    EXPECT_EQ(script.back().Args, (Words{"1", "0.5"}));
}

TEST(Script, SaysInWhichLineItCantBeRead) {
    EXPECT_EQ(Fault("\n# x\nclck a.b\n"), "3: no such statement: clck");
    EXPECT_EQ(Fault("start now"), "1: the wrong number of arguments for start");
    EXPECT_EQ(Fault("edit a.b 1 c"), "1: the wrong number of arguments for edit");
    EXPECT_EQ(Fault("edit a.b 1 x c"), "1: \"x\" is not a whole number");
    EXPECT_EQ(Fault("answer Maybe"), "1: \"Maybe\" is not one of the choices");
    EXPECT_EQ(Fault("advance -1"), "1: \"-1\" is not within the limits");
    EXPECT_EQ(Fault("expect a.b = c"), "1: no such comparison: =");
    EXPECT_EQ(Fault("expect a.b =="), "1: expect lacks an argument");
    EXPECT_EQ(Fault("expect a.b == Exit Program"), "1: the wrong number of arguments for expect");
    EXPECT_EQ(Fault("expect a.b near x 1"), "1: \"x\" is not a number");
    EXPECT_EQ(Fault("print a..b"), "1: can't read the expression a..b");
    EXPECT_EQ(Fault("\xEF\xBB\xBFstart\r\nforget\r\n"), "none");
}

}  // namespace
}  // namespace tav
