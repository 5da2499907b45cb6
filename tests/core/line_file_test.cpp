// Lines of a file, whatever ends them, and what the file system says when it refuses.
#include "core/line_file.h"

#include "support/temporary_folder.h"

#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>

namespace tav {
namespace {

class LineFile : public ::testing::Test {
  protected:
    TemporaryFolder folder;
    std::string file = folder.Path("lines.txt");

    void Write(const std::string& bytes) const { std::ofstream(file, std::ios::binary) << bytes; }

    // The lines up to the error behind the last one, which is checked to be that of the end.
    std::vector<std::string> Lines() const {
        LineReader reader(file);
        std::vector<std::string> lines;
        try {
            for (;;)
                lines.emplace_back(reader.ReadLine());
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number, kInputPastEnd);
            EXPECT_EQ(reader.Line(), static_cast<int>(lines.size()) + 1);
        }
        return lines;
    }

    static int ErrorOfOpening(const std::string& path) {
        try {
            LineReader reader(path);
            return 0;
        } catch (const RuntimeError& error) {
            return error.Number;
        }
    }
};

using Texts = std::vector<std::string>;

TEST_F(LineFile, EndsLinesAtEitherLineEnd) {
    Write("a\r\nb\nc");
    EXPECT_EQ(Lines(), (Texts{"a", "b", "c"}));
    Write("a\r\n\r\n");
    EXPECT_EQ(Lines(), (Texts{"a", ""}));
    Write("a\rb\r\r\n\xFF\0z\n");
    EXPECT_EQ(Lines().front(), "a\rb\r");
    Write("");
    EXPECT_EQ(Lines(), Texts{});
}

TEST_F(LineFile, ReadsLinesThatCrossItsBlocks) {
    const std::string longLine(200'000, 'x');
    std::string bytes;
    Texts expected;
    for (int i = 0; i < 5; ++i) {
        bytes += longLine + std::to_string(i) + "\r\nshort\r\n";
        expected.push_back(longLine + std::to_string(i));
        expected.emplace_back("short");
    }
    Write(bytes);
    EXPECT_EQ(Lines(), expected);
}

TEST_F(LineFile, TellsWhyAFileCannotBeOpened) {
    EXPECT_EQ(ErrorOfOpening(file), kFileNotFound);
    EXPECT_EQ(ErrorOfOpening(folder.Path("no such folder/lines.txt")), kPathNotFound);
    EXPECT_EQ(ErrorOfOpening(folder.Path("")), kPathFileAccessError);
    Write("x");
    EXPECT_EQ(ErrorOfOpening(file + "/below a file"), kPathNotFound);
}

TEST_F(LineFile, WritesCarriageReturnsAndLineFeeds) {
    {
        LineWriter writer(file);
        writer.WriteLine("a");
        writer.WriteLine("");
        writer.Close();
    }
    std::ifstream in(file, std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(in)), {});
    EXPECT_EQ(bytes, "a\r\n\r\n");
}

TEST_F(LineFile, EmptiesAFileOnOpeningAndRaisesAFullDisk) {
    Write("old");
    { const LineWriter writer(file); }
    EXPECT_EQ(std::filesystem::file_size(file), 0U);
    if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no device that is always full here";
    LineWriter full("/dev/full");
    full.WriteLine("a");
    try {
        full.Close();
        ADD_FAILURE() << "a full disk went unnoticed";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number, kDiskFull);
    }
}

}  // namespace
}  // namespace tav
