// The three tables of the mineral report: which lines of the record stand in which, and in what
// units.
#pragma once

#include "reports/report_writer.h"

#include <array>
#include <string>
#include <vector>

namespace tav {

struct MineralTableKind {
    const char* Heading;
    std::size_t FirstRow;  // in MineralRows, from 0
    std::vector<const char*> Names;
    const char* AmountMask;
    const char* DensityMask;
    const char* DesiredMask;
    double DensityFactor;  // from the record's density to what is shown
    bool IsVitamins;
};

const std::array<MineralTableKind, 3>& MineralTables();

// The unit of a column's amounts, such as "(g/day)", and of its density, without brackets for the
// adult animals' macro and micro minerals: "%" and "ppm".
std::string AmountUnit(const MineralTableKind& table, std::size_t column);
std::string DensityUnit(const MineralTableKind& table, std::size_t column,
                        const ReportUnits& units);

// The density unit as a young calf's table has it, such as "(g/g)".
std::string CalfDensityUnit(const MineralTableKind& table, std::size_t column,
                            const ReportUnits& units);

}  // namespace tav
