// Reading a feed from a row of the library, and storing it there.
#include "feeds/feed_row.h"

#include "feeds/feed_columns.h"
#include "feeds/small_library.h"

#include <cmath>
#include <map>

#include <gtest/gtest.h>

namespace tav {
namespace {

// A row in memory. What isn't set is Null.
class Row : public Recordset {
  public:
    Row(std::string category, std::map<std::string, FieldValue, std::less<>> fields)
        : Fields(std::move(fields)) {
        Fields["Category"] = std::move(category);
    }

    void MoveFirst() override {}
    void MoveNext() override {}
    bool AtEnd() const override { return false; }
    FieldValue Value(std::string_view column) const override {
        const auto found = Fields.find(column);
        return found == Fields.end() ? FieldValue() : found->second;
    }
    void SetValue(std::string_view column, FieldValue value) override {
        Written[std::string(column)] = std::move(value);
    }
    void AddNew() override {}
    void Edit() override {}
    void Update() override { ++Updates; }
    void Delete() override {}

    std::map<std::string, FieldValue, std::less<>> Fields, Written;
    int Updates = 0;
};

FeedRecord Read(const Row& row) {
    FeedRecord feed;
    ReadFeedRow(row, feed);
    return feed;
}

TEST(ReadFeedRow, SuppliesWhatTheRowLacks) {
    const FeedRecord feed = Read({"Energy Source", {{"Ca-Bio (g/g)", 0.0}, {"P-Bio (g/g)", 0.5}}});
    EXPECT_EQ(feed.IFN, "None");
    EXPECT_EQ(feed.CaBio, 1);
    EXPECT_EQ(feed.PBio, 0.5);
    EXPECT_EQ(feed.ZnBio, 1);  // Null reads as 0 first
    EXPECT_EQ(feed.NFCDigest, 1);
    EXPECT_EQ(feed.CPDigest, 1);
    EXPECT_EQ(feed.FatDigest, 1);
    EXPECT_EQ(feed.NDFDigest, 0);  // 0 / 0 fails and leaves it
    EXPECT_EQ(feed.Qty, 0);
}

TEST(ReadFeedRow, ComputesTheDigestibilityOfTheFibreOnlyWhereItIsZero) {
    Row row("Grass/Legume Forage",
            {{"NDF (%DM)", 40.0}, {"NDFIP (%DM)", 4.0}, {"Lignin (%DM)", 6.0}});
    // (1 - (6 / 36)^0.667) * 30 * 0.75 / 40
    EXPECT_FLOAT_EQ(Read(row).NDFDigest.Value(),
                    static_cast<float>((1 - std::pow(6.0 / 36, 0.667)) * 30 * 0.75 / 40));
    row.Fields["NDF Digest"] = 0.4;
    EXPECT_EQ(Read(row).NDFDigest, Single(0.4));
}

TEST(ReadFeedRow, PassesOverWhatItCannotRead) {
    const FeedRecord feed = Read({"Plant Protein",
                                  {{"CP (%DM)", std::string("much")},
                                   {"Fat (%DM)", 1e300},
                                   {"Ash (%DM)", std::string(" 6.5 ")},
                                   {"Read Only", std::string("perhaps")},
                                   {"Cys (%CP)", 2.0}}});
    EXPECT_EQ(feed.CP, 0);
    EXPECT_EQ(feed.Fat, 0);
    EXPECT_EQ(feed.Ash, 6.5);
    EXPECT_EQ(feed.ReadOnly, false);
    EXPECT_EQ(feed.Cys, 0);  // never read
    EXPECT_EQ(feed.Category, "Plant Protein");
}

TEST(ReadFeedRow, AMineralIsAConcentrateWhateverTheRowSays) {
    const Row row("Vitamin/Mineral", {{"Forage Description", std::string("Wet")}});
    EXPECT_EQ(Read(row).ForageDescription, "Concentrate");
}

TEST(ReadFeedRow, ACalfFeedReadsItsOwnColumns) {
    const std::map<std::string, FieldValue, std::less<>> fields = {
        {"cCP (%DM)", 20.0}, {"cAsh (%DM)", 7.0}, {"CP (%DM)", 30.0},
        {"Ash (%DM)", 3.0},  {"Ca (%DM)", 0.9},   {"Arg (%CP)", 4.0}};
    const FeedRecord milk = Read({"Calf Feed - Milk", fields});
    EXPECT_EQ(milk.cCP, 20);
    EXPECT_EQ(milk.cDCP, Single(18.6));
    EXPECT_EQ(milk.Ash, 7);
    EXPECT_EQ(milk.cAsh, 0);
    EXPECT_EQ(milk.CP, 0);
    EXPECT_EQ(milk.Arg, 0);
    EXPECT_EQ(milk.Ca, Single(0.9));
    EXPECT_EQ(milk.CaBio, 1);
    EXPECT_EQ(milk.CPDigest, 0);
    for (const char* const category : {"Calf Feed - Starter", "Calf Feed - Vitamin/Mineral"}) {
        const FeedRecord feed = Read({category, fields});
        EXPECT_EQ(feed.cCP, 15);
        EXPECT_EQ(feed.cDCP, 0);
    }
    // The category has to be one of the three to the letter.
    EXPECT_EQ(Read({"Calf Feed", fields}).CP, 30);
}

TEST(StoreFeedRow, WritesTheColumnsOfItsKindAlone) {
    FeedRecord feed;
    feed.Name = "x";
    feed.Category = "Energy Source";
    feed.ReadOnly = true;
    feed.Ca = 0.3;
    feed.cDM = 88;
    Row row("", {});
    StoreFeedRow(row, feed);
    EXPECT_EQ(row.Updates, 1);
    EXPECT_FALSE(feed.ReadOnly);
    EXPECT_EQ(row.Written.at("Read Only"), FieldValue(false));
    EXPECT_EQ(row.Written.at("Ca (%DM)"), FieldValue(0.3));  // and not 0.300000012
    EXPECT_EQ(row.Written.at("Cys (%CP)"), FieldValue(0.0));
    EXPECT_EQ(row.Written.size(), 78U - 9U);
    EXPECT_FALSE(row.Written.contains("cDM (%)"));

    Row calfRow("", {});
    feed.Category = "Calf Feed - Milk";
    feed.Ash = 7;
    StoreFeedRow(calfRow, feed);
    EXPECT_EQ(calfRow.Written.at("cDM (%)"), FieldValue(88.0));
    EXPECT_EQ(calfRow.Written.at("cAsh (%DM)"), FieldValue(0.0));  // from cAsh, not from Ash
    EXPECT_EQ(calfRow.Written.size(), 4U + 14U + 14U + 3U + 9U);
}

TEST(StoreFeedRow, WhatIsStoredReadsBackTheSame) {
    FeedRecord feed;
    feed.Name = "x";
    feed.Category = "Plant Protein";
    Single n = 0.1;
    for (const FeedColumn& column : FeedColumns()) {
        if (column.IsNumber() && column.BelongsTo(false)) {
            feed.*std::get<Single FeedRecord::*>(column.Field) = n *= 1.37;
        }
    }
    feed.Cys = 0;
    const SmallLibrary small("Feed Name\n");
    {
        FeedLibrary library = small.Open();
        library.Table().AddNew();
        StoreFeedRow(library.Table(), feed);
    }
    FeedLibrary library = small.Open(LibraryUse::ReadOnly);
    const FeedRecord read = [&] {
        FeedRecord record;
        ReadFeedRow(library.Table(), record);
        return record;
    }();
    for (const FeedColumn& column : FeedColumns()) {
        if (!column.IsNumber() || !column.BelongsTo(false)) continue;
        const auto field = std::get<Single FeedRecord::*>(column.Field);
        EXPECT_EQ((read.*field).Value(), (feed.*field).Value()) << column.Name;
    }
}

}  // namespace
}  // namespace tav
