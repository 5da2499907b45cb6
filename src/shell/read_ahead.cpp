#include "shell/read_ahead.h"

#include "core/simulation_file.h"

#include <algorithm>
#include <system_error>

namespace tav {

void Read(ReadFile& file) {
    file.Failure = nullptr;
    try {
        ReadSimulation(file.File, file.Record);
    } catch (...) {
        file.Failure = std::current_exception();
    }
}

// Taking files in their turn and computing them is a quarter of the work, so more than a few
// readers would only wait.
int ReadAhead::UsefulReaders() {
    constexpr int kMost = 8;
    const auto cores = static_cast<int>(std::thread::hardware_concurrency());
    return std::clamp(cores - 1, 0, kMost);
}

ReadAhead::ReadAhead(NextFile files, int readers) : files_(std::move(files)) {
    try {
        for (int i = 0; i < readers; ++i)
            readers_.emplace_back([this] { RunReader(); });
    } catch (const std::system_error&) {  // those that have started do, and so does none
    }
}

ReadAhead::~ReadAhead() {
    {
        const Lock lock(mutex_);
        stopped_ = true;
    }
    room_.notify_all();
    for (std::thread& reader : readers_)
        reader.join();
}

// Takes the next file and reads it, unlocked. False when there is none.
bool ReadAhead::ReadOne(Lock& lock) {
    Slot& slot = SlotAt(taken_);
    try {
        std::optional<std::string> file = files_();
        ended_ = !file.has_value();
        if (file) slot.Item.File = std::move(*file);
    } catch (...) {
        failure_ = std::current_exception();
        ended_ = true;
    }
    if (ended_) return false;
    slot.Ready = false;
    ++taken_;
    lock.unlock();
    Read(slot.Item);
    lock.lock();
    slot.Ready = true;
    return true;
}

void ReadAhead::RunReader() {
    Lock lock(mutex_);
    while (true) {
        room_.wait(lock, [this] { return stopped_ || ended_ || HasRoom(); });
        if (stopped_ || ended_) break;
        ReadOne(lock);
        ready_.notify_one();
    }
}

// The file handed out last is done with. Readers that wait are woken for many files at once.
void ReadAhead::MakeRoom() {
    freed_ = given_;
    if (taken_ - freed_ <= kWindow / 2) room_.notify_all();
}

ReadFile* ReadAhead::Next() {
    Lock lock(mutex_);
    MakeRoom();
    while (true) {
        const bool waiting = given_ < taken_;
        if (waiting && SlotAt(given_).Ready) return &SlotAt(given_++).Item;
        if (!ended_ && HasRoom()) {
            ReadOne(lock);
        } else if (waiting) {
            ready_.wait(lock);
        } else {
            break;
        }
    }
    if (failure_) std::rethrow_exception(failure_);
    return nullptr;
}

}  // namespace tav
