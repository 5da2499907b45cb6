// What the model's tests share: animals and feeds of round numbers, and cases written as text.
//
// Most weights are such that their power of 0.75 is whole: 625 kg gives 125, 256 gives 64, 81 gives
// 27. Settings and expectations name fields and values:
//
//   "AnimalType=Dry Cow, Grazing=1, Hay.CP=14, Ca.Fecal=15.5, CSEBW[3]=440.6"
//
// Before a point stands a feed, a line of the mineral table or a label of the balance table by its
// name; brackets pick an element of a table, counted from 1; true is 1.
#pragma once

#include "core/simulation_record.h"

#include <initializer_list>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

namespace tav {

// How a failing comparison shows a value.
inline void PrintTo(Single value, std::ostream* out) { *out << value.Value(); }

// Equal to one part in a million, as hand calculations have 8 digits and a Single has 7; where 0 is
// expected, exactly 0.
testing::AssertionResult IsClose(const char* expectedText, const char* actualText, double expected,
                                 Number actual);
#define EXPECT_CLOSE(expected, actual) EXPECT_PRED_FORMAT2(IsClose, expected, actual)

// A field as text or number, and a copy with fields set. A name that is none throws.
std::string TextOf(const SimulationRecord& record, const std::string& path);
double NumberOf(const SimulationRecord& record, const std::string& path);
SimulationRecord With(SimulationRecord record, std::string_view settings);
FeedRecord With(FeedRecord feed, std::string_view settings);

// Expects every field named to be close to its value, or to be that text.
void Expect(const SimulationRecord& record, std::string_view expected);

using Step = void(SimulationRecord&);
struct Case {
    const char* Given;
    const char* Expected;  // "error=11" first: the step raises 11 and leaves what follows
};
void ExpectCases(const SimulationRecord& animal, Step& step, std::initializer_list<Case> cases);

// The number of the RuntimeError that a step raises, 0 for none.
int ErrorOf(Step& step, SimulationRecord& record);

// Animals without a ration, in mild weather, open, at condition score 3.
SimulationRecord LactatingCow();  // 625 kg, third lactation, 30 kg of milk with 4 % fat
SimulationRecord DryCow();        // 625 kg, in calf for 250 days
SimulationRecord Heifer();        // 256 kg, 12 months old
SimulationRecord Calf();          // 81 kg, 1 month old

// Feeds.
FeedRecord Hay();        // forage, dry: 50 NDF, 12 CP
FeedRecord Maize();      // concentrate: 75 NFC, 10 CP, 4 fat
FeedRecord FishMeal();   // animal protein
FeedRecord Tallow();     // fat of the class "Fatty Acid": 84 fat
FeedRecord Limestone();  // mineral
FeedRecord Milk();       // calf feeds: milk powder of 5 Mcal ME and 25 CP, starter of 3 and 20
FeedRecord Starter();

// A protein feed without carbohydrate and with 1 % fat, whose TDN is exactly the one given.
FeedRecord FeedOfTDN(double tdn);

// Adds a feed to the ration and its quantity [kg/day] to TotalDMI.
void Add(SimulationRecord& record, FeedRecord feed, double quantity);

// The animal with one feed, or with a ration that suits it roughly: hay, maize and fish meal, or
// milk and starter.
SimulationRecord Fed(SimulationRecord animal, const FeedRecord& feed, double quantity);
SimulationRecord Fed(SimulationRecord animal);

}  // namespace tav
