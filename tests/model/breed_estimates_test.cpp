#include "model/breed_estimates.h"

#include "support.h"

namespace tav {
namespace {

TEST(BreedEstimates, MatureWeightByExactName) {
    for (const auto& [breed, weight] : {std::pair("Ayrshire", 545),
                                        {"Brown Swiss", 682},
                                        {"Guernsey", 500},
                                        {"Holstein", 682},
                                        {"Jersey", 454},
                                        {"Milking Shorthorn", 568},
                                        {"holstein", 0},
                                        {"", 0}})
        EXPECT_EQ(weight, MatureWeightFromBreed(breed)) << breed;
}

TEST(BreedEstimates, BirthWeightOfACalf) {
    SimulationRecord r;
    r.MatureWeight = 682;
    EXPECT_EQ(Single(42.7955), CalfBirthWeightFromMW(r));  // 6.275 %
}

}  // namespace
}  // namespace tav
