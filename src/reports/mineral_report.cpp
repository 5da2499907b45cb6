#include "reports/components.h"
#include "reports/mineral_tables.h"
#include "reports/report_grid.h"

#include <functional>

namespace tav {
namespace {

constexpr std::string_view kLabelWidth = "Total Absorbable Mineral Supplied      ";

using Cell = std::function<std::string(const MineralRow& row, std::size_t column)>;

// The report begins on a page of its own, upright.
void StartPage(ReportWriter& w) {
    if (w.IsEmptyDocument()) return;
    w.State().OrientationRestorePending = false;
    w.Sink().Orientation = kPortrait;
    w.Sink().NewPage();
}

ReportGrid StartTable(ReportWriter& w, const MineralTableKind& table) {
    std::vector<ColumnAlign> columns(table.Names.size() + 1, ColumnAlign::Decimal);
    columns[0] = ColumnAlign::Left;
    ReportGrid grid(w, columns, kFullGrid);
    grid.SetHeadingRows(2);
    grid.FixWidth(1, std::string(kLabelWidth));
    grid.FillWidth();
    ReportGrid::Cells heads = {""};
    heads.insert(heads.end(), table.Names.begin(), table.Names.end());
    grid.Row(std::move(heads));
    return grid;
}

void AddRow(const ReportWriter& w, ReportGrid& grid, const MineralTableKind& table,
            const char* label, const Cell& cell) {
    ReportGrid::Cells cells = {label};
    for (std::size_t column = 0; column < table.Names.size(); ++column)
        cells.push_back(cell(w.Record().MineralRows[table.FirstRow + column], column));
    grid.Row(std::move(cells));
}

// Vitamins are given per pound in English units, minerals as they are.
std::string Density(const ReportWriter& w, const MineralTableKind& table, Single density,
                    const char* mask) {
    if (table.IsVitamins) return w.Units().DensityNumber(density, mask);
    if (table.DensityFactor == 1) return Plain(density, mask);
    return Plain(density * table.DensityFactor, mask);
}

bool HasDoneGrowing(const SimulationRecord& r) {
    return !(r.CalvingInterval + r.AgeAtFirstCalving > r.Age) && r.LactationNumber > 1;
}

ReportGrid AdultTable(ReportWriter& w, const MineralTableKind& table) {
    const auto amount = [&](const char* label, ReportGrid& grid, Single MineralRow::*field) {
        AddRow(w, grid, table, label, [&](const MineralRow& row, std::size_t) {
            return Plain(row.*field, table.AmountMask);
        });
    };
    const bool noGrowth = table.IsVitamins || HasDoneGrowing(w.Record());
    ReportGrid grid = StartTable(w, table);
    AddRow(w, grid, table, "",
           [&](const MineralRow&, std::size_t column) { return AmountUnit(table, column); });
    amount("Maintenance (Fecal)", grid, &MineralRow::Fecal);
    AddRow(w, grid, table, "Maintenace (Urine, Sweat & Misc.)",
           [&](const MineralRow& row, std::size_t) {
               return Plain(row.Maintenance - row.Fecal, table.AmountMask);
           });
    amount("Pregnancy", grid, &MineralRow::Pregnancy);
    amount("Lactation", grid, &MineralRow::Lactation);
    AddRow(w, grid, table, "Growth", [&](const MineralRow& row, std::size_t) {
        return noGrowth ? "N/A" : Plain(row.Growth, table.AmountMask);
    });
    amount("Total Absorbed Required (TAR)", grid, &MineralRow::TAR);
    grid.EmptyRow();
    amount("Total Dietary Supplied", grid, &MineralRow::TotalDietary);
    amount("Total Absorbable Supplied (TAS)", grid, &MineralRow::TAS);
    amount("Difference (TAS-TAR)", grid, &MineralRow::Difference);
    grid.EmptyRow();
    AddRow(w, grid, table, "Ration Density", [&](const MineralRow& row, std::size_t column) {
        return Density(w, table, row.RationDensity, table.DensityMask) + " " +
               DensityUnit(table, column, w.Units());
    });
    grid.KeepWhole();
    return grid;
}

ReportGrid CalfTable(ReportWriter& w, const MineralTableKind& table) {
    ReportGrid grid = StartTable(w, table);
    AddRow(w, grid, table, "Ration Density", [&](const MineralRow&, std::size_t column) {
        return CalfDensityUnit(table, column, w.Units());
    });
    // The target of a major mineral is a percentage as it stands.
    AddRow(w, grid, table, "Desired Ration Density", [&](const MineralRow& row, std::size_t) {
        return table.IsVitamins ? Density(w, table, row.DesiredRationDensity, table.DesiredMask)
                                : Plain(row.DesiredRationDensity, table.DesiredMask);
    });
    grid.EmptyRow();
    AddRow(w, grid, table, "Actual Ration Density", [&](const MineralRow& row, std::size_t) {
        return Density(w, table, row.RationDensity, table.DesiredMask);
    });
    grid.EmptyRow();
    grid.KeepWhole();
    return grid;
}

}  // namespace

void WriteMineralRequirements(ReportWriter& w) {
    const bool calf = w.Record().AnimalType == kYoungCalf;
    StartPage(w);
    w.StartComponent(20, "Mineral Requirements");
    std::vector<ReportGrid> grids;
    for (const MineralTableKind& table : MineralTables())
        grids.push_back(calf ? CalfTable(w, table) : AdultTable(w, table));
    // The three have one font, that of the widest.
    for (ReportGrid& grid : grids)
        grid.FitFont();
    const float size = w.Sink().FontSize();
    for (std::size_t i = 0; i < grids.size(); ++i) {
        w.Sink().SetFontSize(size);
        const Twips height = grids[i].Height();
        w.Sink().SetFontSize(w.State().BodyFontSize);
        w.HeadingWith(MineralTables()[i].Heading, height);
        w.Sink().SetFontSize(size);
        grids[i].Write();
    }
    w.Sink().SetFontSize(w.State().BodyFontSize);
}

}  // namespace tav
