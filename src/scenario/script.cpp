#include "scenario/script.h"

#include <algorithm>
#include <array>
#include <limits>

namespace tav {
namespace {

using Args = std::vector<std::string>;

[[noreturn]] void Refuse(const std::string& argument, std::string_view what) {
    throw ScriptError("\"" + argument + "\" is not " + std::string(what));
}

void NeedWhole(const Args& args, std::size_t index) {
    if (!WholeNumber(args[index])) Refuse(args[index], "a whole number");
}

void NeedNumber(const Args& args, std::size_t index) {
    if (!DecimalNumber(args[index])) Refuse(args[index], "a number");
}

void NeedOneOf(const Args& args, std::initializer_list<std::string_view> choices) {
    if (std::find(choices.begin(), choices.end(), args[0]) == choices.end()) {
        Refuse(args[0], "one of the choices");
    }
}

void NeedWithin(const Args& args, std::size_t index, double least, double greatest) {
    NeedNumber(args, index);
    const double value = *DecimalNumber(args[index]);
    if (value < least || value > greatest) Refuse(args[index], "within the limits");
}

// The statements: name, how many arguments, and what the arguments have to be beyond a text.
struct Form {
    std::string_view Name;
    std::size_t Least, Most;
    void (*Check)(const Args&) = nullptr;
};

constexpr auto kIndexSecond = [](const Args& args) { NeedWhole(args, 1); };
constexpr auto kCell = [](const Args& args) {
    NeedWhole(args, 1);
    NeedWhole(args, 2);
};
constexpr auto kSize = [](const Args& args) {
    constexpr double kMostUnits = 1e6;
    NeedWithin(args, 1, 0, kMostUnits);
    NeedWithin(args, 2, 0, kMostUnits);
};
constexpr auto kScreen = [](const Args& args) {
    constexpr double kMostPixels = 100000;
    for (const std::size_t i : {0, 1}) {
        NeedWhole(args, i);
        NeedWithin(args, i, 1, kMostPixels);
    }
};
constexpr auto kTime = [](const Args& args) {
    constexpr double kTenYears = 10 * 366 * 86400.0;
    NeedWithin(args, 0, 0, kTenYears);
};

constexpr std::array kForms = {
    Form{"appdir", 1, 1},
    Form{"startdir", 1, 1},
    Form{"screen", 2, 2, kScreen},
    Form{"now", 1, 1},
    Form{"library", 1, 1},
    Form{"copy", 2, 2},
    Form{"writefile", 2, 2},
    Form{"remove", 1, 1},
    Form{"mkdir", 1, 1},
    Form{"answer", 1, 1,
         [](const Args& args) {
             NeedOneOf(args, {"OK", "Cancel", "Yes", "No"});
         }},
    Form{"dialog", 1, 1},
    Form{"printdialog", 1, 1,
         [](const Args& args) {
             NeedOneOf(args, {"portrait", "landscape"});
         }},
    Form{"start", 0, 0},
    Form{"click", 1, 2},
    Form{"choose", 2, 2},
    Form{"chooserow", 2, 2, kIndexSecond},
    Form{"folder", 2, 2},
    Form{"type", 2, 2},
    Form{"focus", 1, 1},
    Form{"leave", 1, 1},
    Form{"mark", 2, 2},
    Form{"unmark", 2, 2},
    Form{"markrow", 2, 2, kIndexSecond},
    Form{"edit", 4, 4, kCell},
    Form{"tab", 2, 2, kIndexSecond},
    Form{"key", 2, 2},
    Form{"rightclick", 1, 1},
    Form{"resize", 3, 3, kSize},
    Form{"maximise", 1, 1},
    Form{"minimise", 1, 1},
    Form{"close", 1, 1},
    Form{"advance", 1, 1, kTime},
    Form{"forget", 0, 0},
};

// expect EXPR OPERATOR TEXT, or expect EXPR near NUMBER TOLERANCE; print EXPR.
Statement ReadLooking(std::vector<Word> words) {
    Statement statement;
    statement.Name = words[0].Value;
    const bool expects = statement.Name == "expect";
    if (words.size() < (expects ? 4u : 2u))
        throw ScriptError(statement.Name + " lacks an argument");
    statement.LookedSource = words[1].Source;
    statement.Looked = ReadExpression(words[1].Source);
    std::size_t count = 2;
    if (expects) {
        static constexpr std::array<std::string_view, 6> kOperators = {"==", "!=", "is",
                                                                       "~",  "!~", "near"};
        statement.Operator = words[2].Source;
        if (std::find(kOperators.begin(), kOperators.end(), statement.Operator) ==
            kOperators.end()) {
            throw ScriptError("no such comparison: " + statement.Operator);
        }
        count = statement.Operator == "near" ? 5 : 4;
    }
    if (words.size() != count)
        throw ScriptError("the wrong number of arguments for " + statement.Name);
    for (std::size_t i = 3; i < count; ++i)
        statement.Args.push_back(words[i].Value);
    if (statement.Operator == "near") {
        NeedNumber(statement.Args, 0);
        NeedWithin(statement.Args, 1, 0, std::numeric_limits<double>::max());
    }
    return statement;
}

Statement ReadStatement(const std::vector<Word>& words) {
    const std::string& name = words[0].Value;
    if (name == "print" || name == "expect") return ReadLooking(words);
    const auto* const form = std::find_if(kForms.begin(), kForms.end(),
                                          [&](const Form& each) { return each.Name == name; });
    if (form == kForms.end()) throw ScriptError("no such statement: " + name);
    Statement statement;
    statement.Name = name;
    for (std::size_t i = 1; i < words.size(); ++i)
        statement.Args.push_back(words[i].Value);
    if (statement.Args.size() < form->Least || statement.Args.size() > form->Most) {
        throw ScriptError("the wrong number of arguments for " + name);
    }
    if (form->Check != nullptr) form->Check(statement.Args);
    return statement;
}

}  // namespace

std::vector<Statement> ReadScript(std::string_view text) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
    std::vector<Statement> statements;
    for (int line = 1; !text.empty(); ++line) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        try {
            const std::vector<Word> words = SplitLine(text.substr(0, end));
            if (!words.empty()) {
                statements.push_back(ReadStatement(words));
                statements.back().Line = line;
            }
        } catch (const ScriptError& error) {
            throw ReadError(line, error.what());
        }
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return statements;
}

}  // namespace tav
