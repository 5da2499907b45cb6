// Which printer the reports go to.
#pragma once

#include <QPrinterInfo>

namespace tav {

// The printer that the user has chosen in this run of the program, as long as it is there,
// otherwise the system's own.
QPrinterInfo ChosenPrinter();

// Whether reports go to a PDF file: by choice, or because there is no printer.
bool PrintsToFile();

}  // namespace tav
