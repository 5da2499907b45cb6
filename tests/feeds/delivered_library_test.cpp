// Whether the values of the delivered library can be right: texts, ranges, sums, and the columns
// that the program computes itself.
#include "feeds/feed_energy_rows.h"
#include "feeds/feed_grid.h"
#include "feeds/feed_row.h"
#include "feeds/small_library.h"
#include "feeds/value_limits.h"
#include "forms/form.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

#include <gtest/gtest.h>

namespace tav {
namespace {

// A row of the source with its values by column.
class SourceRow {
  public:
    SourceRow(const LibraryRow& row, const ColumnList& columns) : row_(row), columns_(columns) {}

    const FieldValue& Value(std::string_view column) const { return *Find(row_, columns_, column); }
    std::string Text(std::string_view column) const { return ShownText(Value(column)); }
    double operator[](std::string_view column) const {
        return IsNull(Value(column)) ? 0 : std::get<double>(Value(column));
    }
    bool IsCalf() const { return IsCalfCategory(Text("Category")); }

    // The sum of the columns of a group that a test picks.
    template <class Picked>
    double Sum(ColumnGroup group, Picked&& picked) const {
        double sum = 0;
        for (const FeedColumn& column : FeedColumns()) {
            if (column.Group == group && picked(column)) sum += (*this)[column.Name];
        }
        return sum;
    }
    // Major minerals but sulphur, which is in the protein as well.
    double MineralsInAsh() const {
        return Sum(ColumnGroup::Minerals, [](const FeedColumn& column) {
            return column.Name.ends_with("(%DM)") && column.Name != "S (%DM)";
        });
    }

  private:
    const LibraryRow& row_;
    const ColumnList& columns_;
};

class DeliveredLibrary : public ::testing::Test {
  protected:
    const LibraryRows rows = ReadLibraryCsv(FileText(TAV_LIBRARY_SOURCE));

