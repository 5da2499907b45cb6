// The batch and its result file: what scripts of the screen can't reach.
#include "shell/batch_run.h"

#include "core/new_simulation.h"
#include "core/number_text.h"
#include "core/program_state.h"
#include "core/simulation_file.h"
#include "forms/headless_platform.h"
#include "model/computations.h"
#include "shell/batch_table.h"
#include "support/temporary_folder.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <system_error>
#include <thread>

#include <gtest/gtest.h>
#include <pthread.h>

namespace tav {
namespace {

using Paths = std::vector<std::string>;

std::string Contents(const std::string& path) {
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

std::size_t LinesIn(const std::string& text) {
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

NextFile OneAfterTheOther(const Paths& paths) {
    return [paths, next = std::size_t{0}]() mutable -> std::optional<std::string> {
        if (next == paths.size()) return std::nullopt;
        return paths[next++];
    };
}

class Watcher : public BatchWatcher {
  public:
    void LoadFailed(const std::string& file, const FileFault& fault) override {
        Failures.push_back(file + ": " + std::to_string(fault.Number));
    }
    bool GoesOn(const BatchState& state) override { return state.Files != StopAt; }

    std::vector<std::string> Failures;
    std::int64_t StopAt = -1;
};

class Batch : public testing::Test {
  protected:
    Batch() {
        SetPlatform(Platform);
        TheProgram() = {};
        TheProgram().UseMetric = true;
        TheSimulation() = {};
    }

    // A cow on a ration of so many feeds, each cow a little different.
    static SimulationRecord Cow(int number, int feeds = 3) {
        SimulationRecord cow;
        ReadSimulation(TAV_SIMULATIONS "Lactating Cow.tav", cow);
        cow.BodyWeight = 550 + number % 97;
        cow.MilkProduction = 20 + number % 31;
        cow.Feeds.resize(static_cast<std::size_t>(feeds), cow.Feeds[0]);
        cow.NumFeeds = static_cast<std::uint8_t>(feeds);
        return cow;
    }
    static SimulationRecord Calf(const SimulationRecord& fedLike) {
        SimulationRecord calf = fedLike;
        SetAnimalTypeDefaults(calf, kYoungCalf);
        calf.AnimalType = kYoungCalf;
        return calf;
    }

    std::string Save(const std::string& name, const SimulationRecord& record) const {
        const std::string path = Folder.Path(name);
        WriteSimulation(path, record);
        return path;
    }

    // Runs and returns the error that ended it, 0 if none did.
    int Run(const NextFile& files, int readers = 2) {
        BatchRun batch(files, Seen, readers);
        int error = 0;
        try {
            batch.Run(Output);
        } catch (const RuntimeError& fault) {
            error = fault.Number;
        }
        State = batch.State();
        return error;
    }
    int Run(const Paths& paths, int readers = 2) { return Run(OneAfterTheOther(paths), readers); }

    // A herd in which every kind of file follows every other: cows of the same feeds, fewer, others
    // or none, calves, which compute little, and files that can't be loaded.
    Paths MixedHerd(int count) const {
        std::mt19937 random(7);
        Paths paths = {Save("0.tav", Cow(0))};
        for (int i = 1; i < count; ++i) {
            const std::string name = std::to_string(i) + ".tav";
            SimulationRecord cow = Cow(i);
            switch (random() % 9) {
                case 0: cow = Calf(cow); break;
                case 1: cow = Cow(i, 1); break;
                case 2: cow.Feeds[1].Name = "Another"; break;
                case 3: cow.NumFeeds = 0; break;
                case 4: cow.TotalDMI = 0; break;
                default: break;
            }
            paths.push_back(Save(name, cow));
            if (i % 13 == 0) std::filesystem::resize_file(paths.back(), 5000);
            if (i % 29 == 0) std::filesystem::remove(paths.back());
        }
        return paths;
    }

    // The rows by the ordinary loader, one file after the other.
    std::string RowsByTheLoader(const Paths& paths) const {
        std::string rows;
        for (const std::string& path : paths) {
            LoadSimulationData(path);
            RunComputations();
            const SimulationRecord& r = TheSimulation();
            const bool other = r.NumFeeds > 1 && r.Feeds[1].Name == "Another";
            if (!other) rows += BatchRow(path, r, true) + "\r\n";
        }
        return rows;
    }

    TemporaryFolder Folder;
    const std::string Output = Folder.Path("result.csv");
    HeadlessPlatform Platform;
    Watcher Seen;
    BatchState State;
};

std::string DumpOfSimulation() {
    std::string dump;
    VisitFields(TheSimulation(), [&](std::string_view name, const auto& field) {
        if constexpr (std::is_same_v<std::decay_t<decltype(field)>, Single>) {
            dump += std::string(name) + "=" + NumberText(field) + "\n";
        }
    });
    return dump;
}

TEST_F(Batch, HoweverTheThreadsFallTheBytesAreTheSame) {
    const Paths paths = MixedHerd(400);
    const std::string expected = RowsByTheLoader(paths);
    const std::string last = DumpOfSimulation();
    for (const int readers : {0, 1, 2, 7}) {
        std::mt19937 random(static_cast<unsigned>(readers));
        const NextFile files = OneAfterTheOther(paths);
        TheSimulation() = {};
        const int error = Run(
            [&] {
                if (random() % 5 == 0) {
                    std::this_thread::sleep_for(std::chrono::microseconds(random() % 500));
                }
                return files();
            },
            readers);
        EXPECT_EQ(error, 0);
        const std::string text = Contents(Output);
        EXPECT_TRUE(text.ends_with(expected)) << readers << " readers";
        EXPECT_EQ(LinesIn(text), 4 + LinesIn(expected));
        EXPECT_EQ(State.Files, 400);
        EXPECT_EQ(State.Rows, static_cast<std::int64_t>(LinesIn(expected)));
        EXPECT_EQ(DumpOfSimulation(), last);
    }
}

// Asks for stacks that no machine has while it stands, so that no thread can be started.
class NoThreads {
  public:
    NoThreads() {
        pthread_getattr_default_np(&before_);
        pthread_attr_t greedy;
        pthread_attr_init(&greedy);
        pthread_attr_setstacksize(&greedy, std::size_t{1} << 56);
        pthread_setattr_default_np(&greedy);
        pthread_attr_destroy(&greedy);
    }
    ~NoThreads() {
        pthread_setattr_default_np(&before_);
        pthread_attr_destroy(&before_);
    }
    NoThreads(const NoThreads&) = delete;
    NoThreads& operator=(const NoThreads&) = delete;

  private:
    pthread_attr_t before_;
};

TEST_F(Batch, GoesOnWithoutReadersWhenThereAreNoThreads) {
    const Paths paths = MixedHerd(50);
    const std::string expected = RowsByTheLoader(paths);
    TheSimulation() = {};
    const NoThreads none;
    EXPECT_THROW(std::thread([] {}).join(), std::system_error);
    EXPECT_EQ(Run(paths, 7), 0);
    EXPECT_TRUE(Contents(Output).ends_with(expected));
}

TEST_F(Batch, RowsBeforeAnErrorStay) {
    SimulationRecord weightless = Cow(1);
    weightless.BodyWeight = 0;
    const Paths same = {Save("a.tav", Cow(1)), Save("b.tav", Cow(2))};
    const std::string moreFeeds = Save("more.tav", Cow(3, 4));
    EXPECT_EQ(Run(Paths{same[0], same[1], moreFeeds, same[0]}), kSubscriptOutOfRange);
    EXPECT_EQ(LinesIn(Contents(Output)), 6U);
    EXPECT_EQ(State.File, moreFeeds);

    EXPECT_EQ(Run(Paths{same[0], Save("weightless.tav", weightless), same[1]}), kDivisionByZero);
    EXPECT_EQ(LinesIn(Contents(Output)), 5U);
}

TEST_F(Batch, TheOutputIsOpenedOnlyWhenTheFirstFileHasBeenComputed) {
    SimulationRecord weightless = Cow(1);
    weightless.BodyWeight = 0;
    EXPECT_EQ(Run(Paths{}), kSubscriptOutOfRange);
    EXPECT_EQ(Run(Paths{Save("weightless.tav", weightless)}), kDivisionByZero);
    EXPECT_FALSE(std::filesystem::exists(Output));

    std::filesystem::create_directory(Output);
    EXPECT_EQ(Run(Paths{Save("a.tav", Cow(5))}), kPathFileAccessError);
    EXPECT_EQ(TheSimulation().BodyWeight, 555);
}

TEST_F(Batch, AFullDiskIsTold) {
    std::filesystem::create_symlink("/dev/full", Output);
    EXPECT_EQ(Run(Paths{Save("a.tav", Cow(1))}), kDiskFull);
}

TEST_F(Batch, AnInterruptLeavesWholeRows) {
    Seen.StopAt = 3;
    EXPECT_EQ(Run(Paths(50, Save("a.tav", Cow(1)))), 0);
    const std::string text = Contents(Output);
    EXPECT_EQ(LinesIn(text), 4 + 3U);
    EXPECT_TRUE(text.ends_with("\r\n"));
}

TEST_F(Batch, WhatBreaksTheSourceOfPathsComesBehindTheFilesBefore) {
    const std::string path = Save("a.tav", Cow(1));
    for (const int readers : {0, 3}) {
        int asked = 0;
        const NextFile files = [&]() -> std::optional<std::string> {
            if (++asked > 100) Raise(kDeviceIOError);
            return path;
        };
        EXPECT_EQ(Run(files, readers), kDeviceIOError);
        EXPECT_EQ(LinesIn(Contents(Output)), 4 + 100U);
    }
}

TEST_F(Batch, AFileThatFailsFirstLeavesNoFeedsToCompareWith) {
    const std::string missing = Folder.Path("missing.tav");
    EXPECT_EQ(Run(Paths{missing, Save("a.tav", Cow(1))}), kSubscriptOutOfRange);
    EXPECT_EQ(Seen.Failures, std::vector<std::string>{missing + ": 53"});
    EXPECT_EQ(LinesIn(Contents(Output)), 4 + 1U);
}

// Values that are easy to follow by hand through both units.
SimulationRecord PlainCow() {
    SimulationRecord cow;
    cow.AnimalType = kDryCow;
    cow.Breed = "Brown \"Swiss\"";
    cow.Age = 48.5;
    cow.BodyWeight = cow.MatureWeight = cow.MilkProduction = 100;
    cow.DaysPregnant = 200;
    cow.LactationNumber = 2;
    cow.MilkFat = 0.1;
    cow.NumFeeds = 1;
    cow.Feeds.resize(1);
    cow.Feeds[0].Qty = 10;
    cow.MPPreg = cow.MPLact = cow.MPMaint = 100;
    cow.NELact = -0.5;
    cow.TargetADG = 0.25;
    return cow;
}

TEST(BatchTable, ARowHoldsTheValuesInEitherUnit) {
    const SimulationRecord cow = PlainCow();
    const std::string animal = "\"Cow, 7.tav\",\"Dry Cow\",48.5,";
    EXPECT_EQ(BatchRow("/herd/Cow, 7.tav", cow, true),
              animal +
                  "100,200,0,0,2,0,0,100,\"Brown \"\"Swiss\"\"\",0,100,0.1,0,0,10,"
                  "0,100,0,-0.5,100,0,0,0.25,0,0,100,0");
    EXPECT_EQ(BatchRow("/herd/Cow, 7.tav", cow, false),
              animal +
                  "220.462,200,0,0,2,0,0,220.462,\"Brown \"\"Swiss\"\"\",0,220.462,0.1,0,0,"
                  "22.0462,0,45359.29,0,-0.5,45359.29,0,0,0.551155,0,0,0.220462,0");
}

TEST(BatchTable, NumbersHaveAPointWhateverTheLocale) {
    const std::string row = BatchRow("a.tav", PlainCow(), false);
    SetDecimalSeparator(',');
    EXPECT_EQ(BatchRow("a.tav", PlainCow(), false), row);
    SetDecimalSeparator('.');
}

TEST(BatchTable, AValueThatGrowsBeyondItsTypeIsAnOverflow) {
    SimulationRecord cow;
    cow.MPPreg = 1e38;
    EXPECT_NO_THROW(BatchRow("a.tav", cow, true));
    EXPECT_THROW(BatchRow("a.tav", cow, false), RuntimeError);
}

TEST(BatchTable, TitlesNameTheUnitsAndNoFeedRunsAsAFormula) {
    EXPECT_EQ(BatchTitles({"Hay, \"first\" cut", "=1+1"}, true),
              "\"Simulation Name\",\"Animal Type\",\"Age\",\"Body Weight (kg)\",\"Days Pregnant\","
              "\"Condition Score\",\"Days In Milk\",\"Lactation Number\",\"Age At First Calving\","
              "\"Calving Interval\",\"Mature Weight (kg)\",\"Breed\",\"Calf Birth Weight (kg)\","
              "\"Milk Production\",\"Milk Fat (%)\",\"Milk True Protein (%)\",\"Lactose (%)\","
              "\"Hay, \"\"first\"\" cut (kg/day)\",\"'=1+1 (kg/day)\","
              "\"MEPreg (Mcal/day)\",\"MPPreg (g/day)\",\"ADGPreg (g/day)\","
              "\"NELact (Mcal/day)\",\"MPLact (g/day)\",\"Energy Allowable Milk (kg/day)\","
              "\"Protein Allowable Milk (kg/day)\",\"ADG (kg/day)\",\"Total DMI (kg/day)\","
              "\"MEMaint (Mcal/day)\",\"MPMaint (g/day)\",\"Pred. DMI (kg/day)\"");
    const std::string english = BatchTitles({"Hay"}, false);
    EXPECT_EQ(english.find("kg"), std::string::npos);
    EXPECT_EQ(english.find("(g/day)"), std::string::npos);
    EXPECT_NE(english.find("\"Calf Birth Weight (lbs)\",\"Milk Production\""), std::string::npos);
    EXPECT_NE(english.find("\"Hay (lbs/day)\",\"MEPreg (Mcal/day)\",\"MPPreg (lbs/day)\""),
              std::string::npos);
}

}  // namespace
}  // namespace tav
