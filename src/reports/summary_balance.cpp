#include "reports/report_grid.h"
#include "reports/summary_parts.h"

#include <array>

namespace tav {
namespace {

constexpr int kDaysOfMEBasis = 260;  // from this day of pregnancy on a heifer is on net energy
constexpr std::array<std::size_t, 3> kMinerals = {0, 1, 4};  // Ca, P, K

// The same stage of the requirement for energy, protein and minerals.
struct Stage {
    const char* Label;
    Single SimulationRecord::*ME;  // null where there is none
    Single SimulationRecord::*NEl;
    Single SimulationRecord::*MP;
    Single MineralRow::*Mineral;
};

using R = SimulationRecord;
using M = MineralRow;

constexpr std::array<Stage, 4> kStages = {
    {{"Maintenance", &R::MEMaint, &R::NEMaint, &R::MPMaint, &M::Maintenance},
     {"Pregnancy", &R::MEPreg, &R::NEPreg, &R::MPPreg, &M::Pregnancy},
     {"Lactation", nullptr, &R::NELact, &R::MPLact, &M::Lactation},
     {"Growth", &R::MEGrowth, &R::NEGrowthDiet, &R::MPGrowth, &M::Growth}}};

Number EnergyOf(const R& r, const Stage& stage) {
    if (!OnMEBasis(r)) return r.*stage.NEl;
    return stage.ME != nullptr ? r.*stage.ME : Single(0);
}

std::string EnergyCell(const R& r, const Stage& stage) {
    if (!OnMEBasis(r)) return Plain(r.*stage.NEl, "0.0");
    return stage.ME != nullptr ? Plain(r.*stage.ME, "0.0") : "N/A";
}

void AddMinerals(const ReportWriter& w, ReportGrid::Cells& cells, Single MineralRow::*field) {
    for (const std::size_t row : kMinerals)
        cells.push_back(w.Units().GramsInSteps(w.Record().MineralRows[row].*field));
}

void AddStages(const ReportWriter& w, ReportGrid& grid) {
    const R& r = w.Record();
    for (const Stage& stage : kStages) {
        ReportGrid::Cells cells = {stage.Label, EnergyCell(r, stage),
                                   w.Units().GramsInSteps(r.*stage.MP)};
        AddMinerals(w, cells, stage.Mineral);
        grid.Row(std::move(cells));
    }
}

void AddTotals(const ReportWriter& w, ReportGrid& grid) {
    const R& r = w.Record();
    Number energyRequired = 0;
    for (const Stage& stage : kStages)
        energyRequired += EnergyOf(r, stage);
    const Number energySupplied = OnMEBasis(r) ? r.TotalME : r.TotalNEl;
    const Number proteinRequired = r.MPPreg + r.MPMaint + r.MPLact + r.MPGrowth;
    const Number proteinSupplied = r.MPFeed * 1000 + r.MPBacterial + r.EndogenousMP;

    const auto add = [&](const char* label, Number energy, Number protein,
                         Single MineralRow::*mineral) {
        ReportGrid::Cells cells = {label, Plain(energy, "0.0"), w.Units().GramsInSteps(protein)};
        AddMinerals(w, cells, mineral);
        grid.Row(std::move(cells));
    };
    add("Total Required", energyRequired, proteinRequired, &M::TAR);
    add("Total Supplied", energySupplied, proteinSupplied, &M::TAS);
    add("Balance", energySupplied - energyRequired, proteinSupplied - proteinRequired,
        &M::Difference);
}

void WriteNote(ReportWriter& w) {
    ReportSink& sink = w.Sink();
    sink.SetFontSize(w.State().BodyFontSize - 2);
    sink.Text("\r\n     *  Note that these mineral supplied values are total ");
    sink.FontItalic = true;
    sink.Text("absorbable");
    sink.FontItalic = false;
    sink.Text(" supplied.");
    sink.SetFontSize(w.State().BodyFontSize);
    w.LineEnds(4);
}

}  // namespace

bool OnMEBasis(const SimulationRecord& r) {
    return r.AnimalType == kReplacementHeifer && r.DaysPregnant < kDaysOfMEBasis;
}

void WriteNutrientBalances(ReportWriter& w) {
    const std::string unit(w.Units().Choose("(g/day)", "(lbs/day)"));
    std::vector<ColumnAlign> columns(6, ColumnAlign::Decimal);
    columns[0] = ColumnAlign::Left;
    ReportGrid grid(w, columns, kFullGrid);
    grid.SetHeadingRows(2);
    grid.Row({"", OnMEBasis(w.Record()) ? "ME" : "NEl", "MP", "Ca", "P", "K"});
    grid.Row({"Requirements", "(Mcal/day)", unit, unit, unit, unit});
    grid.EmptyRow();
    AddStages(w, grid);
    AddTotals(w, grid);
    grid.KeepWhole();
    grid.Write();
    WriteNote(w);
}

}  // namespace tav
