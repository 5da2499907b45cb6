#include "core/program_settings.h"

#include "core/line_file.h"
#include "core/number_text.h"
#include "core/platform.h"
#include "core/program_state.h"

#include <array>
#include <string>
#include <variant>

namespace tav {
namespace {

struct Literal {
    std::string_view Text;
};

struct Flag {
    bool ProgramState::*Field;
    bool Default;
};

struct Text {
    std::string ProgramState::*Field;
    std::optional<std::string_view> Default;
};

struct SummaryName {
    std::size_t Index;
};
constexpr std::string_view kDefaultSummaryName = "Blank";

using State = ProgramState;
using SettingLine = std::variant<Literal, Flag, Text, SummaryName>;

// The lines of the file in their order, with the defaults.
constexpr std::array<SettingLine, 20> kLines = {
    Literal{"TAV Dairy Cattle Program Settings File"},
    Flag{&State::AutoSaveDefault, true},
    Flag{&State::PeriodicAutoSave, false},
    Flag{&State::UseMetric, true},
    Flag{&State::DryMatterBasis, true},
    SummaryName{0},
    SummaryName{1},
    SummaryName{2},
    SummaryName{3},
    SummaryName{4},
    SummaryName{5},
    SummaryName{6},
    SummaryName{7},
    SummaryName{8},
    SummaryName{9},
    Flag{&State::DefaultSummaryResults, true},
    Text{&State::DefaultZoom, std::nullopt},
    Text{&State::CurrentScreen, "Feeds"},
    Flag{&State::UseMilkTrueProtein, true},
    Literal{"TAV Dairy Cattle Program Settings File - END"},
};

// Takes a line of the file.
struct Read {
    State& Into;
    std::string_view Line;

    void operator()(Literal literal) const {
        if (Line != literal.Text) Raise(kTypeMismatch);
    }
    void operator()(Flag flag) const { Into.*flag.Field = TextToBoolean(Line); }
    void operator()(const Text& text) const { Into.*text.Field = Line; }
    void operator()(SummaryName name) const { Into.SummaryResultsNames[name.Index] = Line; }
};

// Gives a line for the file.
struct Written {
    const State& From;

    std::string_view operator()(Literal literal) const { return literal.Text; }
    std::string_view operator()(Flag flag) const { return BooleanText(From.*flag.Field); }
    std::string_view operator()(const Text& text) const { return From.*text.Field; }
    std::string_view operator()(SummaryName name) const {
        return From.SummaryResultsNames[name.Index];
    }
};

struct SetDefault {
    State& Into;

    void operator()(Literal) const {}
    void operator()(Flag flag) const { Into.*flag.Field = flag.Default; }
    void operator()(const Text& text) const {
        if (text.Default) Into.*text.Field = *text.Default;
    }
    void operator()(SummaryName name) const {
        Into.SummaryResultsNames[name.Index] = kDefaultSummaryName;
    }
};

std::string FileName() { return JoinPath(TheProgram().AppPath, kProgramSettingsFile); }

Message FailureMessage(const RuntimeError& error) {
    switch (error.Number) {
        case kFileNotFound:
            return {
                "The program settings data file has not been found.\r\r"
                "Therefore, new program settings have been created.",
                "Default Program Settings Data File Not Found", MessageIcon::Information};
        case kTypeMismatch:
        case kInputPastEnd:
            return {
                "The program settings data file has been corrupted.\r\r"
                "Therefore, new program settings have been created.",
                "Corrupted File", MessageIcon::Information};
        default:
            return {"Error Number :  " + SignedText(error.Number) +
                        "\rError Description :  " + error.Description +
                        "\r\rCannot Load Program Settings Data File.  "
                        "Creating new settings instead.",
                    "Error", MessageIcon::Critical};
    }
}

}  // namespace

void LoadProgramSettings() {
    try {
        LineReader file(FileName());
        for (const SettingLine& line : kLines) {
            std::visit(Read{TheProgram(), file.ReadLine()}, line);
        }
    } catch (const RuntimeError& error) {
        ThePlatform().ShowMessage(FailureMessage(error));
        CreateDefaultProgramSettings();
    }
}

void SaveProgramSettings() {
    LineWriter file(FileName());
    for (const SettingLine& line : kLines) {
        file.WriteLine(std::visit(Written{TheProgram()}, line));
    }
    file.Close();
}

void CreateDefaultProgramSettings() {
    for (const SettingLine& line : kLines)
        std::visit(SetDefault{TheProgram()}, line);
}

}  // namespace tav
