// Which reports there are for an animal, and how they become a document.
#pragma once

#include "reports/report_sink.h"
#include "reports/report_writer.h"

#include <string>
#include <string_view>
#include <vector>

namespace tav {

// The names of the components for an animal type, in the order in which they are printed.
std::vector<std::string> ReportComponentNames(std::string_view animalType);

// Prepares a document in the sink and opens it: title, fonts, margins, and the zoom of DefaultZoom.
void SetUpDocument(ReportSink& sink, const ReportState& state);

// Runs the marked components of ReportComponentNames, in their order, on the process-wide record,
// keeps the selection in the program's state and closes the document. One that marked[i] is missing
// for is not marked.
void AssembleReports(ReportSink& sink, ReportState& state, const std::vector<bool>& marked);

// The selection of the components as it was kept, for the animal at hand. One that was kept for the
// other kind of animal, calf or not, is forgotten.
std::vector<bool> KeptSelection(std::size_t components);

// A zoom as DefaultZoom has it: one of four words, or a percentage. What is neither is 100 percent.
void SetZoom(ReportSink& sink, std::string_view zoom);

}  // namespace tav
