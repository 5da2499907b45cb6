// The components of the reports. Each reads the record and writes its paragraphs and tables; none
// changes the record.
#pragma once

#include "reports/report_writer.h"

namespace tav {

void WriteSummaryReport(ReportWriter& writer);
void WriteEnergyAndProteinSupply(ReportWriter& writer);  // the one that lies on its side
void WriteDuodenalAminoAcidSupply(ReportWriter& writer);
void WriteDryMatterIntake(ReportWriter& writer);
void WriteMaintenanceRequirements(ReportWriter& writer);
void WriteGrowthRequirements(ReportWriter& writer);
void WriteTargetWeightsAndADG(ReportWriter& writer);
void WritePregnancyRequirements(ReportWriter& writer);
void WriteLactationRequirements(ReportWriter& writer);
void WriteReservesRequirements(ReportWriter& writer);
void WriteMineralRequirements(ReportWriter& writer);
void WriteCalfRequirements(ReportWriter& writer);

}  // namespace tav
