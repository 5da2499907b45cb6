// The library between two processes, one of which may be killed at any moment.
#include "feeds/library_import.h"
#include "feeds/small_library.h"

#include <array>
#include <chrono>
#include <csignal>
#include <functional>
#include <thread>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tav {
namespace {

// A process of its own that runs an action and then waits to be killed.
class OtherProcess {
  public:
    explicit OtherProcess(const std::function<void(const std::function<void()>& ready)>& action) {
        if (pipe(ends_.data()) != 0) throw std::runtime_error("no pipe");
        process_ = fork();
        if (process_ != 0) {
            close(ends_[1]);  // so that a process that ends ends the waiting for it
            return;
        }
        try {
            action([this] { static_cast<void>(!write(ends_[1], "r", 1)); });
            while (true)
                pause();
        } catch (...) {
            _exit(1);
        }
    }
    ~OtherProcess() {
        Kill();
        close(ends_[0]);
    }
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;

    void WaitUntilReady() const {
        char sign = 0;
        ASSERT_EQ(read(ends_[0], &sign, 1), 1);
    }

    void Kill() {
        if (process_ <= 0) return;
        kill(process_, SIGKILL);
        waitpid(process_, nullptr, 0);
        process_ = 0;
    }

  private:
    std::array<int, 2> ends_{};
    pid_t process_ = 0;
};

TEST(LibraryProcesses, ASecondOneIsRefusedAtOnce) {
    const SmallLibrary small;
    OtherProcess other([&](const auto& ready) {
        FeedLibrary library = small.Open(LibraryUse::ReadOnly);
        ready();
        while (true)
            pause();
    });
    other.WaitUntilReady();
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(small.OpeningFault(LibraryUse::ReadOnly), kFileInUse);
    EXPECT_EQ(small.OpeningFault(LibraryUse::ReadWrite), kFileInUse);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(2));
    other.Kill();
    EXPECT_EQ(small.OpeningFault(LibraryUse::ReadWrite), 0);
}

TEST(LibraryProcesses, ALockSurvivesARefusedOpeningInTheSameProcess) {
    const SmallLibrary small;
    OtherProcess other([&](const auto& ready) {
        FeedLibrary library = small.Open(LibraryUse::ReadWrite);
        if (small.OpeningFault() != kFileInUse) _exit(1);
        ready();
        while (true)
            pause();
    });
    other.WaitUntilReady();
    EXPECT_EQ(small.OpeningFault(), kFileInUse);
}

// Writes one row again and again, all of its numbers from the same generation.
void WriteGenerations(const SmallLibrary& small, const std::function<void()>& ready) {
    FeedLibrary library = small.Open();
    for (int generation = 1;; ++generation) {
        library.Find("My hay");
        library.Table().Edit();
        for (const FeedColumn& column : FeedColumns()) {
            if (column.IsNumber()) library.Table().SetValue(column.Name, double(generation));
        }
        library.Table().SetValue("IFN",
                                 std::string(3000, static_cast<char>('a' + generation % 26)));
        library.Table().Update();
        if (generation == 1) ready();
    }
}

TEST(LibraryProcesses, AKillInMidWriteLeavesTheRowAsBeforeOrAsAfter) {
    const SmallLibrary small;
    for (int round = 0; round < 25; ++round) {
        OtherProcess writer([&](const auto& ready) { WriteGenerations(small, ready); });
        writer.WaitUntilReady();
        std::this_thread::sleep_for(std::chrono::microseconds(200 + 731 * round));
        writer.Kill();

        FeedLibrary library = small.Open();
        ASSERT_TRUE(library.Find("My hay"));
        const FieldValue first = library.Table().Value("Ca (%DM)");
        for (const FeedColumn& column : FeedColumns()) {
            if (column.IsNumber()) {
                ASSERT_EQ(library.Table().Value(column.Name), first);
            }
        }
        const int generation = static_cast<int>(std::get<double>(first));
        ASSERT_EQ(ShownText(library.Table().Value("IFN")),
                  std::string(3000, static_cast<char>('a' + generation % 26)));
    }
    EXPECT_EQ(small.Names(), "Corn|My hay|Barley|");
}

// Twelve feeds, all with the vitamin of one generation.
std::string GenerationCsv(int generation) {
    std::string csv = "Feed Name,Category,Vit-A (1000 IU/kg)\n";
    for (int i = 1; i <= 12; ++i) {
        csv += "Feed " + std::to_string(i) + ",Fat," + std::to_string(generation) + "\n";
    }
    return csv;
}

TEST(LibraryProcesses, AKillInMidImportLeavesAllOfItsRowsOrNone) {
    const SmallLibrary small;
    int last = 0;
    for (int round = 0; round < 25; ++round) {
        OtherProcess writer([&](const auto& ready) {
            FeedLibrary library = small.Open();
            for (int generation = last + 1;; ++generation) {
                ImportFeeds(library, ReadLibraryCsv(GenerationCsv(generation)));
                if (generation == last + 1) ready();
            }
        });
        writer.WaitUntilReady();
        std::this_thread::sleep_for(std::chrono::microseconds(500 + 4177 * round));
        writer.Kill();

        FeedLibrary library = small.Open();
        int feeds = 0;
        int generation = 0;
        for (Recordset& row = library.Table(); !row.AtEnd(); row.MoveNext()) {
            if (!ShownText(row.Value("Feed Name")).starts_with("Feed ")) continue;
            const int value = static_cast<int>(std::get<double>(row.Value("Vit-A (1000 IU/kg)")));
            if (++feeds == 1) generation = value;
            ASSERT_EQ(value, generation);
        }
        ASSERT_EQ(feeds, 12);
        ASSERT_GT(generation, last);
        last = generation;
    }
}

// Gives up the rights that let a superuser write a protected file.
void BecomeAnyone() {
    constexpr uid_t kAnyone = 65534;
    if (geteuid() == 0 && setuid(kAnyone) != 0) _exit(1);
}

TEST(LibraryProcesses, AProtectedLibraryIsOpenToOneAtATime) {
    namespace fs = std::filesystem;
    const SmallLibrary small;
    constexpr fs::perms kReadable =
        fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read;
    fs::permissions(small.Path(""), kReadable | fs::perms::owner_all | fs::perms::group_exec |
                                        fs::perms::others_exec);
    fs::permissions(small.Path(), kReadable);
    const auto open = [&](const auto& ready) {
        BecomeAnyone();
        if (small.OpeningFault(LibraryUse::ReadWrite) != kPermissionDenied) _exit(1);
        FeedLibrary library = small.Open(LibraryUse::ReadOnly);
        if (small.OpeningFault(LibraryUse::ReadOnly) != kFileInUse) _exit(1);
        if (ShownText(library.Table().Value("Feed Name")) != "Corn") _exit(1);
        ready();
        while (true)
            pause();
    };
    const auto tryToOpen = [&](const auto& ready) {
        BecomeAnyone();
        if (small.OpeningFault(LibraryUse::ReadOnly) != kFileInUse) _exit(1);
        ready();
    };
    OtherProcess first(open);
    first.WaitUntilReady();
    EXPECT_EQ(small.OpeningFault(), kFileInUse);
    OtherProcess second(tryToOpen);
    second.WaitUntilReady();
    first.Kill();
    OtherProcess third(open);
    third.WaitUntilReady();
}

}  // namespace
}  // namespace tav
