#include "core/program_settings.h"
#include "flow_fixture.h"

namespace tav {
namespace {

const std::vector<std::string> kLines = {
    "TAV Dairy Cattle Program Settings File",
    "False",
    "True",
    "False",
    "False",
    "first",
    "second",
    "third",
    "fourth",
    "fifth",
    "sixth",
    "seventh",
    "eighth",
    "",
    "tenth",
    "False",
    "Two Pages",
    "Reports",
    "False",
    "TAV Dairy Cattle Program Settings File - END",
};

std::string FirstLines(std::size_t count) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i)
        text += kLines[i] + "\r\n";
    return text;
}

class Settings : public Flow {
  protected:
    void Load(std::string_view text) {
        Platform.Messages.clear();
        Write(kProgramSettingsFile, text);
        LoadProgramSettings();
    }
    void LoadWith(std::size_t line, const std::string& text) {
        std::string all;
        for (std::size_t i = 0; i < kLines.size(); ++i) {
            all += (i + 1 == line ? text : kLines[i]) + "\r\n";
        }
        Load(all);
    }
    std::string Title() const {
        return Platform.Messages.empty() ? "" : Platform.Messages.back().Shown.Title;
    }
    void ExpectDefaults() const {
        const ProgramState& program = TheProgram();
        EXPECT_TRUE(program.AutoSaveDefault);
        EXPECT_FALSE(program.PeriodicAutoSave);
        EXPECT_TRUE(program.UseMetric);
        EXPECT_TRUE(program.DryMatterBasis);
        for (const std::string& name : program.SummaryResultsNames)
            EXPECT_EQ(name, "Blank");
        EXPECT_TRUE(program.DefaultSummaryResults);
        EXPECT_EQ(program.CurrentScreen, "Feeds");
        EXPECT_TRUE(program.UseMilkTrueProtein);
    }
};

TEST_F(Settings, EachLineReachesItsSettingAndComesBack) {
    Load(FirstLines(20));
    EXPECT_TRUE(Platform.Messages.empty());
    const ProgramState& program = TheProgram();
    EXPECT_FALSE(program.AutoSaveDefault);
    EXPECT_TRUE(program.PeriodicAutoSave);
    EXPECT_FALSE(program.UseMetric);
    EXPECT_FALSE(program.DryMatterBasis);
    EXPECT_EQ(program.SummaryResultsNames[0], "first");
    EXPECT_EQ(program.SummaryResultsNames[8], "");
    EXPECT_EQ(program.SummaryResultsNames[9], "tenth");
    EXPECT_FALSE(program.DefaultSummaryResults);
    EXPECT_EQ(program.DefaultZoom, "Two Pages");
    EXPECT_EQ(program.CurrentScreen, "Reports");
    EXPECT_FALSE(program.UseMilkTrueProtein);

    Write(kProgramSettingsFile, "");
    SaveProgramSettings();
    EXPECT_EQ(Contents(kProgramSettingsFile), FirstLines(20));
}

// Every switch has its own line: one that differs from all others comes back in its own place.
TEST_F(Settings, NoTwoSwitchesShareALine) {
    for (const std::size_t line : {2U, 3U, 4U, 5U, 16U, 19U}) {
        TheProgram() = {};
        TheProgram().AppPath = Folder;
        std::string all;
        for (std::size_t i = 1; i <= kLines.size(); ++i) {
            const bool isSwitch = kLines[i - 1] == "True" || kLines[i - 1] == "False";
            all += (isSwitch ? (i == line ? "True" : "False") : kLines[i - 1]) + "\r\n";
        }
        Load(all);
        SaveProgramSettings();
        EXPECT_EQ(Contents(kProgramSettingsFile), all) << "line " << line;
    }
}

TEST_F(Settings, AFileThatEndsTooSoonIsCorruptedWhereverItIsCut) {
    for (std::size_t count = 0; count < kLines.size(); ++count) {
        TheProgram().DefaultZoom = "";
        Load(FirstLines(count));
        EXPECT_EQ(Title(), "Corrupted File") << count << " lines";
        ExpectDefaults();
        // The one setting without a default keeps what the reader got to.
        EXPECT_EQ(TheProgram().DefaultZoom, count >= 17 ? "Two Pages" : "") << count << " lines";
    }
}

TEST_F(Settings, FirstAndLastLineAreTakenToTheLetter) {
    LoadWith(1, kLines[0] + " ");
    EXPECT_EQ(Title(), "Corrupted File");
    ExpectDefaults();
    LoadWith(20, "TAV Dairy Cattle Program Settings File - End");
    EXPECT_EQ(Title(), "Corrupted File");
    ExpectDefaults();
}

TEST_F(Settings, ASwitchTakesANumberAndNothingElse) {
    LoadWith(2, "-1");
    EXPECT_TRUE(TheProgram().AutoSaveDefault);
    LoadWith(19, "0");
    EXPECT_FALSE(TheProgram().UseMilkTrueProtein);
    EXPECT_TRUE(Platform.Messages.empty());
    for (const std::size_t line : {2U, 3U, 4U, 5U, 16U, 19U}) {
        LoadWith(line, "");
        EXPECT_EQ(Title(), "Corrupted File") << "line " << line;
    }
}

TEST_F(Settings, AFullDiskIsNotSilent) {
    MakeFull(kProgramSettingsFile);
    EXPECT_EQ(ErrorOf([] { SaveProgramSettings(); }), kDiskFull);
}

TEST_F(Settings, CanBeReadByName) {
    Load(FirstLines(20));
    TheProgram().LastAutoSaveTime =
        std::chrono::local_days(std::chrono::year(2026) / 11 / 22) + std::chrono::seconds(55625);
    EXPECT_EQ(ProgramValue("UseMetric"), "False");
    EXPECT_EQ(ProgramValue("SummaryResultsNames", 9), "tenth");
    EXPECT_EQ(ProgramValue("SummaryResultsNames", 10), std::nullopt);
    EXPECT_EQ(ProgramValue("LastAutoSaveTime"), "2026-11-22 15:27:05");
    EXPECT_EQ(ProgramValue("AppPath"), Folder);
    EXPECT_EQ(ProgramValue("NoSuchName"), std::nullopt);
}

}  // namespace
}  // namespace tav
