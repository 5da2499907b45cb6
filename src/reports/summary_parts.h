// The tables of the summary report that hold results.
#pragma once

#include "reports/report_writer.h"

namespace tav {

// Energy, protein and minerals: requirement by requirement against supply, and the note below it.
void WriteNutrientBalances(ReportWriter& writer);

// "Animal Performance" beside "Protein Values".
void WritePerformance(ReportWriter& writer);

// "Diet Concentrations" beside "Target Diet Concentrations".
void WriteDietConcentrations(ReportWriter& writer);

// Whether energy is reported as metabolisable energy: for a heifer up to late pregnancy. All others
// are reckoned on net energy for lactation.
bool OnMEBasis(const SimulationRecord& record);

}  // namespace tav
