// The layouts that are taken from the table of columns, and the limits of their rows.
#include "feeds/feed_columns.h"
#include "feeds/feed_grid.h"
#include "feeds/picker_values.h"
#include "feeds/value_limits.h"
#include "forms/form.h"

#include <set>

#include <gtest/gtest.h>

namespace tav {
namespace {

TEST(FeedColumns, NameEachColumnAndEachFieldOnce) {
    std::set<std::string_view> names;
    std::set<std::string_view> fields;
    const FeedRecord feed;
    for (const FeedColumn& column : FeedColumns()) {
        EXPECT_TRUE(names.insert(column.Name).second) << column.Name;
        std::visit(
            [&](auto member) {
                VisitFields(feed, [&](std::string_view name, const auto& field) {
                    if (static_cast<const void*>(&field) !=
                        static_cast<const void*>(&(feed.*member))) {
                        return;
                    }
                    EXPECT_TRUE(fields.insert(name).second) << name;
                });
            },
            column.WrittenFrom);
    }
    EXPECT_EQ(names.size(), 78U);
}

TEST(FeedGrid, HasTheRowsOfBothLayoutsInTheirPlaces) {
    const auto& ordinary = FeedGridRows(false);
    ASSERT_EQ(ordinary.size(), 66U);
    const std::vector<std::pair<std::size_t, std::string_view>> rows = {
        {kNameRow, "Feed Name"},
        {kCategoryRow, "Category"},
        {2, "International Feed Number"},
        {kClassRow, "Energy Equation Class"},
        {kForageRow, "Forage Description"},
        {kPAFRow, "Processing Factor (PAF)"},
        {kTDNRow, "TDN (%DM)"},
        {kDERow, "DE (Mcal/kg)"},
        {8, "Dry Matter (%As-Fed)"},
        {kNDFRow, "NDF (%DM)"},
        {kADFRow, "ADF (%DM)"},
        {kLigninRow, "Lignin (%DM)"},
        {kCPRow, "CP (%DM)"},
        {kNDFIPRow, "NDFIP (%DM)"},
        {kADFIPRow, "ADFIP (%DM)"},
        {kPrtARow, "Protein-A (%CP)"},
        {kPrtCRow, "Protein-C (%CP)"},
        {18, "Protein Digestion Rate (%/hr)"},
        {19, "RUP Digest (%)"},
        {kFatRow, "Fat (%DM)"},
        {kAshRow, "Ash (%DM)"},
        {kCPDigestRow, "CP Digestibility"},
        {kNDFDigestRow, "NDF Digestibility"},
        {kFatDigestRow, "Fat Digestibility"},
        {25, "Calcium (%DM)"},
        {31, "Sulfur (%DM)"},
        {32, "Cobalt (mg/kg)"},
        {38, "Zinc (mg/kg)"},
        {39, "Vit-A (1000 IU/kg)"},
        {41, "Vit-E (IU/kg)"},
        {42, "Arginine (%CP)"},
        {48, "Phenylalanine (%CP)"},
        {51, "Valine (%CP)"},
        {52, "Ca - Bioavailability (g/g)"},
        {65, "Zn - Bioavailability (g/g)"}};
    for (const auto& [row, label] : rows)
        EXPECT_EQ(ordinary[row].Label, label);
    EXPECT_EQ(ordinary[51].Mask, "0.00");
    EXPECT_EQ(ordinary[52].Mask, "0.0000");

    const auto& calf = FeedGridRows(true);
    const std::vector<std::string_view> labels = {
        "Feed Name",     "Category",     "Int-Ref-Num",  "Dry Matter (%As-Fed)", "DE (Mcal/kg)",
        "NEm (Mcal/kg)", "GE (Mcal/kg)", "ME (Mcal/kg)", "NEg (Mcal/kg)",        "CP (%DM)",
        "Fat (%DM)",     "Ash (%DM)",    "Calcium (%DM)"};
    ASSERT_EQ(calf.size(), 29U);
    for (std::size_t i = 0; i < labels.size(); ++i)
        EXPECT_EQ(calf[i].Label, labels[i]);
    EXPECT_EQ(calf[28].Label, "Vit-E (IU/kg)");
}

TEST(FeedGrid, BringsEachRowBackIntoTheFieldThatItCameFrom) {
    class OneGrid : public Form {
      public:
        OneGrid() : Form("frmGrid") {}
        Grid grdFeedData{*this, "grdFeedData"};
    } form;
    for (const char* const category : {"Energy Source", "Calf Feed - Milk"}) {
        FeedRecord feed;
        feed.Name = "x";
        feed.Category = category;
        feed.IFN = "1-00-001";
        feed.Qty = 5;
        Single n = 0.25;
        for (const FeedGridRow& row : FeedGridRows(IsCalfCategory(category))) {
            if (const auto* const field = std::get_if<Single FeedRecord::*>(&row.Field)) {
                feed.*(*field) = n += 1;
            }
        }
        FillFeedGrid(form.grdFeedData, feed);
        FeedRecord back;
        back.Qty = 5;
        RetrieveFeedGrid(form.grdFeedData, back);
        VisitFields(feed, [&](std::string_view name, const auto& value) {
            VisitFields(back, [&](std::string_view other, const auto& field) {
                if constexpr (std::is_same_v<decltype(value), decltype(field)>) {
                    if (name == other) {
                        EXPECT_TRUE(value == field) << name;
                    }
                }
            });
        });
    }
}

TEST(Picker, HasSeventyColumnsInTheirPlaces) {
    const std::vector<std::string> headers = PickerHeaders();
    ASSERT_EQ(headers.size(), 70U);
    const std::vector<std::pair<std::size_t, const char*>> places = {
        {0, "Feed Name"},
        {1, "Int-Feed-Num"},
        {2, "Category"},
        {3, "Energy Equation Class"},
        {5, "PAF"},
        {8, "DM (%As-Fed)"},
        {19, "RUP Digestibility (%)"},
        {22, "CP Digestibility (g/g)"},
        {23, "NDF Digestibility (g/g)"},
        {25, "Ca (%DM)"},
        {38, "Zn (mg/kg)"},
        {39, "Vit-A (1000 IU/kg)"},
        {42, "Ca-Bio (g/g)"},
        {55, "Zn-Bio (g/g)"},
        {56, "Arg (%CP)"},
        {61, "Met (%CP)"},
        {62, "Phe (%CP)"},
        {65, "Val (%CP)"},
        {66, "GE (Mcal/kg)"},
        {67, "ME (Mcal/kg)"},
        {68, "NEm (Mcal/kg)"},
        {69, "NEg (Mcal/kg)"}};
    for (const auto& [place, header] : places)
        EXPECT_EQ(headers[place], header);
}

TEST(ValueLimits, TheFirstRuleThatFitsDecides) {
    const auto limits = [](std::string_view label) {
        const ValueLimits found = LimitsFor(label);
        return std::pair(found.Minimum, found.Maximum);
    };
    EXPECT_EQ(limits("Category"), std::pair(0, 0));
    EXPECT_EQ(limits("CP (%DM)"), std::pair(0, 625));
    EXPECT_EQ(limits("NDFIP (%DM)"), std::pair(0, 100));
    EXPECT_EQ(limits("Dry Matter (%As-Fed)"), std::pair(1, 100));
    EXPECT_EQ(limits("Silage (% As-Fed)"), std::pair(1, 100));
    EXPECT_EQ(limits("CHO-B1 (%/hr)"), std::pair(0, 75));
    EXPECT_EQ(limits("Protein Digestion Rate (%/hr)"), std::pair(0, 500));
    EXPECT_EQ(limits("RUP Digest (%)"), std::pair(0, 100));
    EXPECT_EQ(limits("GE (Mcal/kg)"), std::pair(0, 1000));
    EXPECT_EQ(limits("Vit-A (1000 IU/kg)"), std::pair(0, 500000));
    EXPECT_EQ(limits("Se - Bioavailability (g/g)"), std::pair(0, 1));
    EXPECT_EQ(limits("Selenium (mg/kg)"), std::pair(0, 1000000));
    EXPECT_EQ(limits("Processing Factor (PAF)"), std::pair(0, 1000000));
}

}  // namespace
}  // namespace tav
