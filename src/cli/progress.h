// A line on a terminal that tells how far a long piece of work has got.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace tav {

// "1200 of 20000 files, 15300 a second, 2 s left". A total of 0 is one that isn't known, and then
// nothing is said of the time left.
std::string ProgressText(std::int64_t done, std::int64_t total,
                         std::chrono::duration<double> taken);

// Writes it to standard error a few times a second, over the line before, and nothing at all when
// that is no terminal.
class Progress {
  public:
    Progress();

    bool IsShown() const { return shown_; }
    void Show(std::int64_t done, std::int64_t total);
    // Takes the line away, so that something else can be written there.
    void Clear();

    std::chrono::duration<double> Taken() const { return Clock::now() - start_; }

  private:
    using Clock = std::chrono::steady_clock;

    bool shown_;
    bool onScreen_ = false;
    Clock::time_point start_ = Clock::now();
    Clock::time_point next_;
};

}  // namespace tav
