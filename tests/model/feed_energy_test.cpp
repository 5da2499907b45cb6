#include "model/steps.h"
#include "support.h"

namespace tav {
namespace {

// One line for each form of the equations, with its sum of
//   NFC * 0.98 * PAF + digested protein + fat * 2.25 + digested fibre - 7   (% TDN) and
//   (NFC + fibre) * 0.042 + protein * 0.056 + fat * 0.094 - 0.3             (Mcal DE/kg).
TEST(FeedEnergy, DigestibleNutrientsAndEnergyAtMaintenance) {
    struct Form {
        const char* Why;
        FeedRecord Feed;
        double TDN, DE;
    };
    const FeedRecord molasses =
        With(Maize(), "NDF=3, NDFIP=3, CP=6, ADFIP=0.3, Fat=1, Ash=12, PAF=0.95");
    const Form forms[] = {
        // NFC 100 - 50 - 12 - 2 - 8 + 4 = 32; protein exp(-1.2 * 1 / 12) * 12 = 10.858049
        // 31.36 + 10.858049 + 2.25 + 25 - 7; 56.36 * 0.042 + 10.858049 * 0.056 + 0.094 - 0.3
        {"forage", Hay(), 62.468049, 2.7691707},
        // NFC 33.5: 32.83 + 10.858049 + 0 + 25 - 7; 57.83 * 0.042 + 0.6080507 - 0.3
        {"fat below 1 % counts 0", With(Hay(), "Fat=0.5"), 61.688049, 2.7369107},
        // NFC 44: 43.12 + 0 + 2.25 + 25 - 7; 68.12 * 0.042 + 0.094 - 0.3
        {"forage without protein", With(Hay(), "CP=0"), 63.37, 2.65504},
        // NFC 75; protein 10 * (1 - 0.05 * 0.4) = 9.8
        // 73.5 + 9.8 + 6.75 + 5 - 7; 78.5 * 0.042 + 0.5488 + 3 * 0.094 - 0.3
        {"concentrate", Maize(), 88.05, 3.8278},
        // TDN with 12 % of carbohydrate, by 0.98 without PAF: 54 + 7 * 2.25 + 11.76 - 7
        // DE with NFC 9, by 0.98 * 0.9: 7.938 * 0.042 + 54 * 0.056 + 7 * 0.094 - 0.3
        {"animal protein", FishMeal(), 74.51, 3.715396},
        // NFC 16.5; fat has no floor in TDN but one in DE
        // 54 - 0.5 * 2.25 + 19.5 * 0.98 - 7; 14.553 * 0.042 + 3.024 + 0 - 0.3
        {"lean animal protein", With(FishMeal(), "Fat=0.5"), 64.985, 3.335226},
        // the class goes before the category: protein exp(-1.2 / 60) * 60 = 58.811920 in DE
        {"animal protein of class forage", With(FishMeal(), "EnergyEqClass=Forage"), 74.51,
         3.9848635},
        // 0.85 * 84 = 71.4; * 2.25; * 0.094
        {"fatty acids", Tallow(), 160.65, 6.7116},
        // (84 - 10) * 0.85 = 62.9; * 2.25 + 10; * 0.094 + 0.43
        {"fat of another class", With(Tallow(), "EnergyEqClass=Fat"), 151.525, 6.3426},
        // Fibre is bound protein: (100 - 6 - 1 - 12) * 0.931 = 75.411; protein 5.88
        // 75.411 + 5.88 + 0 - 7; 75.411 * 0.042 + 5.88 * 0.056 + 0 - 0.3
        {"no fibre", molasses, 74.291, 3.196542},
        {"fibre of digestibility 0", With(molasses, "NDF=9, NDFDigest=0"), 74.291, 3.196542},
        // 81.8 * 0.931 = 76.1558; fat -0.8 without a floor, in both
        {"no fibre, lean", With(molasses, "Fat=0.2"), 73.2358, 3.1526236},
        // NDF above NDFIP: NFC 80.5 * 0.931 = 74.9455; fibre 0.5 * 3.5 = 1.75
        {"a little fibre", With(molasses, "NDF=3.5"), 75.5755, 3.250491},
        // (100 - 0.2 - 12) * 0.931 = 81.7418; - 1.8 - 7
        {"no fibre, no protein", With(molasses, "CP=0, Fat=0.2"), 72.9418, 3.0579556},
        {"mineral", Limestone(), 0, 0},
    };
    for (const Form& form : forms) {
        SCOPED_TRACE(form.Why);
        SimulationRecord r = Fed(LactatingCow(), form.Feed, 10);
        EvaluateFeedEnergy(r);
        EXPECT_CLOSE(form.TDN, r.Feeds[0].TDN);
        EXPECT_CLOSE(form.DE, r.Feeds[0].DE);
        EXPECT_CLOSE(0.98, r.Feeds[0].NFCDigest);
    }
}

// A calf feed keeps the DE that it has, and beside a mineral the ration's factor is 1:
//   fat 2  cow ME 3 * 1.01 - 0.45 = 2.58; heifer and calf 3 * 0.82 = 2.46
//   fat 5  cow and calf + 2 * 0.0046 = 2.5892; heifer 2.46
//   NEl    ME * 0.703 - 0.19, with fat of 5 % + (ME * 0.097 + 0.19) / 97 * 2
//   NEm, NEg at 2.46: 1.37 M - 0.138 M^2 + 0.0105 M^3 - 1.12; 1.42 M - 0.174 M^2 + 0.0122 M^3
//   - 1.65
TEST(FeedEnergy, MetabolisableAndNetEnergies) {
    struct Form {
        std::string_view Type;
        double Fat, DE, ME, NEl;
    };
    const Form forms[] = {
        {kLactatingCow, 2, 3, 2.58, 1.62374},
        {kLactatingCow, 3, 3, 2.58, 1.62374},  // the forms meet at 3 %
        {kDryCow, 5, 3, 2.5892, 1.6393035},
        {kReplacementHeifer, 2, 3, 2.46, 1.53938},
        {kReplacementHeifer, 5, 3, 2.46, 1.5482175},
        {kYoungCalf, 2, 3, 2.46, 1.53938},
        {kYoungCalf, 3, 3, 2.58, 1.62374},  // here they are far apart
        {kYoungCalf, 5, 3, 2.5892, 1.6393035},
        {"Bull", 2, 3, 2.58, 1.62374},
        {kLactatingCow, 2, 0.3, 0, 0},  // 0.303 - 0.45 and all that follows are below 0
    };
    for (const Form& form : forms) {
        SCOPED_TRACE(testing::Message() << form.Type << ", fat " << form.Fat);
        SimulationRecord r = With(Calf(), "BodyWeight=625");
        r.AnimalType = form.Type;
        Add(r, With(Starter(), "TDN=70"), 2);
        r.Feeds[0].Fat = form.Fat;
        r.Feeds[0].DE = form.DE;
        Add(r, Limestone(), 1);
        EvaluateFeedEnergy(r);
        const double nem = form.ME > 0 ? 1.571392 : 0;
        EXPECT_CLOSE(form.ME, r.Feeds[0].ME);
        EXPECT_CLOSE(form.NEl, r.Feeds[0].NEl);
        EXPECT_CLOSE(nem, r.Feeds[0].NEm);
        EXPECT_CLOSE(form.ME > 0 ? 0.97184222 : 0, r.Feeds[0].NEg);
        EXPECT_CLOSE(form.ME * 2, r.TotalME);  // the mineral, at -0.45 and -1.12, adds 0
        EXPECT_CLOSE(form.NEl * 2, r.TotalNEl);
        EXPECT_CLOSE(nem * 2, r.TotalNEm);
        EXPECT_CLOSE(form.Type == kReplacementHeifer ? nem * 2 : form.NEl * 2,
                     r.DietNEConcentration);
        Expect(r,
               "Calf Starter.TDN=70, Calf Starter.DiscountedTDN=0, DiscountFactor=1, "
               "FeedDMINonCalf=1");
    }
}

// 6.7116 Mcal DE: all of it metabolisable, 0.8 and 0.55 of that net. ME1X is left as it was.
TEST(FeedEnergy, AFatSupplementKeepsItsEnergy) {
    ExpectCases(Fed(LactatingCow(), Tallow(), 1), EvaluateFeedEnergy,
                {{"Tallow.ME1X=9",
                  "Tallow.ME=6.7116, Tallow.NEl=5.36928, Tallow.NEm=5.36928, Tallow.NEg=3.69138, "
                  "Tallow.ME1X=9"}});
}

// At 625 kg maintenance takes 125 * 0.035 = 4.375 kg TDN. The drop is (TDN * 0.18 - 10.3) for each
// multiple of it beyond the first.
TEST(FeedEnergy, DiscountByTDNAndIntake) {
    struct Discount {
        double TDN, Multiple, Factor;
    };
    const Discount discounts[] = {
        {59.5, 3, 1},         // below 60: not discounted
        {60, 3, 0.98333333},  // exactly 60: drop 0.5 * 2 = 1, and 59 / 60
        {60, 150, 1},         // drop 74.5: -14.5 / 60 is below 0
        {61, 4, 0.98360656},  // drop 0.68 * 3 = 2.04 would end below 60: 60 / 61
        {61, 2, 0.98885246},  // drop 0.68: 60.32 / 61
        {70, 3, 0.93428571},  // drop 2.3 * 2 = 4.6: 65.4 / 70
        {80, 0.5, 1},         // a drop below 0 counts 0
    };
    for (const auto& [tdn, multiple, factor] : discounts) {
        SCOPED_TRACE(testing::Message() << tdn << " % TDN, " << multiple << " times");
        SimulationRecord r = Fed(LactatingCow(), FeedOfTDN(tdn), multiple * 4.375 / (tdn / 100));
        EvaluateFeedEnergy(r);
        EXPECT_CLOSE(tdn, r.Feeds[0].TDN);
        EXPECT_CLOSE(multiple, r.IntakeMultiple);
        EXPECT_CLOSE(factor, r.DiscountFactor);
        EXPECT_CLOSE(factor * tdn, r.Feeds[0].DiscountedTDN);
        EXPECT_CLOSE((factor * r.Feeds[0].DE).Value(), r.Feeds[0].DiscountedDE);
    }
}

// 2 kg at 50 % against 4.375 kg, or 27 * 0.035 = 0.945 kg of a calf. SBW itself is not read.
TEST(FeedEnergy, IntakeIsMeasuredByTheWeightOfTheKindOfAnimal) {
    ExpectCases(Fed(With(LactatingCow(), "SBW=1, CalfBodyWeight=81"), FeedOfTDN(50), 2),
                EvaluateFeedEnergy,
                {
                    {"AnimalType=Dry Cow", "IntakeMultiple=0.22857143"},
                    {"AnimalType=Bull", "IntakeMultiple=0.22857143"},
                    {"AnimalType=Replacement Heifer, BodyWeight=651.04167",
                     "IntakeMultiple=0.22857143"},  // * 0.96
                    {"AnimalType=Young Calf", "IntakeMultiple=1.0582011"},
                });
}

// 9 kg of 60 % TDN and 1 % fat with 1 kg of tallow: fat 0.09 + 0.84 = 0.93 kg in 10 kg, 9.3 %.
TEST(FeedEnergy, AFattyRationIsCorrectedTo3PercentFat) {
    ExpectCases(
        Fed(Fed(LactatingCow(), FeedOfTDN(60), 9), Tallow(), 1), EvaluateFeedEnergy,
        {
            // fat term 0.85 * 84 / 10 = 7.14; TDN 5.4 + 1.6065 = 7.0065 kg, 70.065 %
            // 70.065 - 7.14 / 9.3 * 6.3 * 2.25 = 59.182258; / 0.937 = 63.161428
            // drop (63.161428 * 0.18 - 10.3) * (7.0065 / 4.375 - 1) = 0.64302
            {"Tallow.EnergyEqClass=Fatty Acid", "DiscountFactor=0.98981938, DietFatPercent=9.3"},
            // fat term (74 * 0.85 + 10) / 10 = 7.29; TDN 6.91525 kg
            // 69.1525 - 7.29 / 9.3 * 6.3 * 2.25 = 58.041129; / 0.937 = 61.943574; drop 0.49344
            {"Tallow.EnergyEqClass=Fat", "DiscountFactor=0.99203399"},
            // any other class: the TDN of "Fat" with the fat term of "Fatty Acid"
            {"Tallow.EnergyEqClass=Oil", "DiscountFactor=0.99165517"},
        });
}

// 70 % TDN three times: drop (70 * 0.18 - 10.3) * 2 = 4.6. With 3.5 % fat 70 - 2.5 / 3.5 * 0.5 *
// 2.25 = 69.196429, / 0.995 = 69.544149, drop 2.2179468 * 2.
TEST(FeedEnergy, ExactlyThreePercentFatIsNotCorrected) {
    ExpectCases(Fed(LactatingCow(), FeedOfTDN(70), 18.75), EvaluateFeedEnergy,
                {
                    {"Test feed.Fat=3, Test feed.CP=72.5, Test feed.Ash=24.5",
                     "DiscountFactor=0.93428571, DietFatPercent=3"},
                    {"Test feed.Fat=3.5, Test feed.CP=71.375, Test feed.Ash=25.125",
                     "DiscountFactor=0.93621471, DietFatPercent=3.5"},
                });
}

TEST(FeedEnergy, CalfFeedsTakeNoPartInTheRation) {
    SimulationRecord mixed = Fed(Fed(LactatingCow(), Hay(), 10), Maize(), 4);
    Add(mixed, Starter(), 2);
    ExpectCases(
        mixed, EvaluateFeedEnergy,
        {
            {"", "TotalNFC=6.2, FeedDMINonCalf=14"},                   // 32 % of 10 + 75 % of 4
            {"Calf Starter.Category=calf feed", "FeedDMINonCalf=16"},  // only "Calf Feed" counts
            {"Maize.Category=My Calf Feeds", "FeedDMINonCalf=10"},
        });
    const char* before =
        "TotalME=5, TotalNEl=5, TotalNEm=5, TotalNEg=5, IntakeMultiple=7, DiscountFactor=7, "
        "DietNEConcentration=7, DietFatPercent=7, TotalNFC=7";
    // A calf gets four zeros and nothing else, as anyone without feeds; a cow gets the guarded
    // values.
    const char* zeros =
        "TotalME=0, TotalNEl=0, TotalNEm=0, TotalNEg=0, IntakeMultiple=7, DiscountFactor=7, "
        "DietNEConcentration=7, DietFatPercent=7, TotalNFC=7";
    ExpectCases(Fed(Calf()), EvaluateFeedEnergy, {{before, zeros}});
    ExpectCases(LactatingCow(), EvaluateFeedEnergy, {{before, zeros}});
    ExpectCases(Fed(LactatingCow(), Starter(), 2), EvaluateFeedEnergy,
                {{before,
                  "IntakeMultiple=0, DiscountFactor=1, DietNEConcentration=0, DietFatPercent=0, "
                  "TotalNFC=0"}});
}

TEST(FeedEnergy, AnAnimalWithoutWeightIsAFaultAfterTheDigestibleNutrients) {
    const char* given = "BodyWeight=0, DiscountFactor=0.9, TotalNEl=5";
    ExpectCases(
        Fed(LactatingCow(), Hay(), 10), EvaluateFeedEnergy,
        {{given,
          "error=11, TotalNEl=0, Hay.NFCDigest=0.98, FeedDMINonCalf=10, DiscountFactor=0.9"}});
    ExpectCases(Fed(LactatingCow(), Limestone(), 1), EvaluateFeedEnergy,
                {{given, "error=6, Limestone.NFCDigest=0.98"}});
}

}  // namespace
}  // namespace tav
