#include "cli/console.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <system_error>

namespace tav {
namespace {

[[noreturn]] void FailOutput() {
    if (errno == EPIPE) throw OutputClosed{};
    throw std::runtime_error("the output could not be written: " +
                             std::generic_category().message(errno));
}

}  // namespace

void WriteOutput(std::string_view text) {
#ifdef SIGPIPE
    // A closed pipe is to come back as an error of the write.
    static const auto ignored = std::signal(SIGPIPE, SIG_IGN);
    static_cast<void>(ignored);
#endif
    errno = 0;
    if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size()) FailOutput();
}

void FlushOutput() {
    errno = 0;
    if (std::fflush(stdout) != 0) FailOutput();
}

void WriteMessage(std::string_view text) {
    std::fflush(stdout);
    const std::string line = "tav: " + std::string(text) + "\n";
    std::fputs(line.c_str(), stderr);
}

}  // namespace tav
