#include "desktop/signals.h"

#include <QtGlobal>

#ifdef Q_OS_UNIX

#include <QApplication>
#include <QSocketNotifier>
#include <array>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace tav {
namespace {

constexpr int kSignalStatus = 128;

// What the handler writes, the event loop reads.
std::array<int, 2> ends = {-1, -1};

extern "C" void TellEventLoop(int signal) {
    const auto number = static_cast<unsigned char>(signal);
    // A full pipe holds enough requests already.
    [[maybe_unused]] const ssize_t written = write(ends[1], &number, 1);
}

void EndNow() {
    unsigned char number = 0;
    if (read(ends[0], &number, 1) == 1) QCoreApplication::exit(kSignalStatus + number);
}

}  // namespace

void EndOnSignals() {
    if (pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
    auto* const notifier = new QSocketNotifier(ends[0], QSocketNotifier::Read, qApp);
    QObject::connect(notifier, &QSocketNotifier::activated, [] { EndNow(); });
    struct sigaction action = {};
    action.sa_handler = TellEventLoop;
    action.sa_flags = SA_RESTART;
    for (const int signal : {SIGTERM, SIGINT, SIGHUP})
        sigaction(signal, &action, nullptr);
}

}  // namespace tav

#else

namespace tav {

void EndOnSignals() {}

}  // namespace tav

#endif
