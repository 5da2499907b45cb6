#include "reports/vs_printer.h"

namespace tav {
namespace {

ReportPrinter& Printer() {
    static ReportPrinter printer;
    return printer;
}

}  // namespace

AssembledReport& LastReport() {
    static AssembledReport report;
    return report;
}

void SetReportPrinter(ReportPrinter printer) { Printer() = std::move(printer); }

void VSPrinter::EndDoc() {
    if (CurrentPage() == 0) return;
    PageLayout::EndDoc();
    pane_.ZoomMode = ZoomMode;
    pane_.Zoom = Zoom;
    LastReport() = {Document(), !Preview, ZoomMode, Zoom};
    if (Preview) {
        pane_.SetDocument(Document());
    } else if (Printer()) {
        Printer()(Document());
    }
}

}  // namespace tav
