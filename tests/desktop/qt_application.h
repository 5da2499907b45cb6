// What every test of the desktop needs before its first widget, font or image.
#pragma once

#include <QApplication>

namespace tav {

// The Qt application of this process, on no screen. Made when it is asked for the first time.
inline QApplication& QtApplication() {
    if (auto* const running = dynamic_cast<QApplication*>(QCoreApplication::instance())) {
        return *running;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int count = 1;
    static char name[] = "desktop_tests";
    static char* arguments[] = {name, nullptr};
    // Never taken down: the library's own static objects, which it would need, may go before it.
    static auto* const application = new QApplication(count, arguments);
    return *application;
}

}  // namespace tav
