// Rules of the inputs screen that no script can reach, and laws that hold for every animal.
#include "core/new_simulation.h"
#include "screens/inputs_form.h"
#include "screens/quantity.h"
#include "screens/screen_fixture.h"

namespace tav {
namespace {

class Inputs : public ScreenTest {
  protected:
    static InputsForm& Open() { return ScreenTest::Open<InputsForm>("frmInputs"); }

    static void BecomeHeifer() {
        SetNewSimulationValues(TheSimulation());
        SetAnimalTypeDefaults(TheSimulation(), kReplacementHeifer);
        TheSimulation().AnimalType = kReplacementHeifer;
    }

    // All fields of the record as text.
    static std::string Fields() {
        std::string text;
        const auto add = [&](std::string_view name, const auto& field) {
            if constexpr (requires { Number(field); }) {
                text += std::string(name) + " " + std::to_string(Number(field).Value()) + "\n";
            } else if constexpr (requires { std::string(field); }) {
                text += std::string(name) + " " + std::string(field) + "\n";
            }
        };
        VisitFields(TheSimulation(), add);
        return text;
    }

    static void Visit(InputsForm& form, int tab) {
        form.InputTabs.SetTab(tab == 0 ? 1 : 0);
        form.InputTabs.SetTab(tab);
        form.InputTabs.SetTab(tab == 0 ? 1 : 0);
    }
};

// A value may drift once, to what the screen shows of it; looking at it again changes nothing more.
TEST_F(Inputs, LookingAtATabTwiceStoresWhatLookingOnceDid) {
    for (const std::string_view type : kAnimalTypes) {
        for (const bool metric : {true, false}) {
            TheProgram().UseMetric = metric;
            SetNewSimulationValues(TheSimulation());
            SetAnimalTypeDefaults(TheSimulation(), type);
            TheSimulation().AnimalType = type;
            TheSimulation().BodyWeight = 423.4567;
            TheSimulation().DesiredADG = 777;
            TheSimulation().Grazing = type != kYoungCalf;
            TheSimulation().Distance = 1234;
            TheSimulation().Trips = 3;
            InputsForm& form = Open();
            for (int tab = 0; tab < 4; ++tab)
                Visit(form, tab);
            const std::string once = Fields();
            for (int tab = 0; tab < 4; ++tab)
                Visit(form, tab);
            EXPECT_EQ(Fields(), once) << type << (metric ? ", metric" : ", English");
            TheForms().Clear();
        }
    }
}

TEST_F(Inputs, NothingIsStoredWhileTheProgramStarts) {
    SetNewSimulationValues(TheSimulation());
    InputsForm& form = Open();
    form.InputTabs.SetTab(kAnimalDescription);
    form.txtBodyWeight.Text = "500 kg";
    TheProgram().StartingUp = true;
    form.Store();
    EXPECT_EQ(TheSimulation().BodyWeight, 650);
    form.InputTabs.SetTab(kAnimalProduction);  // neither stores nor shows
    EXPECT_EQ(TheProgram().CurrentInputsTab, kAnimalDescription);
    TheProgram().StartingUp = false;
    form.StoreAnimalDescription();
    EXPECT_EQ(TheSimulation().BodyWeight, 500);
}

TEST_F(Inputs, ATextThatIsNoNumberEndsTheProgram) {
    SetNewSimulationValues(TheSimulation());
    InputsForm& form = Open();
    form.InputTabs.SetTab(kAnimalDescription);
    form.txtBodyWeight.Text = "heavy";
    EXPECT_EQ(ErrorOf([&] { form.StoreAnimalDescription(); }), kTypeMismatch);
    TheForms().Run([&] { form.InputTabs.UserClickTab(kAnimalProduction); });
    EXPECT_EQ(TheProgram().FatalError, kTypeMismatch);
    EXPECT_TRUE(TheProgram().Ended);
}

// The file may hold more than the record's whole numbers do.
TEST_F(Inputs, AWalkBeyondTheRangeOfWholeMetresIsAnOverflow) {
    SetNewSimulationValues(TheSimulation());
    TheSimulation().Grazing = true;
    TheSimulation().Distance = 40000;
    InputsForm& form = Open();
    form.InputTabs.SetTab(kManagementAndEnvironment);
    EXPECT_EQ(form.txtDistance.Text, "40000 m");
    EXPECT_EQ(ErrorOf([&] { form.Store(); }), kOverflow);
}

TEST_F(Inputs, TheTwoDirectionsHaveConstantsOfTheirOwn) {
    TheProgram().UseMetric = false;
    BecomeHeifer();
    TheSimulation().WindSpeed = 100;
    InputsForm& form = Open();
    form.InputTabs.SetTab(kManagementAndEnvironment);
    EXPECT_EQ(form.txtWindSpeed.Text, "62.1 mph");
    form.txtWindSpeed.Text = "100 mph";
    form.txtHairDepth.Text = "2 in";
    form.txtPreviousTemperature.Text = "50.0 deg F";
    form.Store();
    EXPECT_EQ(TheSimulation().WindSpeed, Single(100 * Number(1.6093471F)));
    EXPECT_EQ(TheSimulation().HairDepth, Single(2 * Number(2.540005F)));
    EXPECT_EQ(TheSimulation().PreviousTemperature, 10);
    form.InputTabs.SetTab(kAnimalDescription);
    form.txtBodyWeight.Text = "1000 lbs";
    form.txtDesiredADG.Text = "1.2 lbs";
    form.Store();
    EXPECT_EQ(TheSimulation().BodyWeight, Single(1000 * Number(0.4535929F)));
    EXPECT_EQ(TheSimulation().DesiredADG, 544);
}

// Where the age at first calving is below zero, one lactation is all that is expected.
TEST_F(Inputs, ALactationNumberAboveOneIsRemarkedOnWithoutAnAgeAtFirstCalving) {
    SetNewSimulationValues(TheSimulation());
    TheSimulation().AgeAtFirstCalving = -1;
    InputsForm& form = Open();
    form.InputTabs.SetTab(kAnimalDescription);
    form.txtLactationNumber.UserType("1");
    form.txtLactationNumber.UserLeave();
    EXPECT_TRUE(Platform.Messages.empty());
    form.txtLactationNumber.UserType("2");
    form.txtLactationNumber.UserLeave();
    ASSERT_EQ(Platform.Messages.size(), 1U);
    EXPECT_EQ(Platform.Messages[0].Shown.Text,
              "Note that your value for Lactation Number is greater than what\r\nwould normally be "
              "computed from the Age at First Calving and the Calving Interval.");
    EXPECT_EQ(form.txtLactationNumber.Text, "2");
}

// No animal of a kind that the program doesn't know makes it stumble.
TEST_F(Inputs, AStrangeAnimalTypeIsShownAndKept) {
    SetNewSimulationValues(TheSimulation());
    TheSimulation().AnimalType = "Water Buffalo";
    InputsForm& form = Open();
    for (int tab = 0; tab < 4; ++tab)
        Visit(form, tab);
    EXPECT_EQ(TheSimulation().AnimalType, "Water Buffalo");
    EXPECT_EQ(TheSimulation().BodyWeight, 650);
}

// A calf is loaded while the production tab is the one that comes back.
TEST_F(Inputs, ACalfOnTheProductionTabHasNoMilk) {
    LoadSample("Young Calf.tav");
    TheProgram().CurrentInputsTab = kAnimalProduction;
    InputsForm& form = Open();
    EXPECT_EQ(form.InputTabs.Tab(), kAnimalProduction);
    EXPECT_TRUE(ShowsNotApplicable(form.txtMilkProduction));
    form.optMilkCrudeProtein.UserClick();
    EXPECT_TRUE(ShowsNotApplicable(form.txtMilkProtein));
    form.InputTabs.UserClickTab(kManagementAndEnvironment);
    EXPECT_EQ(form.InputTabs.Tab(), kAnimalProduction);
    form.InputTabs.UserClickTab(kAnimalDescription);
    EXPECT_EQ(form.InputTabs.Tab(), kAnimalDescription);
}

}  // namespace
}  // namespace tav
