#include "model/mineral_requirements.h"

#include <algorithm>
#include <cctype>

namespace tav {
namespace {

bool HoldsCowInAnyCase(const std::string& text) {
    static constexpr std::string_view kCow = "cow";
    return std::search(text.begin(), text.end(), kCow.begin(), kCow.end(), [](char a, char b) {
               return std::tolower(static_cast<unsigned char>(a)) == b;
           }) != text.end();
}

// What the factorial terms are computed from, under the names that the equations use.
struct Animal {
    const SimulationRecord& r;
    Number BW = r.BodyWeight;
    Number DMI = r.TotalDMI;
    Number Milk = r.MilkProduction;
    std::int16_t DP = r.DaysPregnant;
    std::int16_t DIM = r.DaysInMilk;
    Number Gain = r.TargetSWG / 0.96;  // of the full body [kg/day]
    bool Lactating = r.AnimalType == kLactatingCow;
};

using Term = Number (*)(const Animal&);

Number None(const Animal& /*animal*/) { return 0; }

// The loss with sweat comes in two steps of temperature; 30 degrees belong to the lower one.
Number Sweat(const Animal& a, double warm, double hot) {
    if (a.r.Temperature < 25) return 0;
    return a.BW / 100 * (a.r.Temperature <= 30 ? warm : hot);
}

// What the conceptus takes up from one day to the next, by its accumulation curve a * exp((b -
// c*d)*d).
Number DailyAccretion(std::int16_t day, double a, double b, double c) {
    const Number d = day;
    return a * Exp((b - c * d) * d) - a * Exp((b - c * (d - 1)) * (d - 1));
}

// A fixed amount from day 191 on. Calcium starts after day 190 and phosphorus on it; this is meant.
Number FromDay191(const Animal& a, double amount) { return a.DP >= 191 ? amount : 0; }

// An amount for each kilogram of milk, once the animal has calved.
Number InMilk(const Animal& a, double amount) { return a.DIM != 0 ? a.Milk * amount : Number(0); }

Number CalciumOfMilk(const Animal& a) {
    const std::string& breed = a.r.Breed;
    if (breed == "Holstein" || breed == "Milking Shorthorn") return InMilk(a, 1.22);
    return InMilk(a, breed == "Jersey" ? 1.45 : 1.37);
}

Number CopperOfPregnancy(const Animal& a) {
    if (a.DP == 0) return 0;
    if (a.DP < 100) return 0.5;
    return a.DP > 225 ? 2 : 1.5;
}

bool Grows(const Animal& a) { return a.r.BodyWeight > 0 && a.r.TargetSWG > 0; }

Number CalciumOfGrowth(const Animal& a) {
    if (!Grows(a)) return 0;
    return 9.83 * Power(a.r.MatureWeight, 0.22) * Power(a.BW, -0.22) * a.Gain;
}

Number PhosphorusOfGrowth(const Animal& a) {
    if (!Grows(a)) return 0;
    return (1.2 + 4.635 * Power(a.r.MatureWeight, 0.22) * Power(a.BW, -0.22)) * a.Gain;
}

Number IodineOfLactation(const Animal& a) { return a.DIM < 1 ? Number(0) : a.BW / 100 * 1.5; }

// The seven terms of a line. Cl, K, Na, Fe and Zn of milk go by the milk alone, the others only
// after calving; iodine goes by weight. S, Co and Se have no factorial requirement.
struct LineTerms {
    Term Fecal = None, Urine = None, Sweat = None, Misc = None;
    Term Pregnancy = None, Lactation = None, Growth = None;
};

using A = const Animal&;

constexpr std::array<LineTerms, kMineralRows> kTerms = {{
    /* Ca */
    {.Fecal = [](A a) { return a.BW / 100 * (a.DIM < 1 ? 1.54 : 3.1); },
     .Urine = [](A a) { return a.BW / 100 * 0.08; },
     .Pregnancy =
         [](A a) {
             return a.DP > 190 ? DailyAccretion(a.DP, 0.02456, 0.05581, 0.00007) : Number(0);
         },
     .Lactation = CalciumOfMilk,
     .Growth = CalciumOfGrowth},
    /* P */
    {.Fecal = [](A a) { return a.DMI * (HoldsCowInAnyCase(a.r.AnimalType) ? 1 : 0.8); },
     .Urine = [](A a) { return a.BW * 0.002; },
     .Pregnancy =
         [](A a) {
             return a.DP >= 190 ? DailyAccretion(a.DP, 0.02743, 0.05527, 0.000075) : Number(0);
         },
     .Lactation = [](A a) { return InMilk(a, 0.9); },
     .Growth = PhosphorusOfGrowth},
    /* Mg */
    {.Fecal = [](A a) { return a.BW * 0.003; },
     .Pregnancy = [](A a) { return FromDay191(a, 0.33); },
     .Lactation = [](A a) { return InMilk(a, 0.15); },
     .Growth = [](A a) { return a.Gain * 0.45; }},
    /* Cl */
    {.Fecal = [](A a) { return a.BW / 100 * 2.25; },
     .Pregnancy = [](A a) { return FromDay191(a, 1); },
     .Lactation = [](A a) { return a.Milk * 1.15; },
     .Growth = [](A a) { return a.Gain; }},
    /* K */
    {.Fecal = [](A a) { return a.DMI * (a.Lactating ? 6.1 : 2.6); },
     .Urine = [](A a) { return a.BW * 0.038; },
     .Sweat = [](A a) { return Sweat(a, 0.04, 0.4); },
     .Pregnancy = [](A a) { return FromDay191(a, 1.027); },
     .Lactation = [](A a) { return a.Milk * 1.5; },
     .Growth = [](A a) { return a.Gain * 1.6; }},
    /* Na */
    {.Fecal = [](A a) { return a.BW * (a.Lactating ? 0.038 : 0.015); },
     .Sweat = [](A a) { return Sweat(a, 0.1, 0.5); },
     .Pregnancy = [](A a) { return FromDay191(a, 1.39); },
     .Lactation = [](A a) { return a.Milk * 0.63; },
     .Growth = [](A a) { return a.Gain * 1.4; }},
    /* S */ {},
    /* Co */ {},
    /* Cu */
    {.Fecal = [](A a) { return a.BW * 0.0071; },
     .Pregnancy = CopperOfPregnancy,
     .Lactation = [](A a) { return InMilk(a, 0.15); },
     .Growth = [](A a) { return a.Gain * 1.15; }},
    /* I */
    {.Misc = [](A a) { return a.DIM < 1 ? a.BW / 100 * 0.6 : Number(0); },
     .Lactation = IodineOfLactation},
    /* Fe */
    {.Pregnancy = [](A a) { return FromDay191(a, 18); },
     .Lactation = [](A a) { return a.Milk; },
     .Growth = [](A a) { return a.Gain * 34; }},
    /* Mn */
    {.Fecal = [](A a) { return a.BW * 0.002; },
     .Pregnancy = [](A a) { return FromDay191(a, 0.3); },
     .Lactation = [](A a) { return InMilk(a, 0.03); },
     .Growth = [](A a) { return a.Gain * 0.7; }},
    /* Se */ {},
    /* Zn */
    {.Fecal = [](A a) { return a.BW * 0.033; },
     .Urine = [](A a) { return a.BW * 0.012; },
     .Pregnancy = [](A a) { return FromDay191(a, 12); },
     .Lactation = [](A a) { return a.Milk * 4; },
     .Growth = [](A a) { return a.Gain * 24; }},
    /* the empty line, the vitamins */ {},
    {},
    {},
    {},
}};

Number VitaminERequired(const SimulationRecord& r) {
    const bool dry = r.AnimalType == kDryCow;
    if (r.Grazing) return r.BodyWeight * (dry ? 0.5 : 0.26);
    return r.BodyWeight * (dry ? 1.6 : 0.8);
}

Number VitaminARequired(const SimulationRecord& r) {
    const bool early = r.AnimalType == kReplacementHeifer && r.DaysPregnant < 260;
    return r.BodyWeight * (early ? 0.08 : 0.11);
}

bool GrowthIsOver(const SimulationRecord& r) {
    return r.CalvingInterval + r.AgeAtFirstCalving <= r.Age && r.LactationNumber > 1;
}

// A young calf's requirement for each kilogram of dry matter, on milk alone and with other feed.
struct CalfAllowance {
    double OnMilk, WithStarter;
};

constexpr std::array<CalfAllowance, kMineralRows> kCalfAllowances = {{
    {10, 7},
    {7.5, 4.5},
    {0.7, 1},
    {2, 2},
    {6.5, 6.5},
    {1, 1.5},
    {2.9, 2},
    {0.1, 0.1},
    {10, 10},
    {0.25, 0.25},
    {100, 50},
    {40, 40},
    {0.3, 0.3},
    {40, 40},
    {0, 0},
    {0, 0},
    {0.6, 0.6},
    {50, 50},
}};

}  // namespace

void ComputeFactorialTerms(SimulationRecord& r) {
    const Animal animal{r};
    for (std::size_t i = 0; i < kTerms.size(); ++i) {
        MineralRow& row = r.MineralRows[i];
        const LineTerms& terms = kTerms[i];
        row.Fecal = terms.Fecal(animal);
        row.Urine = terms.Urine(animal);
        row.Sweat = terms.Sweat(animal);
        row.Misc = terms.Misc(animal);
        row.Pregnancy = terms.Pregnancy(animal);
        row.Lactation = terms.Lactation(animal);
        row.Growth = terms.Growth(animal);
    }
}

void RequireOfGrownAnimal(SimulationRecord& r, std::size_t index) {
    MineralRow& row = r.MineralRows[index];
    if (GrowthIsOver(r)) row.Growth = 0;
    switch (index) {
        case kVitA: row.TAR = VitaminARequired(r); return;
        case kVitD: row.TAR = r.BodyWeight * 0.03; return;
        case kVitE: row.TAR = VitaminERequired(r); return;
        default: break;
    }
    row.TAR = row.Pregnancy + row.Maintenance + row.Lactation + row.Growth;
    // No factorial requirement is known of these three; the ration's amount takes its place.
    if (index == kCo) row.TAR = r.TotalDMI * 0.11;
    if (index == kS) row.TAR = r.TotalDMI * 2;
    if (index == kSe) row.TAR = r.TotalDMI * 0.3;
}

void RequireOfYoungCalf(SimulationRecord& r, std::size_t index) {
    MineralRow& row = r.MineralRows[index];
    const bool milkOnly = r.CalfStarterDMI == 0;
    const CalfAllowance& allowance = kCalfAllowances[index];
    const Number amount = r.TotalDMI * (milkOnly ? allowance.OnMilk : allowance.WithStarter);
    switch (index) {
        case kNoMineral: return;
        case kP: row.TAR = amount / (milkOnly ? 0.9 : 0.78); return;  // to total phosphorus
        case kVitA: row.TAR = r.CalfBodyWeight * 0.11; return;
        default: row.TAR = amount; return;
    }
}

CalfDensities CalfTargetDensities(std::size_t index) {
    static constexpr std::array<CalfDensities, kMineralRows> kDensities = {{
        {0.7, 1, 0.6},
        {0.45, 0.7, 0.4},
        {0.1, 0.07, 0.1},
        {0.2, 0.25, 0.2},
        {0.65, 0.65, 0.65},
        {0.15, 0.4, 0.14},
        {0.2, 0.29, 0.2},
        {0.1, 0.11, 0.1},
        {10, 10, 10},
        {0.25, 0.5, 0.25},
        {50, 100, 50},
        {40, 40, 40},
        {0.3, 0.3, 0.3},
        {40, 40, 40},
        {0, 0, 0},
        {4, 9, 4},
        {0.6, 0.6, 0.6},
        {25, 50, 25},
    }};
    return kDensities[index];
}

}  // namespace tav
