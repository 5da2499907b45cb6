// The sink of the reports screen: what is laid out goes to the screen's pane or to the printer.
#pragma once

#include "forms/document_pane.h"
#include "reports/page_layout.h"

#include <functional>
#include <memory>

namespace tav {

// The document that was closed last in this run of the program, and where it went.
struct AssembledReport {
    std::shared_ptr<const ReportDocument> Document;  // null before the first one
    bool Printed = false;
    tav::ZoomMode ZoomMode = tav::ZoomMode::Percentage;  // of the pane
    int Zoom = 100;
};
AssembledReport& LastReport();

// Who brings a document to paper. Until one is set, what goes to the printer is only kept as the
// last report. It may fail with a message of its own to the user, but raises nothing.
using ReportPrinter = std::function<void(std::shared_ptr<const ReportDocument>)>;
void SetReportPrinter(ReportPrinter printer);

class VSPrinter : public PageLayout {
  public:
    explicit VSPrinter(DocumentPane& pane) : pane_(pane) {}

    void EndDoc() override;
    int PreviewPage() const override { return pane_.PreviewPage(); }
    void SetPreviewPage(int page) override { pane_.SetPreviewPage(page); }

  private:
    DocumentPane& pane_;
};

}  // namespace tav
