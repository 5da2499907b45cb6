// The program `tav` as it is used from a shell: what it prints, what it says, its exit status.
#include "core/new_simulation.h"
#include "core/simulation_file.h"
#include "model/computations.h"
#include "support/temporary_folder.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>
#include <rapidjson/document.h>
#include <sys/wait.h>

namespace tav {
namespace {

struct Result {
    int Status;
    std::string Output;
    std::string Messages;
};

std::string Contents(const std::string& file) {
    std::ostringstream text;
    text << std::ifstream(file, std::ios::binary).rdbuf();
    return text.str();
}

class CommandLine : public ::testing::Test {
  protected:
    TemporaryFolder folder;
    const std::string cow = TAV_SIMULATIONS "Lactating Cow.tav";
    const std::string calf = TAV_SIMULATIONS "Young Calf.tav";

    static std::string Quoted(const std::string& argument) { return "'" + argument + "'"; }

    Result Run(const std::vector<std::string>& arguments) const {
        std::string command = Quoted(TAV_PROGRAM);
        for (const std::string& argument : arguments)
            command += " " + Quoted(argument);
        const std::string out = folder.Path("out");
        const std::string err = folder.Path("err");
        const int status = std::system((command + " >" + out + " 2>" + err).c_str());
        return {WEXITSTATUS(status), Contents(out), Contents(err)};
    }

    // The objects of the lines of `tav compute --json`.
    std::vector<rapidjson::Document> Json(const std::vector<std::string>& files,
                                          int expectedStatus) const {
        std::vector<std::string> arguments = {"compute", "--json"};
        arguments.insert(arguments.end(), files.begin(), files.end());
        const Result result = Run(arguments);
        EXPECT_EQ(result.Status, expectedStatus) << result.Messages;
        std::vector<rapidjson::Document> objects;
        std::istringstream lines(result.Output);
        for (std::string line; std::getline(lines, line);) {
            objects.emplace_back();
            objects.back().Parse(line.c_str());
            EXPECT_FALSE(objects.back().HasParseError()) << line;
        }
        return objects;
    }

    std::string Write(const std::string& name, const SimulationRecord& record) const {
        WriteSimulation(folder.Path(name), record);
        return folder.Path(name);
    }

