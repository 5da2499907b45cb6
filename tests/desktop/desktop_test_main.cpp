// All tests of one process share an application, on a display that isn't there.
//
// DISPLAY_SIZE is its size in the glass's own pixels and the scale of the letters, "1366x768x1".
#include "desktop/application.h"
#include "support/temporary_folder.h"

#include <QApplication>
#include <fstream>
#include <iostream>

#include <gtest/gtest.h>

namespace {

struct Display {
    int Width = 1366, Height = 768, Scale = 1;
};

Display WantedDisplay() {
    Display display;
    const QByteArrayList parts = qgetenv("DISPLAY_SIZE").split('x');
    if (parts.size() == 3) display = {parts[0].toInt(), parts[1].toInt(), parts[2].toInt()};
    return display;
}

// The display's size counts in the program's own pixels there.
void Describe(const Display& display, const std::string& path) {
    std::ofstream(path) << R"({"screens":[{"name":"display","x":0,"y":0,"width":)"
                        << display.Width / display.Scale << R"(,"height":)"
                        << display.Height / display.Scale
                        << R"(,"logicalDpi":96,"logicalBaseDpi":96,"dpr":)" << display.Scale
                        << "}]}";
}

// What Qt complains of is a fault of ours, but for what a display that isn't there can't do.
void Listen(QtMsgType type, const QMessageLogContext& /*context*/, const QString& text) {
    if (text.startsWith(QLatin1String("This plugin does not support "))) return;
    std::cerr << text.toStdString() << '\n';
    if (type == QtWarningMsg || type == QtCriticalMsg) ADD_FAILURE() << text.toStdString();
}

}  // namespace

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const tav::TemporaryFolder folder;
    Describe(WantedDisplay(), folder.Path("display.json"));
    qputenv("QT_QPA_PLATFORM",
            QByteArray::fromStdString("offscreen:configfile=" + folder.Path("display.json")));
    QApplication application(argc, argv);
    qInstallMessageHandler(Listen);
    QCoreApplication::setApplicationName(QStringLiteral("TAV Dairy Cattle Program"));
    tav::SetUpDesktop();
    return RUN_ALL_TESTS();
}
