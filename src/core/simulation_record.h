// The simulation record: one animal, its ration, and everything that is computed from them.
//
// One record lives from the start of the program to its end. It is zero and empty at the start and
// is never cleared: a computation replaces results field by field, a field that an animal type does
// not compute keeps what it held, and some equations read such left-over values on purpose.
//
// The fields, with units and meanings, are listed once in the four .def files; the structures
// below, the listing of a record and the look-up of a field by its name all come from them.
#pragma once

#include "core/number.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tav {

struct FeedRecord {
#define FIELD(type, name, unit, meaning) type name{};
#include "core/feed_fields.def"
};

struct MineralRow {
#define FIELD(type, name, unit, meaning) type name{};
#include "core/mineral_fields.def"
};

struct BalanceRow {
#define FIELD(type, name, unit, meaning) type name{};
#include "core/balance_fields.def"
};

inline constexpr int kMineralRows = 18;
inline constexpr int kBalanceRows = 6;
inline constexpr int kConditionScores = 9;

using Texts3 = std::array<std::string, 3>;
using PerFeed = std::vector<Single>;                    // element 0 is feed 1
using PerScore = std::array<Single, kConditionScores>;  // element 0 is score 1
using OptionalReal = std::optional<double>;
using FeedList = std::vector<FeedRecord>;  // element 0 is feed 1
using MineralTable = std::array<MineralRow, kMineralRows>;
using BalanceLines = std::array<BalanceRow, kBalanceRows>;

struct SimulationRecord {
#define FIELD(type, name, unit, meaning) type name{};
#include "core/simulation_fields.def"
};

// Each calls visit(name, field) for every field, in order.
template <class Visitor>
void VisitFields(const FeedRecord& record, Visitor&& visit) {
#define FIELD(type, name, unit, meaning) visit(std::string_view(#name), record.name);
#include "core/feed_fields.def"
}

template <class Visitor>
void VisitFields(const MineralRow& record, Visitor&& visit) {
#define FIELD(type, name, unit, meaning) visit(std::string_view(#name), record.name);
#include "core/mineral_fields.def"
}

template <class Visitor>
void VisitFields(const BalanceRow& record, Visitor&& visit) {
#define FIELD(type, name, unit, meaning) visit(std::string_view(#name), record.name);
#include "core/balance_fields.def"
}

template <class Visitor>
void VisitFields(const SimulationRecord& record, Visitor&& visit) {
#define FIELD(type, name, unit, meaning) visit(std::string_view(#name), record.name);
#include "core/simulation_fields.def"
}

// The process-wide record.
SimulationRecord& TheSimulation();

// The four animal types. A record's AnimalType may hold any text; what is none of these is treated
// as each equation says for "any other".
inline constexpr std::string_view kLactatingCow = "Lactating Cow";
inline constexpr std::string_view kDryCow = "Dry Cow";
inline constexpr std::string_view kReplacementHeifer = "Replacement Heifer";
inline constexpr std::string_view kYoungCalf = "Young Calf";

inline constexpr std::array<std::string_view, 4> kAnimalTypes = {kLactatingCow, kDryCow,
                                                                 kReplacementHeifer, kYoungCalf};

// The feed categories that the equations test for.
inline constexpr std::string_view kFatCategory = "Fat";
inline constexpr std::string_view kAnimalProteinCategory = "Animal Protein";
inline constexpr std::string_view kVitaminMineralCategory = "Vitamin/Mineral";
inline constexpr std::string_view kCalfMilkCategory = "Calf Feed - Milk";
inline constexpr std::string_view kCalfStarterCategory = "Calf Feed - Starter";
inline constexpr std::string_view kCalfVitaminMineralCategory = "Calf Feed - Vitamin/Mineral";

// True when the category is exactly one of the three calf categories.
bool IsCalfCategory(std::string_view category);

}  // namespace tav
