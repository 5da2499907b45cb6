// Reports on paper, or in a PDF file where there is no printer.
#pragma once

#include "reports/report_document.h"

#include <memory>
#include <vector>

class QPrinter;
class QWidget;

namespace tav {

// Lets the user choose printer, pages and copies and prints the document, or asks for the place of
// a PDF file where there is no printer or the user has chosen the file. A failure is shown to the
// user; raises nothing.
void PrintReport(const std::shared_ptr<const ReportDocument>& document);

// Prints those pages, from 1, each in its own orientation and in its own size, smaller only where
// the paper is. False where the printer can't be used.
bool PrintPages(QPrinter& printer, const ReportDocument& document, const std::vector<int>& pages);

// The printer set-up dialog: the printer for the next reports, and the page orientation. Takes and
// gives 0 for portrait and 1 for landscape; a cancelled dialog gives what it was given.
int ShowPrinterSetup(int orientation, QWidget* parent);

}  // namespace tav
