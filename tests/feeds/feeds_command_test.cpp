// `tav feeds` as it is used from a shell.
#include "feeds/small_library.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

#include <gtest/gtest.h>
#include <sys/wait.h>

namespace tav {
namespace {

struct Result {
    int Status = 0;
    std::string Output;
    std::string Messages;
};

class FeedsCommand : public ::testing::Test {
  protected:
    SmallLibrary small;

    Result Run(const std::vector<std::string>& arguments, bool ownLibrary = true) const {
        std::string command = "'" TAV_PROGRAM "' feeds";
        for (const std::string& argument : arguments)
            command += " '" + argument + "'";
        if (ownLibrary) command += " --library '" + small.Path() + "'";
        const std::string out = small.Path("out");
        const std::string err = small.Path("err");
        const int status = std::system((command + " >" + out + " 2>" + err).c_str());
        return {WEXITSTATUS(status), FileText(out), FileText(err)};
    }
};

TEST_F(FeedsCommand, ListsTheDeliveredLibraryBesideTheProgram) {
    const Result result = Run({"list"}, false);
    EXPECT_EQ(result.Status, 0) << result.Messages;
    EXPECT_GE(std::count(result.Output.begin(), result.Output.end(), '\n'), 152);
    EXPECT_NE(result.Output.find("Calf Starter "), std::string::npos);
}

TEST_F(FeedsCommand, ListsAndShowsFeeds) {
    EXPECT_EQ(Run({"list"}).Output,
              "Corn    Energy Source        default\n"
              "My hay  Grass/Legume Forage  user\n"
              "Barley  Energy Source        default\n");
    const Result shown = Run({"show", "My hay"});
    EXPECT_EQ(shown.Status, 0);
    EXPECT_NE(shown.Output.find("Ca (%DM)            0.6\n"), std::string::npos) << shown.Output;
    EXPECT_NE(shown.Output.find("IFN                 -\n"), std::string::npos);
    const Result missing = Run({"show", "My"});
    EXPECT_EQ(missing.Status, 1);
    EXPECT_EQ(missing.Messages, "tav: the library has no feed \"My\". See: tav feeds list\n");
}

// Bytes of another code page, and signs that would do something to a terminal.
TEST_F(FeedsCommand, ShowsAFeedByTheNameThatTheListShows) {
    {
        FeedLibrary library = small.Open();
        for (const std::string name : {"Gr\xFCnmehl", "two\nlines", "Gr\xFCn \x1B[1m"}) {
            library.Table().AddNew();
            library.Table().SetValue("Feed Name", name);
            library.Table().SetValue("IFN", "no. " + std::to_string(name.size()));
            library.Table().Update();
        }
    }
    const std::string list = Run({"list"}).Output;
    for (const std::string name : {"Grünmehl", "two?lines", "Grün ?[1m"}) {
        EXPECT_NE(list.find("\n" + name + " "), std::string::npos) << list;
        const Result shown = Run({"show", name});
        EXPECT_EQ(shown.Status, 0) << shown.Messages;
        EXPECT_NE(shown.Output.find("Feed Name           " + name + "\n"), std::string::npos)
            << shown.Output;
    }
    EXPECT_EQ(Run({"show", "Gr\xFCnmehl"}).Status, 0);
    EXPECT_EQ(Run({"show", "no\x1B"}).Messages,
              "tav: the library has no feed \"no?\". See: tav feeds list\n");
}

TEST_F(FeedsCommand, ImportsItsOwnExportWithoutAChange) {
    const std::string csv = small.Path("feeds.csv");
    ASSERT_EQ(Run({"export", csv}).Status, 0);
    const std::string before = FileText(small.Path());
    const Result result = Run({"import", csv});
    EXPECT_EQ(result.Status, 0);
    EXPECT_EQ(result.Output,
              "0 added, 0 replaced, 1 unchanged, 2 default feeds left as they are\n");
    EXPECT_EQ(result.Messages,
              "tav: " + csv + ": line 2: \"Corn\" is a default feed and is left as it is.\n" +
                  "tav: " + csv + ": line 4: \"Barley\" is a default feed and is left as it is.\n");
    EXPECT_EQ(FileText(small.Path()), before);
}

TEST_F(FeedsCommand, NamesTheLineAndColumnOfABadRow) {
    const std::string csv = small.Path("bad.csv");
    WriteText(csv, "Feed Name,Category,Ca (%DM)\nA,Fat,1\nB,Fat,much\n");
    const Result result = Run({"import", csv});
    EXPECT_EQ(result.Status, 1);
    EXPECT_EQ(result.Output, "");
    EXPECT_EQ(result.Messages, "tav: " + csv +
                                   ": line 3, column 3: Ca (%DM): \"much\" is not a "
                                   "number. Nothing was imported.\n");
    EXPECT_EQ(small.Names(), "Corn|My hay|Barley|");
}

TEST_F(FeedsCommand, TellsWhatItCannotOpenOrWrite) {
    EXPECT_EQ(
        Run({"import", small.Path("none.csv")}).Messages,
        "tav: " + small.Path("none.csv") + ": error 53, File not found. Nothing was imported.\n");
    EXPECT_EQ(Run({"export", small.Path("no/such/file.csv")}).Status, 1);
    // The library itself would make a poor place for its own text.
    const std::string before = FileText(small.Path());
    EXPECT_EQ(Run({"export", small.Path()}).Status, 1);
    EXPECT_EQ(FileText(small.Path()), before);
    {
        const FeedLibrary open = small.Open(LibraryUse::ReadOnly);
        EXPECT_EQ(Run({"list"}).Messages,
                  "tav: " + small.Path() + ": error 3045, Could not use; file already in use.\n");
    }
    std::filesystem::remove(small.Path());
    EXPECT_EQ(Run({"list"}).Messages,
              "tav: " + small.Path() + ": error 3024, Could not find file.\n");
    EXPECT_EQ(Run({"take"}).Status, 2);
}

}  // namespace
}  // namespace tav
