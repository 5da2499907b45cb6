// `tav batch` as it is used from a shell. What the rows hold is tested with the batch itself.
#include "core/simulation_file.h"
#include "support/temporary_folder.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>
#include <sys/wait.h>

namespace tav {
namespace {

constexpr int kEndedBySigTerm = 128 + 15;  // as a shell tells it

class BatchCommand : public testing::Test {
  protected:
    BatchCommand() {
        SimulationRecord record;
        ReadSimulation(TAV_SIMULATIONS "Lactating Cow.tav", record);
        WriteSimulation(Folder.Path("cow 1.tav"), record);
        record.BodyWeight = 500;
        WriteSimulation(Folder.Path("cow 2.tav"), record);
    }

    // Runs a shell script in the folder, in which TAV is the program. The status is the script's.
    int Run(const std::string& script) {
        const std::string command = "cd '" + Folder.Path("") +
                                    "' && export TAV='" TAV_PROGRAM "' && { " + script +
                                    "; } 2>messages";
        const int status = std::system(command.c_str());
        Messages = Contents("messages");
        return WEXITSTATUS(status);
    }

    std::string Contents(const std::string& name) const {
        std::ostringstream text;
        text << std::ifstream(Folder.Path(name), std::ios::binary).rdbuf();
        return text.str();
    }
    std::size_t Lines(const std::string& name) const {
        const std::string text = Contents(name);
        return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
    }

    TemporaryFolder Folder;
    std::string Messages;
};

TEST_F(BatchCommand, FilesAndListGiveTheSameBytes) {
    std::ofstream(Folder.Path("list.txt")) << "\xEF\xBB\xBF"
                                              "cow 1.tav\r\n\r\ncow 2.tav";
    EXPECT_EQ(Run("$TAV batch --output a.csv 'cow 1.tav' 'cow 2.tav'"), 0);
    EXPECT_EQ(Run("$TAV batch --output b.csv --list list.txt"), 0);
    EXPECT_EQ(Run("cat list.txt | $TAV batch --output c.csv --list /dev/stdin"), 0);
    EXPECT_EQ(Messages, "");  // progress is for terminals
    EXPECT_EQ(Lines("a.csv"), 6U);
    EXPECT_NE(Contents("a.csv").find("\r\n\"cow 2.tav\",\"Lactating Cow\",55,500,"),
              std::string::npos);
    EXPECT_EQ(Contents("a.csv"), Contents("b.csv"));
    EXPECT_EQ(Contents("a.csv"), Contents("c.csv"));
}

TEST_F(BatchCommand, EnglishUnitsAreChosenByAnOption) {
    EXPECT_EQ(Run("$TAV batch --english --output a.csv 'cow 2.tav'"), 0);
    EXPECT_NE(Contents("a.csv").find("\"Body Weight (lbs)\""), std::string::npos);
    EXPECT_NE(Contents("a.csv").find("\"cow 2.tav\",\"Lactating Cow\",55,1102.31,"),
              std::string::npos);
}

TEST_F(BatchCommand, AFileThatCannotBeLoadedIsNamedAndTheOthersGoOn) {
    std::ofstream(Folder.Path("short.tav")) << "TAV Dairy Cattle Simulation Data File\r\n";
    EXPECT_EQ(Run("$TAV batch --output a.csv 'cow 1.tav' short.tav 'cow 2.tav'"), 1);
    EXPECT_NE(Messages.find("short.tav, line 2: the file ends before"), std::string::npos);
    EXPECT_EQ(Lines("a.csv"), 7U);
}

TEST_F(BatchCommand, AnErrorStopsItAndNamesTheFile) {
    SimulationRecord record;
    ReadSimulation(Folder.Path("cow 1.tav"), record);
    record.BodyWeight = 0;
    WriteSimulation(Folder.Path("weightless.tav"), record);
    EXPECT_EQ(Run("$TAV batch --output a.csv 'cow 1.tav' weightless.tav 'cow 2.tav'"), 1);
    EXPECT_NE(Messages.find("weightless.tav: the batch was stopped by error 11, Division by zero"),
              std::string::npos);
    EXPECT_EQ(Lines("a.csv"), 5U);
    EXPECT_EQ(Run("$TAV batch --output /dev/full 'cow 1.tav'"), 1);
    EXPECT_NE(Messages.find("/dev/full: the batch was stopped by error 61, Disk full"),
              std::string::npos);
}

TEST_F(BatchCommand, AListThatBreaksOffIsNamedAndNotTheOutput) {
    EXPECT_EQ(Run("{ echo 'cow 1.tav'; head -c 70000000 /dev/zero; } | "
                  "$TAV batch --output a.csv --list /dev/stdin"),
              1);
    EXPECT_NE(Messages.find("tav: /dev/stdin: the list can't be read: error 14, "),
              std::string::npos);
    EXPECT_NE(Messages.find("Rows written: 1"), std::string::npos);
    EXPECT_EQ(Lines("a.csv"), 5U);
}

TEST_F(BatchCommand, WrongCommandLinesAreRefusedBeforeAnythingIsWritten) {
    const std::string cow = Contents("cow 1.tav");
    EXPECT_EQ(Run("$TAV batch 'cow 1.tav'"), 2);
    EXPECT_EQ(Run("$TAV batch --output a.csv"), 2);
    EXPECT_EQ(Run("$TAV batch --output a.csv --list none.txt"), 2);
    EXPECT_EQ(Run("touch empty.txt; $TAV batch --output a.csv --list empty.txt"), 2);
    EXPECT_EQ(Run("$TAV batch --output a.csv --list empty.txt 'cow 1.tav'"), 2);
    EXPECT_EQ(Run("$TAV batch --output './cow 1.tav' 'cow 2.tav' 'cow 1.tav'"), 2);
    EXPECT_EQ(Contents("cow 1.tav"), cow);
    EXPECT_EQ(Lines("a.csv"), 0U);
}

// The list is so long that the batch can't be through before the signal comes.
TEST_F(BatchCommand, AnInterruptLeavesWholeRowsAndEndsItByTheSignal) {
    EXPECT_EQ(Run("yes 'cow 1.tav' | head -n 200000 >list; "
                  "$TAV batch --output a.csv --list list & "
                  "for i in $(seq 2000); do [ -e a.csv ] && break; sleep 0.01; done; "
                  "kill -TERM $!; wait $!"),
              kEndedBySigTerm);
    const std::string text = Contents("a.csv");
    EXPECT_GE(Lines("a.csv"), 5U);
    EXPECT_LT(Lines("a.csv"), 200000U);
    EXPECT_TRUE(text.ends_with("\r\n"));
}

}  // namespace
}  // namespace tav
