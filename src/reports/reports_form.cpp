#include "reports/reports_form.h"

#include "core/platform.h"
#include "core/simulation_record.h"
#include "forms/context_help.h"
#include "model/computations.h"
#include "reports/generator.h"

#include <algorithm>

namespace tav {
namespace {

constexpr int kRoomBelowPane = 300;

// The hourglass, for as long as the object lives.
class Hourglass {
  public:
    Hourglass() { ThePlatform().ShowHourglass(true); }
    ~Hourglass() { ThePlatform().ShowHourglass(false); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;
};

}  // namespace

ReportsForm::ReportsForm() : ScreenForm("Reports") {
    lblReportComponents.Caption = "Report Components";
    cmdPrintPreview.Caption = "&View Report";
    cmdPrint.Caption = "&Print Report";
    cmdPrinterSetup.Caption = "Printer &Setup";
    lstReportComponents.MultiSelect = true;
    vp.Visible = false;
    PlaceControls();
    TieEvents();
}

void ReportsForm::PlaceControls() {
    lblReportComponents.Move(240, 120, 4200, 240);
    lstReportComponents.Move(240, 360, 4200, 2310);
    cmdPrintPreview.Move(4800, 360, 1935, 495);
    cmdPrint.Move(4800, 975, 1935, 495);
    cmdPrinterSetup.Move(4800, 1590, 1935, 495);
    vp.Move(240, 2880, 11520, 4620);
}

void ReportsForm::TieEvents() {
    cmdPrintPreview.Click = [this] { cmdPrintPreview_Click(); };
    cmdPrint.Click = [this] { cmdPrint_Click(); };
    cmdPrinterSetup.Click = [this] { cmdPrinterSetup_Click(); };
    for (Control* const control : Controls()) {
        control->MouseUp = [control](MouseButton button) {
            if (button == MouseButton::Right) OpenContextMenu(*control);
        };
    }
}

void ReportsForm::Form_Load() {
    RunComputations();
    ScreenForm::Form_Load();
    Form_Resize();  // the pane's top has been scaled since the screen got its size
}

void ReportsForm::Form_Resize() {
    const Number height = Height - kRoomBelowPane - vp.Top;
    vp.Height = height > 0 ? height : 0;
    vp.Visible = false;
}

void ReportsForm::SetUpReports() {
    const std::vector<std::string> names = ReportComponentNames(TheSimulation().AnimalType);
    lstReportComponents.Clear();
    for (const std::string& name : names)
        lstReportComponents.AddItem(name);
    const std::vector<bool> kept = KeptSelection(names.size());
    for (int i = 0; i < lstReportComponents.ListCount(); ++i)
        lstReportComponents.SetSelected(i, kept[static_cast<std::size_t>(i)]);
    vp.Visible = false;
    printer_.Orientation = kPortrait;
}

std::vector<bool> ReportsForm::Marked() const {
    std::vector<bool> marked(lstReportComponents.Items().size());
    for (int i = 0; i < lstReportComponents.ListCount(); ++i)
        marked[static_cast<std::size_t>(i)] = lstReportComponents.Selected(i);
    return marked;
}

bool ReportsForm::HasRation() {
    if (TheSimulation().TotalDMI != 0) return true;
    ThePlatform().ShowMessage({"Your animal must have a ration before reports can be generated.",
                               "No Ration Specified", MessageIcon::Critical});
    return false;
}

bool ReportsForm::HasSelection() {
    const std::vector<bool> marked = Marked();
    if (std::find(marked.begin(), marked.end(), true) != marked.end()) return true;
    ThePlatform().ShowMessage({"You have not selected any report components to view.", "Error",
                               MessageIcon::Information});
    return false;
}

void ReportsForm::MakeDocument(bool preview, int orientation) {
    if (!HasRation()) return;
    const Hourglass hourglass;
    if (!HasSelection()) return;
    printer_.Preview = preview;
    printer_.Orientation = orientation;
    Assemble();
    if (preview) vp.Visible = true;
}

void ReportsForm::Assemble() {
    SetUpDocument(printer_, state_);
    AssembleReports(printer_, state_, Marked());
}

void ReportsForm::cmdPrintPreview_Click() { MakeDocument(true, state_.SavedOrientation); }

void ReportsForm::cmdPrint_Click() { MakeDocument(false, kPortrait); }

// An orientation that the user chooses is the one from which the next document starts. A document
// on show is made anew with it, and goes where the last one went.
void ReportsForm::cmdPrinterSetup_Click() {
    const int page = printer_.PreviewPage();
    printer_.Orientation = state_.SavedOrientation != kPortrait ? kLandscape : kPortrait;
    printer_.PrintDialog();
    if (vp.Visible) {
        Assemble();
        printer_.SetPreviewPage(page);
    }
    state_.SavedOrientation = static_cast<std::int16_t>(printer_.Orientation);
}

}  // namespace tav
