// Whether the rations of the sample simulations are made of feeds of the delivered library, and
// whether they are what such animals are fed.
#include "core/simulation_file.h"
#include "feeds/feed_row.h"
#include "feeds/small_library.h"
#include "model/computations.h"

#include <functional>
#include <vector>

#include <gtest/gtest.h>

namespace tav {
namespace {

class SampleRations : public ::testing::Test {
  protected:
    const LibraryRows delivered = ReadLibraryCsv(FileText(TAV_LIBRARY_SOURCE));

    static SimulationRecord Sample(const std::string& name) {
        SimulationRecord record;
        ReadSimulation(SIMULATION_FILES + name + ".tav", record);
        return record;
    }

    // A number of a delivered feed, 0 for a Null.
    double Value(const std::string& name, std::string_view column) const {
        for (const LibraryRow& row : delivered.Rows) {
            if (NameOf(row, delivered.Columns) != name) continue;
            const auto* const number = std::get_if<double>(Find(row, delivered.Columns, column));
            return number == nullptr ? 0 : *number;
        }
        ADD_FAILURE() << name << " is not delivered";
        return 0;
    }

    // The mean of a library column in the ration, weighted by dry matter, of the feeds that count.
    double Share(const SimulationRecord& r, std::string_view column,
                 const std::function<bool(const FeedRecord&)>& counts = {}) const {
        double sum = 0;
        for (const FeedRecord& feed : r.Feeds) {
            if (counts && !counts(feed)) continue;
            sum += Value(feed.Name, column) * feed.Qty.Value();
        }
        return sum / r.TotalDMI.Value();
    }

    struct Range {
        const char* Column;
        double Low, High;
    };
    void ExpectShares(const SimulationRecord& r, const std::vector<Range>& ranges) const {
        for (const Range& range : ranges) {
            const double share = Share(r, range.Column);
            EXPECT_TRUE(share >= range.Low && share <= range.High) << range.Column << ": " << share;
        }
    }
};

TEST_F(SampleRations, AreMadeOfTheDeliveredFeedsAsTheyAre) {
    const SmallLibrary small(FileText(TAV_LIBRARY_SOURCE));
    FeedLibrary library = small.Open(LibraryUse::ReadOnly);
    int samples = 0;
    for (const auto& file : std::filesystem::directory_iterator(SIMULATION_FILES)) {
        SimulationRecord record;
        ReadSimulation(file.path().string(), record);
        SCOPED_TRACE(file.path().filename());
        ++samples;
        EXPECT_GT(record.NumFeeds, 0);
        Number total = 0;
        for (const FeedRecord& feed : record.Feeds) {
            SCOPED_TRACE(feed.Name);
            total += feed.Qty;
            EXPECT_TRUE(feed.Qty > 0);
            ASSERT_TRUE(library.Find(feed.Name));
            FeedRecord fresh;
            ReadFeedRow(library.Table(), fresh);
            EXPECT_EQ(feed.Category, fresh.Category);
            for (const FeedColumn& column : FeedColumns()) {
                if (!column.IsNumber() || column.Has(kNotRead)) continue;
                const auto field = std::get<Single FeedRecord::*>(column.Field);
                EXPECT_NEAR((feed.*field).Value(), (fresh.*field).Value(),
                            (fresh.*field).Value() * 1e-6)
                    << column.Name;
            }
        }
        EXPECT_NEAR(record.TotalDMI.Value(), total.Value(), 1e-4);
    }
    EXPECT_GE(samples, 4);
}

TEST_F(SampleRations, OfALactatingCowFeedsForFortyKilogramsOfMilk) {
    SimulationRecord r = Sample("Lactating Cow");
    EXPECT_TRUE(r.TotalDMI >= 22 && r.TotalDMI <= 24);
    ExpectShares(r, {{"CP (%DM)", 16, 17.5},
                     {"NDF (%DM)", 28, 36},
                     {"Fat (%DM)", 2.5, 6.5},
                     {"Ca (%DM)", 0.65, 1},
                     {"P (%DM)", 0.32, 0.45},
                     {"Mg (%DM)", 0.2, 0.4},
                     {"K (%DM)", 1, 1.8},
                     {"Na (%DM)", 0.2, 0.5},
                     {"Cl (%DM)", 0.2, 0.5},
                     {"S (%DM)", 0.15, 0.3},
                     {"Cu (mg/kg)", 10, 25},
                     {"Zn (mg/kg)", 45, 100},
                     {"Mn (mg/kg)", 40, 110},
                     {"Se (mg/kg)", 0.25, 0.7}});
    const double forage = Share(
        r, "NDF (%DM)", [](const FeedRecord& feed) { return feed.EnergyEqClass == "Forage"; });
    EXPECT_TRUE(forage >= 19 && forage <= 27) << forage;
    RunComputations(r);
    const double nel = r.TotalNEl.Value() / r.TotalDMI.Value();
    EXPECT_TRUE(nel >= 1.5 && nel <= 1.7) << nel;
}

TEST_F(SampleRations, OfADryCowAndAHeiferAreRichInFibre) {
    const SimulationRecord cow = Sample("Dry Cow");
    EXPECT_TRUE(cow.TotalDMI >= 12 && cow.TotalDMI <= 14);
    ExpectShares(cow, {{"CP (%DM)", 12, 14},
                       {"NDF (%DM)", 40, 50},
                       {"Ca (%DM)", 0.4, 1},
                       {"P (%DM)", 0.22, 0.4},
                       {"Mg (%DM)", 0.15, 0.45},
                       {"K (%DM)", 0.8, 2},
                       {"Na (%DM)", 0.08, 0.3},
                       {"Cl (%DM)", 0.15, 0.6},
                       {"Zn (mg/kg)", 30, 100},
                       {"Se (mg/kg)", 0.2, 0.7}});
    const SimulationRecord heifer = Sample("Replacement Heifer");
    EXPECT_TRUE(heifer.TotalDMI >= 8.5 && heifer.TotalDMI <= 9.5);
    ExpectShares(heifer, {{"CP (%DM)", 13, 15},
                          {"NDF (%DM)", 40, 50},
                          {"Ca (%DM)", 0.4, 0.9},
                          {"P (%DM)", 0.22, 0.42},
                          {"Mg (%DM)", 0.15, 0.35},
                          {"K (%DM)", 0.8, 2.4},
                          {"Na (%DM)", 0.08, 0.3},
                          {"Zn (mg/kg)", 30, 100},
                          {"Se (mg/kg)", 0.15, 0.7}});
}

TEST_F(SampleRations, OfAYoungCalfIsMilkAndStarter) {
    const SimulationRecord calf = Sample("Young Calf");
    EXPECT_TRUE(calf.TotalDMI >= 0.8 && calf.TotalDMI <= 1.6);
    ExpectShares(calf, {{"cCP (%DM)", 20, 27},
                        {"cEE (%DM)", 8, 22},
                        {"cNEm (Mcal/kg)", 3, 4.3},
                        {"Ca (%DM)", 0.7, 1.2},
                        {"P (%DM)", 0.5, 0.9},
                        {"Fe (mg/kg)", 50, 150}});
}

}  // namespace
}  // namespace tav
