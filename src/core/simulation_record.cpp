#include "core/simulation_record.h"

namespace tav {

SimulationRecord& TheSimulation() {
    static SimulationRecord record;
    return record;
}

bool IsCalfCategory(std::string_view category) {
    return category == kCalfMilkCategory || category == kCalfStarterCategory ||
           category == kCalfVitaminMineralCategory;
}

}  // namespace tav
