// The inputs screen, frmInputs: program settings, the animal, its production and its surroundings.
//
// Each of the four tabs has a show operation, which writes the record and the settings into its
// controls, and a store operation, which reads them back. Nothing is stored while a field is
// edited: a tab is stored when it is left, when the screen closes, and before a command writes the
// simulation to a file.
#pragma once

#include "forms/controls.h"
#include "forms/screen_form.h"

#include <string>
#include <string_view>

namespace tav {

// The tabs, as the main window's menu opens them.
enum InputsTab : int {
    kProgramSettings = 0,
    kAnimalDescription = 1,
    kAnimalProduction = 2,
    kManagementAndEnvironment = 3,
};

class InputsForm : public ScreenForm {
  public:
    InputsForm();

    TabControl InputTabs{*this, "InputTabs"};

    // Program settings
    Frame fraUnits{InputTabs, "fraUnits"};
    OptionButton optMetric{fraUnits, "optMetric"};
    OptionButton optEnglish{fraUnits, "optEnglish"};
    Frame fraBasis{InputTabs, "fraBasis"};
    OptionButton optDryMatter{fraBasis, "optDryMatter"};
    OptionButton optAsFed{fraBasis, "optAsFed"};
    Label lblComments{InputTabs, "lblComments"};
    TextBox txtComments{InputTabs, "txtComments"};
    Frame fraHeadersAndFooters{InputTabs, "fraHeadersAndFooters"};
    Label lblLeftHeader{fraHeadersAndFooters, "lblLeftHeader"};
    ComboBox cboLeftHeader{fraHeadersAndFooters, "cboLeftHeader"};
    Label lblCenterHeader{fraHeadersAndFooters, "lblCenterHeader"};
    ComboBox cboCenterHeader{fraHeadersAndFooters, "cboCenterHeader"};
    Label lblRightHeader{fraHeadersAndFooters, "lblRightHeader"};
    ComboBox cboRightHeader{fraHeadersAndFooters, "cboRightHeader"};
    Label lblLeftFooter{fraHeadersAndFooters, "lblLeftFooter"};
    ComboBox cboLeftFooter{fraHeadersAndFooters, "cboLeftFooter"};
    Label lblCenterFooter{fraHeadersAndFooters, "lblCenterFooter"};
    ComboBox cboCenterFooter{fraHeadersAndFooters, "cboCenterFooter"};
    Label lblRightFooter{fraHeadersAndFooters, "lblRightFooter"};
    ComboBox cboRightFooter{fraHeadersAndFooters, "cboRightFooter"};
    Label lblDefaultZoom{InputTabs, "lblDefaultZoom"};
    ComboBox cboDefaultZoom{InputTabs, "cboDefaultZoom"};
    Frame fraSummaryResults{InputTabs, "fraSummaryResults"};
    CheckBox chkDefaultSumRes{fraSummaryResults, "chkDefaultSumRes"};
    ControlArray<Label> lblSumRes{fraSummaryResults, "lblSumRes", 10};
    ControlArray<ComboBox> cboSumRes{fraSummaryResults, "cboSumRes", 10};

