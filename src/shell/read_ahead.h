// Reads simulation files ahead on several cores and hands them out in their order.
#pragma once

#include "core/simulation_record.h"

#include <condition_variable>
#include <cstdint>
#include <exception>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace tav {

// The path of the next file, nothing behind the last one.
using NextFile = std::function<std::optional<std::string>()>;

// A file that has been read into a record of its own.
struct ReadFile {
    std::string File;
    SimulationRecord Record;     // of no use after a failure
    std::exception_ptr Failure;  // a FileFault, or that memory ran out; empty if all is well
};

// Reads file.File. Throws nothing.
void Read(ReadFile& file);

class ReadAhead {
  public:
    // files is asked by one thread at a time, and not before the first Next when there are no
    // readers. What it throws comes out of Next, behind the files before. Where the system has no
    // more threads to give, there are fewer readers.
    ReadAhead(NextFile files, int readers);
    ReadAhead(const ReadAhead&) = delete;
    ReadAhead& operator=(const ReadAhead&) = delete;
    // Waits for the files that are being read.
    ~ReadAhead();

    // The next file, null behind the last one. It is the caller's until the next call. Reads it
    // itself when no reader has got to it.
    ReadFile* Next();

    // How many threads are worth while beside the one that calls Next.
    static int UsefulReaders();

  private:
    // As many files as are kept at most: read, being read and in use.
    static constexpr std::int64_t kWindow = 64;

    struct Slot {
        ReadFile Item;
        bool Ready = false;
    };
    using Lock = std::unique_lock<std::mutex>;

    Slot& SlotAt(std::int64_t place) { return slots_[static_cast<std::size_t>(place % kWindow)]; }
    bool HasRoom() const { return taken_ < freed_ + kWindow; }
    void RunReader();
    void MakeRoom();
    bool ReadOne(Lock& lock);

    NextFile files_;
    std::vector<Slot> slots_{static_cast<std::size_t>(kWindow)};
    std::mutex mutex_;
    std::condition_variable room_, ready_;
    std::int64_t taken_ = 0;  // files that have been asked for
    std::int64_t given_ = 0;  // files that Next has handed out
    std::int64_t freed_ = 0;  // files that the caller has done with
    bool ended_ = false;      // there are no more files
    bool stopped_ = false;
    std::exception_ptr failure_;  // of files_
    std::vector<std::thread> readers_;
};

}  // namespace tav
