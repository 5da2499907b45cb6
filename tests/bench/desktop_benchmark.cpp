// How fast the desktop program answers, and how much memory it takes. Needs a display; run it with
// tools/bench_desktop.sh.
//
//   desktop_benchmark          all figures
//   desktop_benchmark NUMBER   only the start, timed from that moment (see FirstPaint)
#include "bench/first_paint.h"
#include "core/simulation_record.h"
#include "desktop/application.h"
#include "desktop/desktop.h"
#include "desktop/form_view.h"
#include "desktop/own_folder.h"
#include "forms/controls.h"
#include "forms/form_registry.h"
#include "shell/parent_form.h"
#include "support/temporary_folder.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QMessageBox>
#include <QTableView>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace tav {
namespace {

constexpr int kStarts = 20;
constexpr int kEdits = 50;
constexpr int kPreviews = 10;
constexpr int kFeeds = 255;

// What isn't done is not measured.
void Require(bool done) {
    if (done) return;
    std::fprintf(stderr, "The program did not do what is to be measured.\n");
    std::_Exit(1);
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

void Report(const char* what, double value, const char* unit, double target) {
    std::printf("%-46s %8.1f %-3s (at most %g) %s\n", what, value, unit, target,
                value <= target ? "" : "MISSED");
    std::fflush(stdout);
}

// Milliseconds from the start of the process to its first window.
double StartOf(const std::string& program) {
    const std::string command = "'" + program + "' " + std::to_string(SharedClock());
    FILE* const output = popen(command.c_str(), "r");
    long long took = 0;
    Require(output != nullptr && std::fscanf(output, "%lld", &took) == 1);
    pclose(output);
    return static_cast<double>(took) / 1e6;
}

void MeasureStart(const std::string& own, const std::string& bare) {
    std::vector<double> ours, theirs;
    for (int i = -2; i < kStarts; ++i) {  // the first two warm the cache
        const double our = StartOf(own);
        const double their = StartOf(bare);
        if (i < 0) continue;
        ours.push_back(our);
        theirs.push_back(their);
    }
    Report("start to the first window", Median(ours), "ms", 100);
    Report("  of a program with nothing but a window", Median(theirs), "ms", 100);
    Report("  ratio", Median(ours) / Median(theirs), "", 3);
}

void Paint() {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

template <class Action>
double Milliseconds(const Action& action) {
    const long long begun = SharedClock();
    action();
    Paint();
    return static_cast<double>(SharedClock() - begun) / 1e6;
}

void Press(QWidget& widget, int key, const QString& text = {}) {
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(&widget, &press);
}

QWidget& WidgetOf(const char* form, const char* control) {
    Form& shown = *TheForms().Find(form);
    return TheDesktop().ViewOf(shown)->ViewOf(*shown.Find(control))->Widget();
}

void GoTo(const char* screen) {
    TheDesktop().Perform([screen] {
        dynamic_cast<ParentForm&>(*TheForms().Find("frmParent")).Toolbar.UserClickButton(screen);
    });
    Paint();
}

double ResidentMegabytes() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.rfind("VmRSS:", 0) == 0) return std::stod(line.substr(6)) / 1024;
    }
    return 0;
}

void MeasureMemory() {
    for (const char* const screen : {"Inputs", "Feeds", "Ration", "Reports"}) {
        GoTo(screen);
        const std::string what = std::string("memory on the ") + screen + " screen";
        Report(what.c_str(), ResidentMegabytes(), "MB", 80);
    }
}

