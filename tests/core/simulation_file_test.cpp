// The simulation data file: what survives a save and a load, and every way in which a load fails.
#include "core/simulation_file.h"

#include "core/main_window.h"
#include "core/new_simulation.h"
#include "core/number_text.h"
#include "core/program_state.h"
#include "support/temporary_folder.h"

#include <filesystem>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

namespace tav {
namespace {

// Remembers the messages that a load shows.
class MessageLog : public Platform {
  public:
    MessageAnswer ShowMessage(const Message& message) override {
        Messages.push_back(message);
        return MessageAnswer::OK;
    }
    std::vector<Message> Messages;
};

class SimulationFile : public ::testing::Test {
  protected:
    TemporaryFolder folder;
    std::string file = folder.Path("cow.tav");
    MessageLog platform;
    SimulationRecord& record = TheSimulation();

    void SetUp() override {
        SetPlatform(platform);
        record = SimulationRecord{};
        SetNewSimulationValues(record);
    }

    // A cow of her own with two feeds, every field of which differs from every other.
    void MakeCow() const {
        record.Comments = "A cow";
        record.LactationNumber = 2;
        record.Distance = 250;
        record.NumFeeds = 2;
        record.Feeds.assign(2, FeedRecord{});
        int value = 0;
        for (FeedRecord& feed : record.Feeds) {
            VisitFields(feed, [&](std::string_view name, const auto& field) {
                ++value;
                using Field = std::decay_t<decltype(field)>;
                auto& target = const_cast<Field&>(field);
                if constexpr (std::is_same_v<Field, Single>) {
                    target = value / 8.0;
                } else if constexpr (std::is_same_v<Field, std::string>) {
                    target = std::string(name) + " " + std::to_string(value);
                } else {
                    target = true;
                }
            });
        }
        record.TotalDMI = 20.5;
    }

    std::vector<std::string> SavedLines() const {
        SaveSimulationData(file);
        std::ifstream in(file, std::ios::binary);
        std::vector<std::string> lines;
        for (std::string line; std::getline(in, line);) {
            EXPECT_TRUE(line.ends_with('\r'));
            lines.push_back(line.substr(0, line.size() - 1));
        }
        return lines;
    }

    void WriteLines(const std::vector<std::string>& lines, const char* end = "\r\n") const {
        std::ofstream out(file, std::ios::binary);
        for (const std::string& line : lines)
            out << line << end;
    }

    // The failure of reading the file, line 0 and number 0 when it is sound.
    std::pair<int, int> FailureOf() const {
        SimulationRecord read;
        try {
            ReadSimulation(file, read);
            return {0, 0};
        } catch (const FileFault& fault) {
            return {fault.Number, fault.Line};
        }
    }