    SimulationRecord Sample(const std::string& file) const {
        SimulationRecord record;
        ReadSimulation(file, record);
        return record;
    }
};

TEST_F(CommandLine, JsonHasEveryFieldUnderItsNameAndToItsLastBit) {
    const auto objects = Json({cow}, 0);
    ASSERT_EQ(objects.size(), 1U);
    EXPECT_TRUE(objects[0]["error"].IsNull());
    EXPECT_TRUE(objects[0]["fault"].IsNull());
    const auto& json = objects[0]["record"];
    SimulationRecord record = Sample(cow);
    RunComputations(record);
    std::size_t count = 0;
    VisitFields(record, [&](std::string_view name, const auto& field) {
        ++count;
        const std::string key(name);
        ASSERT_TRUE(json.HasMember(key.c_str())) << key;
        const auto& value = json[key.c_str()];
        if constexpr (std::is_same_v<std::decay_t<decltype(field)>, Single>) {
            EXPECT_EQ(static_cast<float>(value.GetDouble()), field.Value()) << key;
        }
    });
    EXPECT_EQ(json.MemberCount(), count);
    EXPECT_EQ(json["EnergyGain"].GetDouble(), *record.EnergyGain);
    EXPECT_EQ(json["Feeds"].Size(), record.NumFeeds);
    EXPECT_EQ(json["Feeds"][0].MemberCount(), 87U);
    EXPECT_EQ(json["FeedKp"].Size(), record.NumFeeds);
    EXPECT_EQ(json["MineralRows"].Size(), 18U);
    EXPECT_STREQ(json["MineralRows"][0]["Name"].GetString(), "Ca");
    EXPECT_EQ(json["BalanceTable"].Size(), 6U);
    EXPECT_EQ(json["CSEBW"].Size(), 9U);
    EXPECT_EQ(json["HeaderFields"].Size(), 3U);
}

TEST_F(CommandLine, AFileThatCannotBeLoadedIsSaidAndTheOthersAreComputed) {
    const auto objects = Json({cow, folder.Path("none.tav"), calf}, 1);
    ASSERT_EQ(objects.size(), 3U);
    const auto& error = objects[1]["error"];
    EXPECT_EQ(error["number"].GetInt(), 53);
    EXPECT_EQ(error["line"].GetInt(), 0);
    EXPECT_STREQ(error["title"].GetString(), "Default Simulation Data File Not Found");
    EXPECT_TRUE(objects[1]["record"].IsNull());
    EXPECT_TRUE(objects[2]["error"].IsNull());
    // The cow's results stand in the fields that a calf's computation does not touch.
    EXPECT_EQ(objects[2]["record"]["PredDMILactating"].GetDouble(),
              objects[0]["record"]["PredDMILactating"].GetDouble());
}

TEST_F(CommandLine, AFaultLeavesTheRecordAsFarAsItGot) {
    SimulationRecord record = Sample(cow);
    record.BodyWeight = 0;
    const auto objects = Json({Write("weightless.tav", record)}, 1);
    EXPECT_EQ(objects[0]["fault"]["number"].GetInt(), 11);
    EXPECT_STREQ(objects[0]["fault"]["description"].GetString(), "Division by zero");
    EXPECT_GT(objects[0]["record"]["NELact"].GetDouble(), 0);
    EXPECT_EQ(objects[0]["record"]["TotalCP"].GetDouble(), 0);
    EXPECT_TRUE(objects[0]["record"]["EnergyGain"].IsNull());
}

TEST_F(CommandLine, RunsComputeAsOftenAsAsked) {
    SimulationRecord record = Sample(cow);
    record.DesiredADG = 300;
    const std::string file = Write("growing.tav", record);
    // The gain with the conceptus of an animal that has calved rests on EBG of the run before.
    const Result once = Run({"compute", "--json", file});
    const Result twice = Run({"compute", "--json", "--runs", "2", file});
    rapidjson::Document first;
    rapidjson::Document second;
    first.Parse(once.Output.c_str());
    second.Parse(twice.Output.c_str());
    EXPECT_EQ(first["record"]["ADGEnergyConceptus"].GetDouble(), 0);
    EXPECT_NEAR(second["record"]["ADGEnergyConceptus"].GetDouble(), 0.3 * 0.96, 1e-6);
}

TEST_F(CommandLine, TextIsUtf8WhateverTheFileHolds) {
    SimulationRecord record = Sample(calf);
    record.Comments = "Gr\xE4ser \x80 \"quoted\"\ttab";
    const auto objects = Json({Write("text.tav", record)}, 0);
    EXPECT_STREQ(objects[0]["record"]["Comments"].GetString(),
                 "Gr\xC3\xA4ser \xE2\x82\xAC \"quoted\"\ttab");
}

TEST_F(CommandLine, ThePageMarksWhatIsShortAndWarnsOfDegradedProtein) {
    SimulationRecord record = Sample(cow);
    for (FeedRecord& feed : record.Feeds)
        feed.CP = feed.CP / 2;
    const Result result = Run({"compute", Write("short.tav", record)});
    EXPECT_EQ(result.Status, 0);
    EXPECT_NE(result.Output.find("Metabolisable protein"), std::string::npos);
    EXPECT_NE(result.Output.find("short\n"), std::string::npos);
    EXPECT_NE(result.Output.find("RDP Limiting - Energy Estimates May Be Erroneous\n"),
              std::string::npos);
    const Result sound = Run({"compute", cow});
    EXPECT_EQ(sound.Output.find("RDP Limiting"), std::string::npos);
    EXPECT_NE(sound.Output.find("  NEl Balance :  "), std::string::npos);
}

TEST_F(CommandLine, CheckNamesTheLineAndTheField) {
    std::string bytes = Contents(cow);
    const std::size_t weight = bytes.find("\n650\r");
    bytes.replace(weight, 5, "\nheavy\r");
    std::ofstream(folder.Path("bad.tav"), std::ios::binary) << bytes;
    const Result result = Run({"check", cow, folder.Path("bad.tav")});
    EXPECT_EQ(result.Status, 1);
    EXPECT_NE(result.Output.find("Lactating Cow.tav: sound\n"), std::string::npos);
    EXPECT_NE(result.Output.find("bad.tav, line 14: BodyWeight: \"heavy\""), std::string::npos)
        << result.Output;
}

TEST_F(CommandLine, NewWritesATypesDefaultsAndNeverOverwrites) {
    const std::string file = folder.Path("new.tav");
    EXPECT_EQ(Run({"new", file, "--animal", "Dry Cow"}).Status, 0);
    const SimulationRecord record = Sample(file);
    EXPECT_EQ(record.AnimalType, "Dry Cow");
    EXPECT_EQ(record.DaysPregnant, 220);
    const Result again = Run({"new", file, "--animal", "Young Calf"});
    EXPECT_EQ(again.Status, 1);
    EXPECT_NE(again.Messages.find("exists"), std::string::npos);
    EXPECT_EQ(Sample(file).AnimalType, "Dry Cow");
    EXPECT_EQ(Run({"new", folder.Path("no folder/x.tav"), "--animal", "Dry Cow"}).Status, 1);
}

TEST_F(CommandLine, SummaryPrintsThePanelsLines) {
    const Result panel = Run({"summary", cow, calf});
    EXPECT_EQ(panel.Status, 0) << panel.Messages;
    EXPECT_EQ(std::count(panel.Output.begin(), panel.Output.end(), '\n'), 20);
    EXPECT_TRUE(panel.Output.starts_with("Entered Milk Production :  36.0 (kg/day)\nNEl Allow"));
    EXPECT_NE(panel.Output.find("\nMilk Dry Matter Intake :  0.75 (kg/day)\n"), std::string::npos);
    const Result chosen = Run({"summary", "--english", "--select", "Entered Milk Production",
                               "--select", "Blank", "--select", "(CALF) Diet ME", cow});
    EXPECT_EQ(chosen.Output,
              "Entered Milk Production :  79.4 (lbs/day)\n\n(CALF) Diet ME :  N/A\n");
    const Result wrong = Run({"summary", "--select", "Diet Cp", cow});
    EXPECT_EQ(wrong.Status, 2);
    EXPECT_EQ(wrong.Output, "");
    EXPECT_NE(wrong.Messages.find("\n  Diet CP\n"), std::string::npos);
}

TEST_F(CommandLine, SummarySaysThatThereIsNoRationAndGoesOnBehindABadFile) {
    const std::string empty = folder.Path("empty.tav");
    ASSERT_EQ(Run({"new", empty, "--animal", "Dry Cow"}).Status, 0);
    EXPECT_EQ(Run({"summary", empty}).Output,
              "\n\n\n\nNo Ration Specified\nCannot Run Computations\n\n\n\n\n");
    const Result result =
        Run({"summary", "--select", "Diet CP", folder.Path("no such file"), empty});
    EXPECT_EQ(result.Status, 1);
    EXPECT_EQ(result.Output, "No Ration Specified\nCannot Run Computations\n");
    EXPECT_NE(result.Messages.find("no such file"), std::string::npos);
}

TEST_F(CommandLine, AWrongCommandLineIsStatusTwoAndPrintsNothing) {
    for (const auto& arguments :
         std::vector<std::vector<std::string>>{{},
                                               {"bogus"},
                                               {"compute"},
                                               {"compute", "--bogus", cow},
                                               {"compute", cow, "--runs", "0"},
                                               {"compute", cow, "--runs", "x"},
                                               {"new", folder.Path("x.tav")},
                                               {"new", folder.Path("x.tav"), "--animal", "Goat"},
                                               {"check"}}) {
        const Result result = Run(arguments);
        EXPECT_EQ(result.Status, 2);
        EXPECT_EQ(result.Output, "");
        EXPECT_NE(result.Messages, "");
    }
    for (const char* command : {"compute", "new", "check"}) {
        const Result help = Run({command, "--help"});
        EXPECT_EQ(help.Status, 0);
        EXPECT_NE(help.Output.find("Example: tav "), std::string::npos);
    }
}

TEST_F(CommandLine, AReaderThatGoesAwayEndsItQuietly) {
    std::string command = "'" TAV_PROGRAM "' compute --json --runs 1";
    for (int i = 0; i < 30; ++i)
        command += " '" + cow + "'";
    command = "bash -c \"set -o pipefail; " + command + " 2>" + folder.Path("err") +
              " | head -c 10 >/dev/null\"";
    EXPECT_EQ(WEXITSTATUS(std::system(command.c_str())), 0);
    EXPECT_EQ(Contents(folder.Path("err")), "");
}

}  // namespace
}  // namespace tav
