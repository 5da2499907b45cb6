#include "cli/progress.h"

#include <cmath>
#include <cstdio>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace tav {
namespace {

constexpr std::chrono::milliseconds kPause(200);

bool IsTerminal() {
#ifdef _WIN32
    return _isatty(2) != 0;
#else
    return isatty(STDERR_FILENO) != 0;
#endif
}

std::string Whole(double value) { return std::to_string(std::llround(value)); }

std::string TimeText(double seconds) {
    if (seconds < 120) return Whole(std::ceil(seconds)) + " s";
    if (seconds < 2 * 3600) return Whole(std::ceil(seconds / 60)) + " min";
    return Whole(std::ceil(seconds / 3600)) + " h";
}

}  // namespace

std::string ProgressText(std::int64_t done, std::int64_t total,
                         std::chrono::duration<double> taken) {
    std::string text = std::to_string(done);
    if (total > 0) text += " of " + std::to_string(total);
    text += " files";
    if (done == 0 || taken.count() <= 0) return text;
    const double rate = static_cast<double>(done) / taken.count();
    text += ", " + Whole(rate) + " a second";
    if (total > done) text += ", " + TimeText(static_cast<double>(total - done) / rate) + " left";
    return text;
}

Progress::Progress() : shown_(IsTerminal()), next_(start_ + kPause) {}

void Progress::Show(std::int64_t done, std::int64_t total) {
    if (!shown_ || Clock::now() < next_) return;
    next_ = Clock::now() + kPause;
    std::fprintf(stderr, "\r\x1b[K%s", ProgressText(done, total, Taken()).c_str());
    std::fflush(stderr);
    onScreen_ = true;
}

void Progress::Clear() {
    if (!onScreen_) return;
    std::fputs("\r\x1b[K", stderr);
    std::fflush(stderr);
    onScreen_ = false;
}

}  // namespace tav
