// A report as PDF.
#pragma once

#include "reports/report_document.h"

#include <string>

namespace tav {

// The bytes of the PDF: the document's pages as they are, its title, the text to be selected and
// searched. The same document gives the same bytes. Throws std::runtime_error when it can't be
// made.
std::string PdfOf(const ReportDocument& document);

}  // namespace tav
