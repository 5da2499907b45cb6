// A report as a PDF file of the user's.
#pragma once

#include "reports/report_document.h"

#include <QString>
#include <string>

namespace tav {

// Writes the document to the file, in place of one of that name. The file is there whole or not at
// all: what stood there before stays until all is written. Gives the reason where it can't be
// written, and an empty text where all is well; raises nothing.
QString WritePdf(const ReportDocument& document, const QString& path);

// The same, and tells the user when it fails: what, where, why and what can be done.
void SavePdf(const ReportDocument& document, const QString& path);

// Asks for a place, with the name of the simulation as a proposal, and saves the document there.
void AskAndSavePdf(const ReportDocument& document);

// The name proposed for the file, without a folder: that of the simulation or, if it has none, the
// document's title, without characters that some systems don't have in names.
std::string ProposedPdfName(const ReportDocument& document);

}  // namespace tav
