#include "model/mineral_requirements.h"
#include "model/ration.h"
#include "model/steps.h"

#include <algorithm>
#include <cctype>

namespace tav {
namespace {

// A line of the table and where a feed has what it counts. Vitamins have no absorption coefficient.
struct Nutrient {
    std::string_view Name;
    std::string_view Units;
    Single FeedRecord::*Content = nullptr;
    Single FeedRecord::*Absorption = nullptr;
};

using F = FeedRecord;

constexpr std::array<Nutrient, kMineralRows> kNutrients = {{
    {"Ca", "(g/d)", &F::Ca, &F::CaBio},
    {"P", "(g/d)", &F::P, &F::PBio},
    {"Mg", "(g/d)", &F::Mg, &F::MgBio},
    {"Cl", "(g/d)", &F::Cl, &F::ClBio},
    {"K", "(g/d)", &F::K, &F::KBio},
    {"Na", "(g/d)", &F::Na, &F::NaBio},
    {"S", "(g/d)", &F::S, &F::SBio},
    {"Co", "(mg/d)", &F::Co, &F::CoBio},
    {"Cu", "(mg/d)", &F::Cu, &F::CuBio},
    {"I", "(mg/d)", &F::I, &F::IBio},
    {"Fe", "(mg/d)", &F::Fe, &F::FeBio},
    {"Mn", "(mg/d)", &F::Mn, &F::MnBio},
    {"Se", "(mg/d)", &F::Se, &F::SeBio},
    {"Zn", "(mg/d)", &F::Zn, &F::ZnBio},
    {"", ""},
    {"Vit A", "(1000 IU/kg)", &F::VitA},
    {"Vit D", "(1000 IU/kg)", &F::VitD},
    {"Vit E", "(IU/kg)", &F::VitE},
}};

bool IsMajorMineral(std::size_t row) { return row <= kS; }

void WriteNames(SimulationRecord& r) {
    for (std::size_t i = 0; i < kNutrients.size(); ++i) {
        r.MineralRows[i].Name = kNutrients[i].Name;
        r.MineralRows[i].Units = kNutrients[i].Units;
    }
}

void ClearFactorialTerms(SimulationRecord& r) {
    for (MineralRow& row : r.MineralRows) {
        for (Single* term : {&row.Fecal, &row.Urine, &row.Sweat, &row.Misc, &row.Pregnancy,
                             &row.Lactation, &row.Growth}) {
            *term = 0;
        }
    }
}

bool HoldsCalfFeedInAnyCase(const std::string& category) {
    static constexpr std::string_view kWords = "calf feed";
    return std::search(category.begin(), category.end(), kWords.begin(), kWords.end(),
                       [](char a, char b) {
                           return std::tolower(static_cast<unsigned char>(a)) == b;
                       }) != category.end();
}

// The calf's dry matter by kind of feed [kg/day]. A starter counts as one by its name alone; any
// other feed of the starter category is a calf feed. This is meant.
struct CalfQuantities {
    Number Starter, CalfFeed, Other;
};

CalfQuantities QuantitiesOf(const SimulationRecord& r) {
    CalfQuantities sums;
    for (const FeedRecord& f : FeedsInUse(r)) {
        if (f.Name == "Calf Starter") {
            sums.Starter += f.Qty;
        } else if (HoldsCalfFeedInAnyCase(f.Category)) {
            sums.CalfFeed += f.Qty;
        } else {
            sums.Other += f.Qty;
        }
    }
    return sums;
}

// Intake of the element, and what of it is absorbed by each feed's own coefficient. A calf, and any
// animal its vitamins, absorbs it all.
void ComputeSupply(SimulationRecord& r, std::size_t index, bool calf) {
    MineralRow& row = r.MineralRows[index];
    const Nutrient& nutrient = kNutrients[index];
    row.TotalDietary = 0;
    row.TAS = 0;
    if (nutrient.Content == nullptr) return;
    const bool percent = IsMajorMineral(index);
    const bool absorbed = nutrient.Absorption != nullptr && !calf;
    for (const FeedRecord& f : FeedsInUse(r)) {
        const Number content = f.*nutrient.Content;
        const Number amount = percent ? content / 100 * f.Qty : f.Qty * content;
        row.TotalDietary += amount;
        row.TAS += absorbed ? amount * f.*nutrient.Absorption : amount;
    }
}

void ComputeLine(SimulationRecord& r, std::size_t index, bool calf,
                 const CalfQuantities& calfFeeds) {
    MineralRow& row = r.MineralRows[index];
    row.Maintenance = row.Urine + row.Fecal + row.Sweat + row.Misc;
    if (calf) {
        RequireOfYoungCalf(r, index);
    } else {
        RequireOfGrownAnimal(r, index);
    }
    ComputeSupply(r, index, calf);
    row.RationDensity = GuardedQuotient(row.TotalDietary, r.TotalDMI);
    if (IsMajorMineral(index)) {  // from kg to g
        row.TotalDietary *= 1000;
        row.TAS *= 1000;
    }
    row.Difference = row.TAS - row.TAR;
    if (!calf) return;
    const CalfDensities target = CalfTargetDensities(index);
    row.DesiredRationDensity =
        GuardedQuotient(calfFeeds.Starter * target.Starter + calfFeeds.CalfFeed * target.CalfFeed +
                            calfFeeds.Other * target.Other,
                        r.TotalDMI);
}

}  // namespace

// Requirement, supply, balance and density of 14 minerals and 3 vitamins.
//
// Reads    AnimalType, Breed, BodyWeight, CalfBodyWeight, MatureWeight [kg], DaysPregnant,
// DaysInMilk,
//          MilkProduction [kg/day], Temperature [deg C], Grazing, TotalDMI, TargetSWG [kg/day],
//          Age, AgeAtFirstCalving, CalvingInterval [months], LactationNumber, CalfStarterDMI, and
//          of each feed Qty, Name, Category, its minerals, their absorption coefficients, its
//          vitamins
// Writes   MineralRows; DesiredRationDensity only for a young calf
// Form     absorbed requirement as the sum of maintenance, pregnancy, lactation and growth; a
// calf's as
//          amounts in the dry matter; supply as the sum over feeds of intake times absorption
void ComputeMineralsAndVitamins(SimulationRecord& r) {
    const bool calf = r.AnimalType == kYoungCalf;
    WriteNames(r);
    ComputeFactorialTerms(r);
    CalfQuantities calfFeeds;
    if (calf) {
        ClearFactorialTerms(r);
        calfFeeds = QuantitiesOf(r);
    }
    for (std::size_t i = 0; i < kNutrients.size(); ++i)
        ComputeLine(r, i, calf, calfFeeds);
}

}  // namespace tav