    // Animal description
    Label lblAnimalType{InputTabs, "lblAnimalType"};
    ComboBox cboAnimalType{InputTabs, "cboAnimalType"};
    Label lblAge{InputTabs, "lblAge"};
    NumericTextBox txtAge{InputTabs, "txtAge"};
    Label lblBodyWeight{InputTabs, "lblBodyWeight"};
    NumericTextBox txtBodyWeight{InputTabs, "txtBodyWeight"};
    Label lblDaysPregnant{InputTabs, "lblDaysPregnant"};
    NumericTextBox txtDaysPregnant{InputTabs, "txtDaysPregnant"};
    Label lblConditionScore{InputTabs, "lblConditionScore"};
    NumericTextBox txtConditionScore{InputTabs, "txtConditionScore"};
    Label lblDaysInMilk{InputTabs, "lblDaysInMilk"};
    NumericTextBox txtDaysInMilk{InputTabs, "txtDaysInMilk"};
    Label lblLactationNumber{InputTabs, "lblLactationNumber"};
    NumericTextBox txtLactationNumber{InputTabs, "txtLactationNumber"};
    Label lblAgeAtFirstCalving{InputTabs, "lblAgeAtFirstCalving"};
    NumericTextBox txtAgeAtFirstCalving{InputTabs, "txtAgeAtFirstCalving"};
    Label lblCalvingInterval{InputTabs, "lblCalvingInterval"};
    NumericTextBox txtCalvingInterval{InputTabs, "txtCalvingInterval"};
    Label lblDesiredADG{InputTabs, "lblDesiredADG"};
    NumericTextBox txtDesiredADG{InputTabs, "txtDesiredADG"};
    CheckBox chkUseTargetADG{InputTabs, "chkUseTargetADG"};
    Frame fraCalfVariables{InputTabs, "fraCalfVariables"};
    Label lblCalfBodyWeight{fraCalfVariables, "lblCalfBodyWeight"};
    NumericTextBox txtCalfBodyWeight{fraCalfVariables, "txtCalfBodyWeight"};
    Label lblCalfTemperature{fraCalfVariables, "lblCalfTemperature"};
    NumericTextBox txtCalfTemperature{fraCalfVariables, "txtCalfTemperature"};

    // Animal production
    Label lblBreed{InputTabs, "lblBreed"};
    ListBox lstBreed{InputTabs, "lstBreed"};
    Label lblMatureWeight{InputTabs, "lblMatureWeight"};
    NumericTextBox txtMatureWeight{InputTabs, "txtMatureWeight"};
    CheckBox chkMWFromBreed{InputTabs, "chkMWFromBreed"};
    Label lblCalfBirthWeight{InputTabs, "lblCalfBirthWeight"};
    NumericTextBox txtCalfBirthWeight{InputTabs, "txtCalfBirthWeight"};
    CheckBox chkCBWFromMW{InputTabs, "chkCBWFromMW"};
    Label lblMilkProduction{InputTabs, "lblMilkProduction"};
    NumericTextBox txtMilkProduction{InputTabs, "txtMilkProduction"};
    Label lblMilkFat{InputTabs, "lblMilkFat"};
    NumericTextBox txtMilkFat{InputTabs, "txtMilkFat"};
    Frame fraMilkProtein{InputTabs, "fraMilkProtein"};
    OptionButton optMilkCrudeProtein{fraMilkProtein, "optMilkCrudeProtein"};
    OptionButton optMilkTrueProtein{fraMilkProtein, "optMilkTrueProtein"};
    NumericTextBox txtMilkProtein{fraMilkProtein, "txtMilkProtein"};
    Label lblLactose{InputTabs, "lblLactose"};
    NumericTextBox txtLactose{InputTabs, "txtLactose"};

