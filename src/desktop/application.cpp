#include "desktop/application.h"

#include "core/program_state.h"
#include "desktop/desktop.h"
#include "desktop/own_folder.h"
#include "desktop/pictures.h"
#include "desktop/printing.h"
#include "desktop/signals.h"
#include "desktop/theme.h"
#include "desktop/user_locale.h"
#include "desktop/whats_this.h"
#include "feeds/feed_library.h"
#include "reports/vs_printer.h"
#include "store/sqlite_engine.h"

#include <QApplication>

// Outside of any namespace, as the resource compiler has it.
static void InitPictures() { Q_INIT_RESOURCE(pictures); }

namespace tav {
namespace {

int ExitStatus() { return TheProgram().FatalError == 0 ? 0 : 1; }

// Nothing leaves an event without the user being told.
class Application : public QApplication {
  public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override {
        try {
            return QApplication::notify(receiver, event);
        } catch (const std::exception& fault) {
            TheDesktop().EndWithFault(fault.what());
            return true;
        }
    }
};

}  // namespace

void SetUpDesktop() {
    static SqliteEngine library;
    InitPictures();
    ApplyTheme();
    TakeLocale(QLocale::system());
    SetLibraryEngine(library);
    SetReportPrinter(PrintReport);
    InstallHelpKeys();
    QApplication::setWindowIcon(IconOf("Logo"));
    QApplication::setQuitOnLastWindowClosed(false);
}

int RunDesktop(int argc, char** argv) {
    const Application application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("TAV Dairy Cattle Program"));
    QGuiApplication::setDesktopFileName(QStringLiteral("tav-dairy"));
    SetUpDesktop();
    EndOnSignals();
    if (OfferOwnFolder()) return 0;
    TheDesktop().Start();
    return TheProgram().Ended ? ExitStatus() : QApplication::exec();
}

}  // namespace tav
