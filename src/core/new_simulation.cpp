#include "core/new_simulation.h"

#include "core/main_window.h"
#include "core/program_state.h"

#include <algorithm>

namespace tav {
namespace {

// Where the defaults of the animal types differ. What is the same for all stands in the function.
struct TypeDefaults {
    std::string_view AnimalType;
    double Age, BodyWeight;
    std::int16_t DaysPregnant;
    double ConditionScore;
    std::int16_t DaysInMilk;
    std::uint8_t LactationNumber;
    double AgeAtFirstCalving, CalvingInterval, CalfBodyWeight, CalfTemperature, MatureWeight,
        CalfBirthWeight, MilkProduction, MilkFat, MilkTrueProtein, Lactose, Temperature, WindSpeed,
        HairDepth;
};

constexpr std::array<TypeDefaults, 4> kTypeDefaults = {{
    {kLactatingCow, 54, 650, 100, 3, 160, 3, 24, 12, 0, 0, 650, 43, 40, 3.5, 3, 4.8, 20, 1, 0.5},
    {kDryCow, 58, 650, 220, 3, 0, 3, 24, 12, 0, 0, 650, 43, 0, 0, 0, 0, 20, 1, 0.5},
    {kReplacementHeifer, 18, 420, 90, 3, 0, 0, 24, 12, 0, 0, 650, 43, 0, 0, 0, 0, 20, 1, 0},
    {kYoungCalf, 0, 0, 0, 0, 0, 0, 0, 0, 60, 20, 0, 0, 0, 0, 0, 0, 0, 0, 0},
}};

}  // namespace

void NewSimulation() {
    MainWindow& window = TheMainWindow();
    window.CloseScreen(TheProgram().CurrentScreen);
    SetNewSimulationValues(TheSimulation());
    window.PressOnlyButton("Inputs");
    window.ShowScreen("Inputs");
}

void SetNewSimulationValues(SimulationRecord& record) {
    record.HeaderFields = {"", "Long Date", ""};
    record.FooterFields = {"", "Page Number", ""};
    record.Comments = "";
    record.AnimalType = kLactatingCow;
    record.Age = 65;
    record.BodyWeight = 650;
    record.DaysPregnant = 122;
    record.ConditionScore = 3;
    record.DaysInMilk = 100;
    record.LactationNumber = 4;
    record.AgeAtFirstCalving = 24;
    record.CalvingInterval = 12;
    record.DesiredADG = 0;
    record.UseTargetADG = false;
    record.CalfBodyWeight = 0;
    record.CalfTemperature = 20;
    record.MatureWeight = 650;
    record.MWFromBreed = false;
    record.Breed = "Holstein";
    record.CalfBirthWeight = 45;
    record.CBWFromMW = false;
    record.MilkProduction = 70;
    record.MilkFat = 3;
    record.MilkTrueProtein = 3;
    record.Lactose = 4.78;
    record.Temperature = 20;
    record.Grazing = false;
    record.Topography = "Flat";
    record.Distance = 0;
    record.Trips = 0;
    record.PreviousTemperature = 20;
    record.WindSpeed = 1;
    record.CoatCondition = "Clean/Dry";
    record.HeatStress = "None";
    record.HairDepth = 0.25;
    record.NightCooling = true;
    record.NumFeeds = 0;
    record.TotalDMI = 0;
}

void SetAnimalTypeDefaults(SimulationRecord& record, std::string_view animalType) {
    const auto* const type = std::find_if(
        kTypeDefaults.begin(), kTypeDefaults.end(),
        [&](const TypeDefaults& candidate) { return candidate.AnimalType == animalType; });
    if (type == kTypeDefaults.end()) Raise(kInvalidProcedureCall);
    record.Age = type->Age;
    record.BodyWeight = type->BodyWeight;
    record.DaysPregnant = type->DaysPregnant;
    record.ConditionScore = type->ConditionScore;
    record.DaysInMilk = type->DaysInMilk;
    record.LactationNumber = type->LactationNumber;
    record.AgeAtFirstCalving = type->AgeAtFirstCalving;
    record.CalvingInterval = type->CalvingInterval;
    record.CalfBodyWeight = type->CalfBodyWeight;
    record.CalfTemperature = type->CalfTemperature;
    record.MatureWeight = type->MatureWeight;
    record.Breed = "Holstein";
    record.CalfBirthWeight = type->CalfBirthWeight;
    record.MilkProduction = type->MilkProduction;
    record.MilkFat = type->MilkFat;
    record.MilkTrueProtein = type->MilkTrueProtein;
    record.Lactose = type->Lactose;
    record.Temperature = type->Temperature;
    record.PreviousTemperature = type->Temperature;
    record.WindSpeed = type->WindSpeed;
    record.Grazing = false;
    record.Distance = 0;
    record.Trips = 0;
    if (animalType == kReplacementHeifer) {
        // Only a heifer has a gain to ask for, and her weather and coat are live inputs, kept.
        record.DesiredADG = 0;
        record.UseTargetADG = false;
        return;
    }
    record.Topography = "Flat";
    record.CoatCondition = "Clean/Dry";
    record.HeatStress = "None";
    record.HairDepth = type->HairDepth;
    record.NightCooling = false;
}

}  // namespace tav
