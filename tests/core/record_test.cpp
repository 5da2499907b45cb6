// The lists of fields against themselves.
#include "core/simulation_record.h"

#include <set>

#include <gtest/gtest.h>

namespace tav {
namespace {

template <class Record>
std::vector<std::string> NamesOf(const Record& record) {
    std::vector<std::string> names;
    VisitFields(record, [&](std::string_view name, const auto&) { names.emplace_back(name); });
    return names;
}

template <class Record>
void ExpectEachNameOnce() {
    const auto names = NamesOf(Record{});
    EXPECT_EQ(std::set<std::string>(names.begin(), names.end()).size(), names.size());
}

TEST(Record, HasEachFieldOnce) {
    ExpectEachNameOnce<SimulationRecord>();
    ExpectEachNameOnce<FeedRecord>();
    ExpectEachNameOnce<MineralRow>();
    ExpectEachNameOnce<BalanceRow>();
    EXPECT_EQ(NamesOf(FeedRecord{}).size(), 87U);
    EXPECT_EQ(NamesOf(FeedRecord{})[79], "cAsh");
    EXPECT_EQ(NamesOf(FeedRecord{}).back(), "NEm");
}

TEST(Record, IsZeroAndEmptyAtTheStart) {
    const SimulationRecord record;
    VisitFields(record, [](std::string_view name, const auto& field) {
        using Field = std::decay_t<decltype(field)>;
        if constexpr (std::is_same_v<Field, Single>) {
            EXPECT_EQ(field.Value(), 0) << name;
        } else if constexpr (std::is_same_v<Field, std::string> || std::is_same_v<Field, PerFeed> ||
                             std::is_same_v<Field, FeedList>) {
            EXPECT_TRUE(field.empty()) << name;
        } else if constexpr (std::is_same_v<Field, OptionalReal>) {
            EXPECT_FALSE(field.has_value()) << name;
        }
    });
}

TEST(Record, KnowsCalfFeedsByTheirExactCategory) {
    EXPECT_TRUE(IsCalfCategory("Calf Feed - Milk"));
    EXPECT_TRUE(IsCalfCategory("Calf Feed - Starter"));
    EXPECT_TRUE(IsCalfCategory("Calf Feed - Vitamin/Mineral"));
    EXPECT_FALSE(IsCalfCategory("Calf Feed"));
    EXPECT_FALSE(IsCalfCategory("calf feed - milk"));
}

}  // namespace
}  // namespace tav