    // Management and environment
    Label lblTemperature{InputTabs, "lblTemperature"};
    NumericTextBox txtTemperature{InputTabs, "txtTemperature"};
    Frame fraGrazing{InputTabs, "fraGrazing"};
    OptionButton optGrazing{fraGrazing, "optGrazing"};
    OptionButton optNoGrazing{fraGrazing, "optNoGrazing"};
    Label lblTopography{fraGrazing, "lblTopography"};
    ComboBox cboTopography{fraGrazing, "cboTopography"};
    Label lblDistance{fraGrazing, "lblDistance"};
    NumericTextBox txtDistance{fraGrazing, "txtDistance"};
    Label lblTrips{fraGrazing, "lblTrips"};
    NumericTextBox txtTrips{fraGrazing, "txtTrips"};
    Label lblPreviousTemperature{InputTabs, "lblPreviousTemperature"};
    NumericTextBox txtPreviousTemperature{InputTabs, "txtPreviousTemperature"};
    Label lblWindSpeed{InputTabs, "lblWindSpeed"};
    NumericTextBox txtWindSpeed{InputTabs, "txtWindSpeed"};
    Frame fraCoatCondition{InputTabs, "fraCoatCondition"};
    OptionButton optCleanDry{fraCoatCondition, "optCleanDry"};
    OptionButton optSomeMud{fraCoatCondition, "optSomeMud"};
    OptionButton optWetMatted{fraCoatCondition, "optWetMatted"};
    OptionButton optCovered{fraCoatCondition, "optCovered"};
    Frame fraHeatStress{InputTabs, "fraHeatStress"};
    OptionButton optNoHeatStress{fraHeatStress, "optNoHeatStress"};
    OptionButton optRapidShallow{fraHeatStress, "optRapidShallow"};
    OptionButton optOpenMouth{fraHeatStress, "optOpenMouth"};
    Label lblHairDepth{InputTabs, "lblHairDepth"};
    NumericTextBox txtHairDepth{InputTabs, "txtHairDepth"};
    Label lblNightCooling{InputTabs, "lblNightCooling"};
    ComboBox cboNightCooling{InputTabs, "cboNightCooling"};

    // The hidden credits
    Label lblEasterEgg{*this, "lblEasterEgg"};
    PictureBox picEasterEgg{*this, "picEasterEgg"};
    Timer Timer1{*this, "Timer1"};

    // Selects the tab that was open last and shows it.
    void SetUpInputs();
    void SetUp() override { SetUpInputs(); }

    // Stores the open tab.
    void Store() override { StoreTab(InputTabs.Tab()); }

    // Each shows its tab and makes it the one that is open.
    void ShowProgramSettings();
    void ShowAnimalDescription();
    void ShowAnimalProduction();
    void ShowManagementAndEnvironment();

    // Each does nothing while the program is starting up. Raises 13 for a text that is no number,
    // 6 for a number that its field can't hold.
    void StoreProgramSettings();
    void StoreAnimalDescription() const;
    void StoreAnimalProduction() const;
    void StoreManagementAndEnvironment();

  private:
    void SetUpTabs();
    void SetUpContextMenus();
    void ShowTab(int tab);
    void StoreTab(int tab);
    void InputTabs_Click(int previousTab);

    // Program settings
    void SetUpSettingsTab();
    void SetUpReportSettings();
    void SetUpSummarySettings();

    // Animal description and the rules of the animal types
    void SetUpDescriptionTab();
    void TieDescriptionEvents();
    void cboAnimalType_Change();
    void chkUseTargetADG_Click();
    void txtLactationNumber_ValueEntered() const;
    void WriteDescription(std::string_view animalType);
    void WriteCalf();
    void WriteGrownAnimal(std::string_view animalType);
    void WriteDesiredGain();
    void OpenDescriptionLimits();
    void SetDescriptionLimits(std::string_view animalType);

    // Animal production
    void SetUpProductionTab();
    void TieProductionEvents();
    void ShowMilk();
    void ShowMilkProtein();
    void ShowMilkYield();
    void TakeMatureWeightOfBreed();
    void TakeBirthWeightEstimate();
    void WriteTypicalMilk(std::string_view breed);
    void lstBreed_Click();
    void chkMWFromBreed_Click();
    void chkCBWFromMW_Click();
    void ConvertMilkProtein(bool toCrude);

    // Management and environment
    void SetUpManagementTab();
    void SetUpGrazingFrame();
    void SetUpHeiferFields();
    void ShowGrazing();
    void ShowHeiferFields();
    void StoreGrazing() const;
    void StoreHeiferFields();
    void optGrazing_Click();
    void optNoGrazing_Click();

    // Hidden credits
    void SetUpCredits();
    void ShowCredits();
    void HideCredits();
    void Timer1_Tick();
    void Form_KeyDown(const KeyPress& key) override;
    void Form_MouseDown(MouseButton button) override;

    bool showingBreed_ = false;  // the breed that is being set is no choice of the user
    int creditsTick_ = 0;
};

}  // namespace tav