// Enter in a cell, until the results of the new ration stand on the screen.
void MeasureEdits() {
    GoTo("Ration");
    auto& table = dynamic_cast<QTableView&>(WidgetOf("frmRation", "grdRation"));
    table.setFocus();
    table.setCurrentIndex(table.model()->index(1, 0));
    Paint();
    std::vector<double> took;
    for (int i = 0; i < kEdits; ++i) {
        Press(table, Qt::Key_1 + i % 9, QString(QChar('1' + i % 9)));
        Paint();
        QWidget* const editor = table.viewport()->findChild<QWidget*>();
        Require(editor != nullptr);
        took.push_back(Milliseconds([editor] { Press(*editor, Qt::Key_Return); }));
    }
    Require(TheSimulation().Feeds[0].Qty == 1 && TheSimulation().Feeds[8].Qty == 9);
    Report("an edit of a ration of 255 feeds", Median(took), "ms", 16);
    Report("  the slowest", *std::max_element(took.begin(), took.end()), "ms", 16);
}

void MeasurePreview() {
    GoTo("Reports");
    Form& reports = *TheForms().Find("frmReports");
    auto& list = dynamic_cast<ListBox&>(*reports.Find("lstReportComponents"));
    auto& button = dynamic_cast<QAbstractButton&>(WidgetOf("frmReports", "cmdPrintPreview"));
    TheDesktop().Perform([&list] {
        for (int i = 0; i < list.ListCount(); ++i)
            list.UserMark(i, true);
    });
    std::vector<double> took;
    for (int i = 0; i < kPreviews; ++i)
        took.push_back(Milliseconds([&button] { button.click(); }));
    Require(dynamic_cast<DocumentPane&>(*reports.Find("vp")).PageCount() > 8);
    Report("preview of all reports of a cow", Median(took), "ms", 500);
    Report("memory with all reports on the screen", ResidentMegabytes(), "MB", 80);
}

// A cow with as many feeds as a ration can have.
void FillUp() {
    SimulationRecord& r = TheSimulation();
    const std::vector<FeedRecord> own(r.Feeds.begin(), r.Feeds.begin() + r.NumFeeds);
    for (int i = r.NumFeeds; i < kFeeds; ++i) {
        r.Feeds.resize(static_cast<std::size_t>(i) + 1);
        FeedRecord& feed = r.Feeds.back();
        feed = own[static_cast<std::size_t>(i) % own.size()];
        feed.Name += " " + std::to_string(i);
        feed.Qty = feed.Qty / 20;
    }
    r.NumFeeds = kFeeds;
}

// Begins with a sample on the reports screen. Messages are closed as they come.
void Begin(const TemporaryFolder& folder) {
    std::filesystem::copy_file(TAV_SIMULATIONS "Lactating Cow.tav",
                               folder.Path("TAV Dairy Cattle Default Simulation Data File.tav"));
    TheDesktop().Platform().SetProgramFolder(folder.Path("."));
    auto* const closer = new QTimer(qApp);
    QObject::connect(closer, &QTimer::timeout, [] {
        if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            box->accept();
    });
    closer->start(20);
    TheDesktop().Start();
    TheDesktop().Perform([] {
        dynamic_cast<CommandButton&>(*TheForms().Find("frmSplash")->Find("cmdAcceptTerms"))
            .UserClick();
    });
    Paint();
}

int MeasureAll(int argc, char** argv) {
    const std::string own = argv[0];
    MeasureStart(own, own.substr(0, own.rfind('/') + 1) + "bare_window");
    QApplication application(argc, argv);
    SetUpDesktop();
    const TemporaryFolder folder;
    Begin(folder);
    MeasureMemory();
    MeasurePreview();
    GoTo("Inputs");
    FillUp();
    MeasureEdits();
    std::_Exit(0);
}

// As the program itself begins.
int StartOnce(int argc, char** argv) {
    QApplication application(argc, argv);
    const FirstPaint end(argv[1]);
    SetUpDesktop();
    if (OfferOwnFolder()) return 1;
    TheDesktop().Start();
    return QApplication::exec();
}

}  // namespace
}  // namespace tav

int main(int argc, char** argv) {
    return argc > 1 ? tav::StartOnce(argc, argv) : tav::MeasureAll(argc, argv);
}
