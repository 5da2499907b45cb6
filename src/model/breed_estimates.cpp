#include "model/breed_estimates.h"

#include <array>
#include <utility>

namespace tav {

std::int16_t MatureWeightFromBreed(std::string_view breed) {
    static constexpr std::array<std::pair<std::string_view, std::int16_t>, 6> kWeights = {{
        {"Ayrshire", 545},
        {"Brown Swiss", 682},
        {"Guernsey", 500},
        {"Holstein", 682},
        {"Jersey", 454},
        {"Milking Shorthorn", 568},
    }};
    for (const auto& [name, weight] : kWeights) {
        if (name == breed) return weight;
    }
    return 0;
}

Single CalfBirthWeightFromMW(const SimulationRecord& record) {
    return record.MatureWeight * 0.06275;
}

}  // namespace tav
