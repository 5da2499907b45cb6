// What each line of the mineral and vitamin table requires.
#pragma once

#include "core/simulation_record.h"

namespace tav {

// Places in MineralRows, from 0.
enum MineralIndex : std::size_t {
    kCa,
    kP,
    kMg,
    kCl,
    kK,
    kNa,
    kS,
    kCo,
    kCu,
    kI,
    kFe,
    kMn,
    kSe,
    kZn,
    kNoMineral,
    kVitA,
    kVitD,
    kVitE
};

// Sets the losses of maintenance and the needs of pregnancy, lactation and growth of every line, in
// g/day for the major minerals and mg/day for the trace minerals. Vitamins have none.
void ComputeFactorialTerms(SimulationRecord& record);

// Sets TAR of a line of a cow's or heifer's table from its terms, or from intake, weight and
// grazing where the requirement is no factorial sum. From the second lactation on growth is over.
void RequireOfGrownAnimal(SimulationRecord& record, std::size_t row);

// Sets TAR of a line of a young calf's table: an amount for each kilogram of dry matter, and
// vitamin A by the calf's weight. Any feed but milk changes the diet's column.
void RequireOfYoungCalf(SimulationRecord& record, std::size_t row);

// Target densities of a young calf's ration in its three kinds of feed, for each line.
struct CalfDensities {
    double Starter, CalfFeed, Other;
};
CalfDensities CalfTargetDensities(std::size_t row);

}  // namespace tav
