#include "scenario/interpreter.h"

#include "core/program_state.h"
#include "core/runtime_error.h"
#include "forms/form_registry.h"
#include "scenario/actions.h"
#include "scenario/comparison.h"
#include "scenario/looking.h"
#include "scenario/script.h"
#include "scenario/surroundings.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>

namespace tav {
namespace {

class Player {
  public:
    Player(std::string name, const std::string& folder, World& world, std::ostream& out,
           std::ostream& errors)
        : name_(std::move(name)),
          world_(world),
          surroundings_(world, folder),
          out_(out),
          errors_(errors) {}

    ~Player() { TheForms().Clear(); }

    Outcome Play(const std::vector<Statement>& script) {
        for (const Statement& statement : script) {
            if (stoppedAt_ != 0) {
                if (statement.Name == "expect") FailBehindStop(statement);
                continue;
            }
            try {
                Carry(statement);
            } catch (const std::exception& error) {
                Report(statement.Line, error.what());
                stoppedAt_ = statement.Line;
            }
        }
        return failed_ ? Outcome::Failed : Outcome::Held;
    }

  private:
    void Carry(const Statement& statement) {
        std::vector<std::string> args;
        for (const std::string& arg : statement.Args)
            args.push_back(surroundings_.Filled(arg));
        if (statement.Name == "print") {
            Print(statement);
        } else if (statement.Name == "expect") {
            Expect(statement, args);
        } else if (statement.Name == "start") {
            Start();
        } else if (!Surround(statement.Name, args) && !HandleFile(statement.Name, args) &&
                   !Answer(statement.Name, args)) {
            Use(statement.Name, args);
        }
    }

    void Print(const Statement& statement) {
        const auto value = Look(statement.Looked, surroundings_, world_);
        if (!value) throw NotPossible(statement.LookedSource + " shows nothing");
        out_ << *value << '\n' << std::flush;
    }

    void Expect(const Statement& statement, const std::vector<std::string>& expected) {
        const auto value = Look(statement.Looked, surroundings_, world_);
        if (Fits(value, statement.Operator, expected)) return;
        Report(statement.Line,
               Expectation(statement, expected) + ", got " + (value ? Quoted(*value) : "nothing"));
    }

    static std::string Expectation(const Statement& statement,
                                   const std::vector<std::string>& expected) {
        std::string text = "expected " + statement.LookedSource + " " + statement.Operator;
        const bool isNear = statement.Operator == "near";
        for (const std::string& each : expected)
            text += " " + (isNear ? each : Quoted(each));
        return text;
    }

    void FailBehindStop(const Statement& statement) {
        Report(statement.Line, Expectation(statement, statement.Args) +
                                   ", got nothing: the script stopped at line " +
                                   std::to_string(stoppedAt_));
    }

    void Report(int line, const std::string& what) {
        failed_ = true;
        errors_ << name_ << ':' << line << ": " << what << '\n';
    }

    void Start() {
        if (started_) throw NotPossible("the program has been started already");
        started_ = true;
        world_.Start(surroundings_.Platform);
    }

    // The statements that come before the start.
    bool Surround(const std::string& name, const std::vector<std::string>& args) {
        static constexpr std::array<std::string_view, 5> kNames = {"appdir", "startdir", "screen",
                                                                   "now", "library"};
        if (std::find(kNames.begin(), kNames.end(), name) == kNames.end()) return false;
        if (started_) throw NotPossible(name + " comes before start");
        if (name == "appdir") surroundings_.SetAppFolder(args[0]);
        if (name == "startdir") surroundings_.SetStartFolder(args[0]);
        if (name == "screen") surroundings_.SetScreen(*WholeNumber(args[0]), *WholeNumber(args[1]));
        if (name == "now") surroundings_.SetClock(args[0]);
        if (name == "library") surroundings_.SetLibrary(args[0]);
        return true;
    }

    static bool HandleFile(const std::string& name, const std::vector<std::string>& args) {
        if (name == "copy") {
            CopyOneFile(args[0], args[1]);
        } else if (name == "writefile") {
            WriteWholeFile(args[0], args[1]);
        } else if (name == "remove") {
            RemoveFile(args[0]);
        } else if (name == "mkdir") {
            MakeFolder(args[0]);
        } else {
            return false;
        }
        return true;
    }

    bool Answer(const std::string& name, const std::vector<std::string>& args) {
        if (name == "answer") {
            surroundings_.QueueAnswer(args[0]);
        } else if (name == "dialog") {
            surroundings_.QueueFile(args[0]);
        } else if (name == "printdialog") {
            surroundings_.QueueOrientation(args[0]);
        } else if (name == "forget") {
            surroundings_.Platform.Messages.clear();
            surroundings_.Platform.Dialogs.clear();
        } else {
            return false;
        }
        return true;
    }

    // What needs a program that runs.
    void Use(const std::string& name, const std::vector<std::string>& args) {
        if (!started_) throw NotPossible("the program hasn't been started");
        if (TheProgram().Ended) throw NotPossible(EndOfProgram());
        if (name == "advance") {
            const std::chrono::duration<double> time(*DecimalNumber(args[0]));
            surroundings_.Platform.Advance(std::chrono::round<std::chrono::milliseconds>(time));
        } else if (!Act(name, args)) {
            throw NotPossible("no such statement: " + name);
        }
    }

    static std::string EndOfProgram() {
        const int error = TheProgram().FatalError;
        return error == 0 ? "the program has ended"
                          : "the program has ended with error " + std::to_string(error) + ", " +
                                DescriptionOf(error);
    }

    std::string name_;
    World& world_;
    Surroundings surroundings_;
    std::ostream& out_;
    std::ostream& errors_;
    bool started_ = false;
    bool failed_ = false;
    int stoppedAt_ = 0;
};

}  // namespace

Outcome PlayText(const std::string& text, const std::string& name, const std::string& folder,
                 World& world, std::ostream& out, std::ostream& errors) {
    try {
        const std::vector<Statement> script = ReadScript(text);
        return Player(name, folder, world, out, errors).Play(script);
    } catch (const ReadError& error) {
        errors << name << ':' << error.Line << ": " << error.what() << '\n';
        return Outcome::Unreadable;
    }
}

Outcome PlayScript(const std::string& fileName, World& world, std::ostream& out,
                   std::ostream& errors) {
    std::error_code error;
    std::ifstream file(fileName, std::ios::binary);
    if (!file || std::filesystem::is_directory(fileName, error)) {
        errors << fileName << ": can't be read\n";
        return Outcome::Unreadable;
    }
    const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    const auto folder = std::filesystem::absolute(fileName).parent_path();
    return PlayText(text, fileName, folder.string(), world, out, errors);
}

}  // namespace tav
