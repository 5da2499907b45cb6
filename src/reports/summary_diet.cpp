#include "reports/report_grid.h"
#include "reports/summary_parts.h"

namespace tav {
namespace {

constexpr int kDiet = 1;  // the columns
constexpr int kTarget = 2;
constexpr std::size_t kCa = 0;
constexpr std::size_t kP = 1;

void SetFibreAndEnergy(const ReportWriter& w, ReportGrid& grid) {
    const SimulationRecord& r = w.Record();
    const auto percent = [&](int row, const char* label, Number value, const char* mask) {
        grid.Set(row, kDiet, label + Plain(value, mask, " (%DM)"));
    };
    percent(3, "NDF :  ", r.DietNDF * 100, "0.0");
    percent(4, "Forage NDF :  ", r.ForageNDFTotal / r.TotalDMI * 100, "0.0");
    percent(5, "ADF :  ", r.DietADF * 100, "0.0");
    percent(6, "NFC :  ", r.TotalNFC / r.TotalDMI * 100, "0.0");
    percent(7, "Undiscounted TDN :  ", r.UndiscountedTDNFraction * 100, "0");

    const std::string unit(w.Units().Choose(" (Mcal/kg DM)", " (Mcal/lbs DM)"));
    const auto density = [&](int row, const char* label, Single value) {
        grid.Set(row, kDiet, label + w.Units().DensityNumber(value, "0.00") + unit);
    };
    density(8, "ME :  ", r.DietME);
    density(9, "NEl :  ", r.DietNEl);
    density(10, "NEg :  ", r.DietNEg);
}

void SetMineralsAndFat(const ReportWriter& w, ReportGrid& grid) {
    const SimulationRecord& r = w.Record();
    const auto mineral = [&](int row, const char* label, std::size_t index) {
        const Number share = r.MineralRows[index].TotalDietary / 1000 / r.TotalDMI * 100;
        grid.Set(row, kDiet, label + Plain(share, "0.0", " (%DM)"));
    };
    mineral(11, "Ca :  ", kCa);
    mineral(12, "P :  ", kP);
    grid.Set(13, kDiet, "Ether-Extract :  " + Plain(r.DietFatPercent, "0.0", " (%DM)"));
    grid.Set(14, kDiet,
             "DCAD :  " + w.Units().DensityNumber(r.DCAD, "0") +
                 std::string(w.Units().Choose(" (mEQ/kg)", " (mEQ/lb)")));
}

// What each requirement comes to in a kilogram of the predicted intake. Grams per kilogram become
// pounds per pound.
void SetTargets(const ReportWriter& w, ReportGrid& grid) {
    const SimulationRecord& r = w.Record();
    const ReportUnits& units = w.Units();
    grid.Set(3, kTarget,
             (OnMEBasis(r) ? "ME :  " : "NEl :  ") +
                 units.DensityNumber(r.EnergyDensityRequired, "0.00") +
                 std::string(units.Choose(" (Mcal/kg)", " (Mcal/lbs)")));
    const auto grams = [&](int row, const char* label, Single value) {
        const std::string number =
            units.Metric() ? Plain(value, "0", " (g/kg)")
                           : Plain(value * 1 / 1000 * kPoundsPerKilogram / kPoundsPerKilogram,
                                   "0.0000", " (lbs/lbs)");
        grid.Set(row, kTarget, label + number);
    };
    grams(4, "MP :  ", r.MPDensityRequired);
    grams(6, "Ca :  ", r.CaDensityRequired);
    grams(7, "P :  ", r.PDensityRequired);
}

}  // namespace

void WriteDietConcentrations(ReportWriter& w) {
    ReportGrid grid = TextColumns(w, 2);
    grid.SetHeadingRows(1);
    grid.Row({"Diet Concentrations", "Target Diet Concentrations"});
    SetFibreAndEnergy(w, grid);
    SetMineralsAndFat(w, grid);
    SetTargets(w, grid);
    grid.KeepWhole();
    grid.Write();
}

}  // namespace tav