    std::string CommentsAfterRoundTrip(const std::string& comments) const {
        record.Comments = comments;
        SaveSimulationData(file);
        LoadSimulationData(file);
        return record.Comments;
    }
};

TEST_F(SimulationFile, ComesBackAsItWas) {
    MakeCow();
    record.HeaderFields = {"left, \"quoted\"", "Long Date", "\xE4\xFF\x80"};
    const SimulationRecord saved = record;
    const auto lines = SavedLines();
    record = SimulationRecord{};
    LoadSimulationData(file);
    EXPECT_TRUE(platform.Messages.empty());
    EXPECT_EQ(SavedLines(), lines);
    EXPECT_EQ(record.HeaderFields, saved.HeaderFields);
    for (std::size_t i = 0; i < 2; ++i) {
        std::vector<std::string> kept;
        std::vector<std::string> read;
        const auto list = [](std::vector<std::string>& texts) {
            return [&](std::string_view name, const auto& field) {
                std::ostringstream text;
                if constexpr (std::is_same_v<std::decay_t<decltype(field)>, Single>) {
                    text << name << '=' << field.Value();
                } else {
                    text << name << '=' << field;
                }
                texts.push_back(text.str());
            };
        };
        VisitFields(saved.Feeds[i], list(kept));
        VisitFields(record.Feeds[i], list(read));
        // Cystine (58) and the seven computed energies (80 on) have no line and come back as zero.
        for (std::size_t f = 0; f < 80; ++f) {
            if (f == 58) {
                EXPECT_EQ(read[f], "Cys=0");
            } else {
                EXPECT_EQ(read[f], kept[f]);
            }
        }
        EXPECT_EQ(read[80], "DiscountedTDN=0");
        EXPECT_EQ(read[86], "NEm=0");
    }
}

TEST_F(SimulationFile, HasItsLinesInTheFilesOwnOrder) {
    MakeCow();
    const auto lines = SavedLines();
    ASSERT_EQ(lines.size(), 1 + 6 + 2 + 34 + 2 * 79 + 2U);
    EXPECT_EQ(lines[0], "TAV Dairy Cattle Simulation Data File");
    EXPECT_EQ(lines[7], "A cow");
    EXPECT_EQ(lines[8], "** End of Comments **");
    const auto animal = [&](int number) { return lines[8 + static_cast<std::size_t>(number)]; };
    EXPECT_EQ(animal(1), "Lactating Cow");
    EXPECT_EQ(animal(7), "2");       // LactationNumber
    EXPECT_EQ(animal(11), "False");  // UseTargetADG
    EXPECT_EQ(animal(22), "4.78");   // Lactose
    EXPECT_EQ(animal(26), "250");    // Distance
    EXPECT_EQ(animal(32), "0.25");   // HairDepth
    EXPECT_EQ(animal(34), " 2 ");    // NumFeeds
    const auto feed = [&](int number) { return lines[42 + static_cast<std::size_t>(number)]; };
    // The record's order gives field n of the first feed the value n / 8.
    EXPECT_EQ(feed(1), "Name 2");
    EXPECT_EQ(feed(2), "True");
    EXPECT_EQ(feed(6), "ForageDescription 8");
    EXPECT_EQ(feed(8), "0.75");    // TDN, field 6
    EXPECT_EQ(feed(23), "3");      // Ash, field 24
    EXPECT_EQ(feed(55), "6.875");  // Arg, field 55
    EXPECT_EQ(feed(60), "6.625");  // Met, field 53
    EXPECT_EQ(feed(75), "9.75");   // cDCP, field 78
    EXPECT_EQ(feed(76), "8.875");  // cDM, field 71
    EXPECT_EQ(feed(79), "0.125");  // Qty, field 1
    EXPECT_EQ(lines[lines.size() - 2], " 20.5 ");
    EXPECT_EQ(lines.back(), "TAV Dairy Cattle Simulation Data File - END");
}

TEST_F(SimulationFile, WithoutFeedsHasNoBlocksAndLeavesTheOldList) {
    MakeCow();
    record.NumFeeds = 0;
    record.Comments = "";
    const auto lines = SavedLines();
    EXPECT_EQ(lines.size(), 1 + 6 + 1 + 34 + 2U);
    EXPECT_EQ(lines[7], "");
    LoadSimulationData(file);
    EXPECT_EQ(record.NumFeeds, 0);
    EXPECT_EQ(record.Feeds.size(), 2U);
}

TEST_F(SimulationFile, ChangesCommentsAsParagraphsAre) {
    EXPECT_EQ(CommentsAfterRoundTrip(""), "");
    EXPECT_EQ(CommentsAfterRoundTrip("one line"), "one line");
    EXPECT_EQ(CommentsAfterRoundTrip("two\r\nlines"), "twolines");
    EXPECT_EQ(CommentsAfterRoundTrip("two\r\n\r\nparagraphs"), "two\r\n\r\nparagraphs");
    EXPECT_EQ(CommentsAfterRoundTrip("a\r\n\r\n\r\ngap"), "a\r\n\r\n\r\n\r\ngap");
    EXPECT_TRUE(platform.Messages.empty());
    EXPECT_EQ(CommentsAfterRoundTrip("** End of Comments **"), "");
    EXPECT_EQ(platform.Messages.size(), 1U) << "the second marker is taken as the animal type";
    CommentsAfterRoundTrip("\r\ntext behind an empty line");
    ASSERT_EQ(platform.Messages.size(), 2U);
    EXPECT_EQ(platform.Messages.back().Title, "Corrupted File");
}

TEST_F(SimulationFile, ReadsDistanceThroughAWholeNumber) {
    const struct {
        double Saved;
        double Read;
    } cases[] = {{1.5, 2}, {2.5, 2}, {0.4, 0}, {1000, 1000}};
    for (const auto& c : cases) {
        record.Distance = c.Saved;
        SaveSimulationData(file);
        EXPECT_EQ(SavedLines()[7 + 26], NumberText(Single(c.Saved)));
        LoadSimulationData(file);
        EXPECT_EQ(record.Distance.Value(), c.Read);
    }
}

TEST_F(SimulationFile, ReadsOtherLineEndsAndOtherFormsOfNumbers) {
    MakeCow();
    auto lines = SavedLines();
    lines[8 + 2] = "  6.5E1 ";  // Age
    lines[8 + 4] = "121.5";     // DaysPregnant: halves to even
    lines[8 + 11] = "tRUE";     // UseTargetADG
    lines[8 + 15] = "0";        // MWFromBreed
    lines[8 + 18] = "-1";       // CBWFromMW
    WriteLines(lines, "\n");
    LoadSimulationData(file);
    EXPECT_TRUE(platform.Messages.empty());
    EXPECT_EQ(record.Age.Value(), 65);
    EXPECT_EQ(record.DaysPregnant, 122);
    EXPECT_TRUE(record.UseTargetADG);
    EXPECT_FALSE(record.MWFromBreed);
    EXPECT_TRUE(record.CBWFromMW);
}

TEST_F(SimulationFile, CutAnywhereSaysThatItEndsTooEarly) {
    MakeCow();
    const auto lines = SavedLines();
    for (std::size_t kept = 0; kept < lines.size(); ++kept) {
        WriteLines({lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(kept)});
        EXPECT_EQ(FailureOf(),
                  std::pair(static_cast<int>(kInputPastEnd), static_cast<int>(kept) + 1));
    }
}

TEST_F(SimulationFile, NamesTheLineThatIsNoNumber) {
    MakeCow();
    const auto sound = SavedLines();
    for (std::size_t i = 0; i < sound.size(); ++i) {
        auto lines = sound;
        lines[i] = "abc";
        WriteLines(lines);
        // Texts take anything; a lost end of the comments runs on to the end of the file.
        const bool text = (i >= 1 && i <= 7) || i == 9 || i == 24 || i == 33 || i == 38 ||
                          i == 39 ||
                          (i >= 43 && i < 43 + 158 &&
                           ((i - 43) % 79 == 0 || ((i - 43) % 79 >= 2 && (i - 43) % 79 <= 5)));
        if (i == 8) {
            EXPECT_EQ(FailureOf().first, kInputPastEnd);
        } else if (text) {
            EXPECT_EQ(FailureOf(), std::pair(0, 0)) << i;
        } else {
            EXPECT_EQ(FailureOf(),
                      std::pair(static_cast<int>(kTypeMismatch), static_cast<int>(i) + 1));
        }
    }
}

TEST_F(SimulationFile, TellsAMissingFile) {
    LoadSimulationData(file);
    ASSERT_EQ(platform.Messages.size(), 1U);
    EXPECT_EQ(platform.Messages[0].Text,
              "No default simulation data file has been found.\r\rTherefore, a default simulation "
              "has been "
              "created.");
    EXPECT_EQ(platform.Messages[0].Title, "Default Simulation Data File Not Found");
    EXPECT_EQ(platform.Messages[0].Icon, MessageIcon::Information);
    EXPECT_EQ(platform.Messages[0].Buttons, MessageButtons::OK);
}

TEST_F(SimulationFile, TellsACorruptedFile) {
    auto lines = SavedLines();
    lines[0] += " ";
    WriteLines(lines);
    LoadSimulationData(file);
    ASSERT_EQ(platform.Messages.size(), 1U);
    EXPECT_EQ(platform.Messages[0].Text,
              "The simulation data file has been corrupted.\r\rTherefore, a default simulation has "
              "been created.");
    EXPECT_EQ(platform.Messages[0].Title, "Corrupted File");
    EXPECT_EQ(platform.Messages[0].Icon, MessageIcon::Information);
}

TEST_F(SimulationFile, TellsAnyOtherFailureByItsNumber) {
    auto lines = SavedLines();
    lines.pop_back();
    WriteLines(lines);
    LoadSimulationData(file);
    lines = SavedLines();
    lines[7 + 7] = "256";  // LactationNumber
    WriteLines(lines);
    LoadSimulationData(file);
    LoadSimulationData(folder.Path(""));
    ASSERT_EQ(platform.Messages.size(), 3U);
    EXPECT_EQ(platform.Messages[0].Text,
              "Error Number :   62\rError Description :  Input past end of file\r\rCannot Load "
              "Default Data "
              "File.  Creating a new simulation instead.");
    EXPECT_EQ(platform.Messages[1].Text,
              "Error Number :   6\rError Description :  Overflow\r\rCannot Load Default Data File. "
              " Creating a "
              "new simulation instead.");
    EXPECT_TRUE(platform.Messages[2].Text.starts_with("Error Number :   75\r"));
    for (const Message& message : platform.Messages) {
        EXPECT_EQ(message.Title, "Error");
        EXPECT_EQ(message.Icon, MessageIcon::Critical);
    }
}

TEST_F(SimulationFile, AFailedLoadLeavesANewSimulationAndOldResults) {
    MakeCow();
    record.Age = 12;
    record.TotalNEl = 30;
    auto lines = SavedLines();
    lines.back() = "TAV Dairy Cattle Simulation Data File";
    WriteLines(lines);
    LoadSimulationData(file);
    EXPECT_EQ(record.Age.Value(), 65);
    EXPECT_EQ(record.Comments, "");
    EXPECT_EQ(record.NumFeeds, 0);
    EXPECT_EQ(record.TotalDMI.Value(), 0);
    EXPECT_EQ(record.TotalNEl.Value(), 30);
}

TEST_F(SimulationFile, TakesTheLargestNumberOfFeeds) {
    record.NumFeeds = 255;
    record.Feeds.assign(255, FeedRecord{});
    record.Feeds.back().Name = "the last";
    SaveSimulationData(file);
    record = SimulationRecord{};
    LoadSimulationData(file);
    ASSERT_EQ(record.Feeds.size(), 255U);
    EXPECT_EQ(record.Feeds.back().Name, "the last");
}

TEST(AnimalTypeDefaults, AreNotThoseOfANewSimulation) {
    SimulationRecord record;
    SetNewSimulationValues(record);
    EXPECT_EQ(record.MilkProduction.Value(), 70);
    record.DesiredADG = 500;
    SetAnimalTypeDefaults(record, kLactatingCow);
    EXPECT_EQ(record.MilkProduction.Value(), 40);
    EXPECT_EQ(record.DesiredADG, 500) << "only a heifer's is set";
    EXPECT_FALSE(record.NightCooling);
    record.CoatCondition = "Some Mud";
    record.HairDepth = 2;
    SetAnimalTypeDefaults(record, kReplacementHeifer);
    EXPECT_EQ(record.DesiredADG, 0);
    EXPECT_EQ(record.CoatCondition, "Some Mud");
    EXPECT_EQ(record.HairDepth.Value(), 2);
    SetAnimalTypeDefaults(record, kYoungCalf);
    EXPECT_EQ(record.CalfBodyWeight.Value(), 60);
    EXPECT_EQ(record.BodyWeight.Value(), 0);
    EXPECT_EQ(record.CoatCondition, "Clean/Dry");
    EXPECT_THROW(SetAnimalTypeDefaults(record, "Goat"), RuntimeError);
}

}  // namespace
}  // namespace tav
