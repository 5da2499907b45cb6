#include "reports/components.h"
#include "reports/report_grid.h"

namespace tav {

void WriteDryMatterIntake(ReportWriter& w) {
    const SimulationRecord& r = w.Record();
    w.StartComponent(6, "Dry Matter Intake");
    ReportGrid grid(w, {ColumnAlign::Left}, kFullGrid);
    grid.Row({"Temperature Adjustment Factor (Heifers Only) :  " + Plain(r.DMITempFactor, "0.0")});
    grid.Row({"Coat Condition Adjustment Factor :  " + Plain(r.DMICoatFactor, "0.0")});
    grid.Row({"Dry Matter Intake :  " + w.Units().WeightPerDay(r.PredictedDMI, "0.0")});
    grid.Write();
}

}  // namespace tav
