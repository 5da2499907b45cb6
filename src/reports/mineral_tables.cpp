#include "reports/mineral_tables.h"

namespace tav {
namespace {

constexpr std::size_t kMicroRows = 7;
constexpr std::size_t kVitaminRows = 15;  // an empty line stands before them
constexpr std::size_t kVitaminE = 2;

}  // namespace

const std::array<MineralTableKind, 3>& MineralTables() {
    static const std::array<MineralTableKind, 3> tables = {
        {{"Macro-Minerals",
          0,
          {"Ca", "P", "Mg", "Cl", "K", "Na", "S"},
          "0.0",
          "0.00",
          "0.00",
          100,
          false},
         {"Micro-Minerals",
          kMicroRows,
          {"Co", "Cu", "I", "Fe", "Mn", "Se", "Zn"},
          "0.00",
          "0.00",
          "0.00",
          1,
          false},
         {"Vitamins", kVitaminRows, {"VitA", "VitD", "VitE"}, "0.0", "0.0", "0.0", 1, true}}};
    return tables;
}

std::string AmountUnit(const MineralTableKind& table, std::size_t column) {
    if (table.IsVitamins) return column == kVitaminE ? "(IU/d)" : "(1000 IU/d)";
    return table.FirstRow == kMicroRows ? "(mg/day)" : "(g/day)";
}

std::string DensityUnit(const MineralTableKind& table, std::size_t column,
                        const ReportUnits& units) {
    if (!table.IsVitamins) return table.FirstRow == kMicroRows ? "ppm" : "%";
    const std::string unit = column == kVitaminE ? "(IU/" : "(1000 IU/";
    return unit + std::string(units.Choose("kg)", "lb)"));
}

std::string CalfDensityUnit(const MineralTableKind& table, std::size_t column,
                            const ReportUnits& units) {
    if (table.IsVitamins) return DensityUnit(table, column, units);
    if (table.FirstRow == kMicroRows) return "(ppm)";
    return std::string(units.Choose("(g/g)", "(lbs/lb)"));
}

}  // namespace tav
