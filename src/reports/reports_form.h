// The reports screen, frmReports: which reports go into the document, its preview and its print.
#pragma once

#include "forms/buttons.h"
#include "forms/list_box.h"
#include "forms/passive_controls.h"
#include "forms/screen_form.h"
#include "reports/report_writer.h"
#include "reports/vs_printer.h"

#include <vector>

namespace tav {

// It stores nothing: reports only read the record. Loading it runs the model.
class ReportsForm : public ScreenForm {
  public:
    ReportsForm();

    Label lblReportComponents{*this, "lblReportComponents"};
    ListBox lstReportComponents{*this, "lstReportComponents"};
    CommandButton cmdPrintPreview{*this, "cmdPrintPreview"};
    CommandButton cmdPrint{*this, "cmdPrint"};
    CommandButton cmdPrinterSetup{*this, "cmdPrinterSetup"};
    DocumentPane vp{*this, "vp"};

    // Fills the list for the animal at hand, marks what was marked for the last document, and hides
    // the pane.
    void SetUpReports();
    void SetUp() override { SetUpReports(); }

  private:
    void PlaceControls();
    void TieEvents();
    void Form_Load() override;
    void Form_Resize() override;
    void cmdPrintPreview_Click();
    void cmdPrint_Click();
    void cmdPrinterSetup_Click();

    // Whether there is a ration to report on; tells the user otherwise.
    bool HasRation();
    // Whether anything is marked; tells the user otherwise.
    bool HasSelection();
    // Makes the document of the marked components and sends it to the pane or the printer.
    void MakeDocument(bool preview, int orientation);
    void Assemble();
    std::vector<bool> Marked() const;

    VSPrinter printer_{vp};
    ReportState state_;
};

}  // namespace tav