    template <class Check>
    void ForEachFeed(Check&& check) const {
        ASSERT_EQ(rows.Rows.size(), 152U);
        for (const LibraryRow& row : rows.Rows) {
            const SourceRow feed(row, rows.Columns);
            SCOPED_TRACE(feed.Text("Feed Name"));
            check(feed);
        }
    }
};

using Words = std::set<std::pair<std::string, std::string>>;

// Pairs of energy class and forage description that go with a category.
const std::map<std::string, Words> kPairs = {
    {"Grass/Legume Forage", {{"Forage", "Dry"}, {"Forage", "Wet"}}},
    {"Grain Crop Forage", {{"Forage", "Dry"}, {"Forage", "Wet"}}},
    {"Energy Source", {{"Concentrate", "Concentrate"}}},
    {"Plant Protein", {{"Concentrate", "Concentrate"}}},
    {"By-Product/Other", {{"Concentrate", "Concentrate"}}},
    {"Animal Protein", {{"Animal", "Concentrate"}}},
    {"Fat", {{"Fat", "Concentrate"}, {"Fatty Acid", "Concentrate"}}},
    {"Vitamin/Mineral", {{"Vitamin/Mineral", "Concentrate"}}}};

// What feeds of a category can reasonably reach, TDN in % of dry matter.
const std::map<std::string, std::pair<double, double>> kReach = {{"Grass/Legume Forage", {45, 75}},
                                                                 {"Grain Crop Forage", {40, 76}},
                                                                 {"Energy Source", {70, 96}},
                                                                 {"Plant Protein", {50, 105}},
                                                                 {"Animal Protein", {50, 90}},
                                                                 {"By-Product/Other", {33, 100}},
                                                                 {"Fat", {90, 200}},
                                                                 {"Vitamin/Mineral", {0, 0}}};

bool IsFeedNumber(const std::string& text) {
    constexpr std::string_view kPattern = "1-00-000";
    return text.size() == kPattern.size() && text[0] >= '1' && text[0] <= '8' &&
           std::equal(text.begin(), text.end(), kPattern.begin(), [](char c, char pattern) {
               return pattern == '-' ? c == '-' : c >= '0' && c <= '9';
           });
}

TEST_F(DeliveredLibrary, NamesAndWordsAreSound) {
    std::set<std::string> names;
    std::set<std::string> numbers;
    std::set<std::string> categories;
    ForEachFeed([&](const SourceRow& feed) {
        std::string name = feed.Text("Feed Name");
        EXPECT_TRUE(!name.empty() && name.size() <= 30);
        EXPECT_TRUE(std::all_of(name.begin(), name.end(),
                                [](char c) { return c >= ' ' && c <= '~' && c != '"'; }));
        EXPECT_TRUE(name.front() != ' ' && name.front() != '*' && name.back() != ' ');
        EXPECT_EQ(WithGuard(name), name);
        std::transform(name.begin(), name.end(), name.begin(),
                       [](unsigned char c) { return std::tolower(c); });
        EXPECT_TRUE(names.insert(name).second);
        const std::string number = feed.Text("IFN");
        EXPECT_TRUE(IsNull(feed.Value("IFN")) || IsFeedNumber(number));
        EXPECT_TRUE(number.empty() || numbers.insert(number).second);
        EXPECT_EQ(feed.Value("Read Only"), FieldValue(true));
        categories.insert(feed.Text("Category"));
        if (feed.IsCalf()) return;
        EXPECT_TRUE(kPairs.at(feed.Text("Category"))
                        .contains({feed.Text("Energy Eq Class"), feed.Text("Forage Description")}));
    });
    EXPECT_EQ(categories.size(), kFeedCategories.size());
}

// The calf's target densities know the starter by this very name.
TEST_F(DeliveredLibrary, HasTheStarterThatIsKnownByItsName) {
    int starters = 0;
    ForEachFeed([&](const SourceRow& feed) {
        if (feed.Text("Feed Name") != "Calf Starter") return;
        EXPECT_EQ(feed.Text("Category"), "Calf Feed - Starter");
        ++starters;
    });
    EXPECT_EQ(starters, 1);
}

TEST_F(DeliveredLibrary, EachFeedHasTheValuesOfItsKindWithinTheLimits) {
    ASSERT_EQ(rows.Columns.size(), FeedColumns().size());
    ForEachFeed([](const SourceRow& feed) {
        for (const FeedColumn& column : FeedColumns()) {
            SCOPED_TRACE(column.Name);
            if (column.Name == kIfnColumn) continue;
            EXPECT_EQ(IsNull(feed.Value(column.Name)), !column.BelongsTo(feed.IsCalf()));
            if (!column.IsNumber() || IsNull(feed.Value(column.Name))) continue;
            const double value = feed[column.Name];
            const ValueLimits limits = LimitsFor(column.Label);
            EXPECT_GE(value, limits.Minimum);
            // Fat has more than 100 % of digestible nutrients.
            EXPECT_LE(value, column.Name == "TDN (%DM)" ? 200 : limits.Maximum);
            // A 0 would be taken for a missing value.
            if (column.Has(kZeroMeansOne)) {
                EXPECT_NE(value, 0);
            }
        }
    });
}

TEST_F(DeliveredLibrary, TheCompositionOfAnOrdinaryFeedAddsUp) {
    ForEachFeed([](const SourceRow& f) {
        if (f.IsCalf()) return;
        const double ndf = f["NDF (%DM)"], lignin = f["Lignin (%DM)"], cp = f["CP (%DM)"];
        const double ndfip = f["NDFIP (%DM)"], adfip = f["ADFIP (%DM)"];
        const bool noTrueProtein = cp > 100;  // urea and the like
        EXPECT_LE(f["ADF (%DM)"], ndf);
        EXPECT_LE(lignin, f["ADF (%DM)"]);
        if (ndf > 0) {
            EXPECT_LT(lignin, ndf - ndfip);
        }
        EXPECT_LE(ndfip + adfip, cp);
        EXPECT_LE(adfip, ndfip);
        if (f.Text("Energy Eq Class") == "Forage") {
            EXPECT_TRUE(ndf > 20 && f["ADF (%DM)"] > 10 && lignin > 0);
        }
        const double nfc = 100 - ndf - cp - f["Fat (%DM)"] - f["Ash (%DM)"] + ndfip;
        if (!noTrueProtein) {
            EXPECT_GE(nfc, -1);
            EXPECT_LE(f.MineralsInAsh(), f["Ash (%DM)"] + 0.05);
        }
        if (f.Text("Category") == "Vitamin/Mineral") {
            const double trace = f.Sum(ColumnGroup::Minerals, [](const FeedColumn& column) {
                return column.Name.ends_with("(mg/kg)");
            });
            EXPECT_LE(f.MineralsInAsh() + f["S (%DM)"] + trace / 10000, 100);
        }
    });
}

TEST_F(DeliveredLibrary, TheProteinOfAnOrdinaryFeedAddsUp) {
    ForEachFeed([](const SourceRow& f) {
        if (f.IsCalf()) return;
        const bool protein = f["CP (%DM)"] > 0;
        const bool degradable = f["Prt-B (%CP)"] > 0;
        EXPECT_NEAR(f["Prt-A (%CP)"] + f["Prt-B (%CP)"] + f["Prt-C (%CP)"], protein ? 100 : 0,
                    0.01);
        const double essential = f.Sum(ColumnGroup::AminoAcids, [](const FeedColumn& column) {
            return !column.Has(kNotRead);
        });
        if (degradable) {
            EXPECT_TRUE(f["Kd (1/hr)"] >= 0.5 && f["Kd (1/hr)"] <= 40);
            EXPECT_GE(f["RUP Digest (%)"], 40);
            EXPECT_TRUE(essential >= 30 && essential <= 60);
        } else {
            EXPECT_EQ(essential, 0);
        }
    });
}

// TDN and DE at maintenance in full precision, as the ration's computation has them: without
// digestible fibre the rest counts as carbohydrate, and less than 1 % of fat counts against it.
std::pair<double, double> MaintenanceEnergy(const SourceRow& f) {
    const double cp = f["CP (%DM)"], adfip = f["ADFIP (%DM)"], fat = f["Fat (%DM)"];
    const double ash = f["Ash (%DM)"], paf = f["PAF"], fatDigest = f["Fat Digest"];
    const std::string category = f.Text("Category");
    if (category == "Vitamin/Mineral") return {0, 0};
    if (category == "Fat") {
        if (f.Text("Energy Eq Class") == "Fatty Acid") {
            return {fatDigest * fat * 2.25, fatDigest * 0.094 * fat};
        }
        return {(fat - 10) * fatDigest * 2.25 + 10, (fat - 10) * fatDigest * 0.094 + 0.43};
    }
    const bool animal = category == "Animal Protein";
    const bool forage = f.Text("Energy Eq Class") == "Forage";
    const double protein = cp <= 0  ? 0
                           : forage ? std::exp(-1.2 * adfip / cp) * cp
                           : animal ? f["CP Digest"] * cp
                                    : (1 - adfip / cp * 0.4) * cp;
    const double fibre = f["NDF (%DM)"] > f["NDFIP (%DM)"] ? f["NDF Digest"] * f["NDF (%DM)"] : 0;
    const bool plain = fibre == 0 && !animal;
    const double rest = 100 - cp - fat - ash - (plain ? 0 : f["NDF (%DM)"] - f["NDFIP (%DM)"]);
    const double carbohydrate = rest * 0.98 * paf;
    const double fatty = plain ? fat - 1 : std::max(fat - 1, 0.0);
    const double de =
        (carbohydrate + (animal ? 0 : fibre)) * 0.042 + protein * 0.056 + fatty * 0.094 - 0.3;
    if (animal) {
        return {protein + (fat - 1) * 2.25 + (100 - cp - ash - fat) * 0.98 - 7, de};
    }
    return {carbohydrate + protein + fatty * 2.25 + fibre - 7, de};
}

TEST_F(DeliveredLibrary, ComputedColumnsStandToTheirLastDigit) {
    ForEachFeed([](const SourceRow& f) {
        if (f.IsCalf()) return;
        const double ndf = f["NDF (%DM)"], lignin = f["Lignin (%DM)"];
        const double free = ndf - f["NDFIP (%DM)"];
        const double digest =
            free <= 0 ? 0 : (1 - std::pow(lignin / free, 0.667)) * (free - lignin) * 0.75 / ndf;
        EXPECT_NEAR(f["NDF Digest"], digest, 0.0001);
        const auto [tdn, de] = MaintenanceEnergy(f);
        EXPECT_NEAR(f["TDN (%DM)"], tdn, 0.01);
        EXPECT_NEAR(f["DE (Mcal/kg)"], de, 0.001);
        const auto [low, high] = kReach.at(f.Text("Category"));
        EXPECT_TRUE(tdn >= low && tdn <= high);
    });
}

class OneGrid : public Form {
  public:
    OneGrid() : Form("frmGrid") {}
    Grid grdFeedData{*this, "grdFeedData"};
};

// A feed shows the same energy before and after it is first edited.
TEST_F(DeliveredLibrary, TheProgramComputesTheEnergyThatIsStored) {
    const SmallLibrary small(FileText(TAV_LIBRARY_SOURCE));
    FeedLibrary library = small.Open(LibraryUse::ReadOnly);
    OneGrid form;
    Grid& grid = form.grdFeedData;
    for (Recordset& row = library.Table(); !row.AtEnd(); row.MoveNext()) {
        FeedRecord feed;
        ReadFeedRow(row, feed);
        SCOPED_TRACE(feed.Name);
        if (IsCalfCategory(feed.Category)) continue;
        FillFeedGrid(grid, feed);
        RecomputeFeedEnergyRows(grid);
        // Less than 1 % fat and no fibre: the edit gives a little more than one unit.
        const bool molasses = feed.Name.ends_with("molasses");
        EXPECT_NEAR(CellNumber(grid, kTDNRow).Value(), feed.TDN.Value(), molasses ? 2.3 : 0.03);
        EXPECT_NEAR(CellNumber(grid, kDERow).Value(), feed.DE.Value(), molasses ? 0.1 : 0.007);
        EXPECT_NEAR(CellNumber(grid, kNDFDigestRow).Value(), feed.NDFDigest.Value(), 0.0052);
    }
}

TEST_F(DeliveredLibrary, TheEnergiesOfACalfFeedFormTheirChain) {
    ForEachFeed([](const SourceRow& f) {
        if (!f.IsCalf()) return;
        const double cp = f["cCP (%DM)"], fat = f["cEE (%DM)"], ash = f["cAsh (%DM)"];
        EXPECT_LE(cp + fat + ash, 100);
        EXPECT_LE(f.MineralsInAsh(), ash + 0.05);
        const double ge = f["cGE (Mcal/kg)"], me = f["cME (Mcal/kg)"];
        EXPECT_NEAR(f["cDE (Mcal/kg)"], ge * 0.97, 0.002);
        EXPECT_NEAR(me, f["cDE (Mcal/kg)"] * 0.96, 0.002);
        EXPECT_NEAR(f["cNEm (Mcal/kg)"], me * 0.86, 0.002);
        EXPECT_NEAR(f["cNEg (Mcal/kg)"], me * 0.69, 0.002);
        const double fromParts = cp * 0.057 + fat * 0.092 + (100 - cp - fat - ash) * 0.0395;
        if (f.Text("Category") == "Calf Feed - Starter") {
            // Starters carry an ME as it is measured, lower than that of their components.
            EXPECT_TRUE(me >= 2.8 && me <= 3.6 && ge <= fromParts);
        } else {
            EXPECT_NEAR(ge, fromParts, 0.002);
        }
    });
}

}  // namespace
}  // namespace tav
