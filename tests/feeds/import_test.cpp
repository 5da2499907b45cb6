// Importing feeds from comma-separated text.
#include "feeds/library_import.h"
#include "feeds/small_library.h"

#include <gtest/gtest.h>

namespace tav {
namespace {

ImportResult Import(const SmallLibrary& small, const std::string& csv) {
    FeedLibrary library = small.Open();
    return ImportFeeds(library, ReadLibraryCsv(csv));
}

// "line, column: what" of the fault; the library must be as it was.
std::string FaultOf(const std::string& csv) {
    const SmallLibrary small;
    const std::string before = FileText(small.Path());
    try {
        Import(small, csv);
        return {};
    } catch (const CsvFault& fault) {
        EXPECT_EQ(FileText(small.Path()), before);
        return std::to_string(fault.Line) + ", " + std::to_string(fault.Column) + ": " +
               fault.what();
    }
}

TEST(Import, AddsAndReplacesUsersFeedsAndPassesOverDefaultOnes) {
    const SmallLibrary small;
    const ImportResult result = Import(small,
                                       "Ca (%DM),Feed Name,Category,Read Only\n"
                                       "1.5,Oats,Energy Source,True\n"
                                       "0.9,Corn,Energy Source,False\n"
                                       ",My hay,Grass/Legume Forage,\n");
    EXPECT_EQ(result.Added, 1);
    EXPECT_EQ(result.Replaced, 1);
    EXPECT_EQ(result.Unchanged, 0);
    ASSERT_EQ(result.PassedOver.size(), 1U);
    EXPECT_EQ(result.PassedOver[0].Line, 3);
    EXPECT_EQ(small.Names(), "Corn|My hay|Barley|Oats|");
    EXPECT_EQ(small.Value("Corn", "Ca (%DM)"), FieldValue(0.03));
    EXPECT_EQ(small.Value("Oats", "Read Only"), FieldValue(false));
    EXPECT_TRUE(IsNull(small.Value("My hay", "Ca (%DM)")));
    EXPECT_EQ(small.Value("My hay", "CP (%DM)"), FieldValue(15.0));  // not in the file
}

// One opening serves for any number of tasks, wherever the last one left the table.
TEST(Import, FindsWhatTheOneBeforeHasAdded) {
    const SmallLibrary small("Feed Name\n");
    FeedLibrary library = small.Open();
    const std::string csv = "Feed Name,Category\nA,Fat\nB,Fat\n";
    EXPECT_EQ(ImportFeeds(library, ReadLibraryCsv(csv)).Added, 2);
    EXPECT_EQ(ImportFeeds(library, ReadLibraryCsv(csv)).Unchanged, 2);
    const std::string all = LibraryCsv(library.Table());
    EXPECT_EQ(ReadLibraryCsv(all).Rows.size(), 2U);
    EXPECT_EQ(LibraryCsv(library.Table()), all);
}

TEST(Import, OfAnExportChangesNothing) {
    // Rows that could not be entered today, and bytes of another code page, included.
    const SmallLibrary small;
    {
        FeedLibrary library = small.Open();
        for (const std::string name :
             {"=x", "+x", "-x", "@x", "'x", "'=x", "''@x", "\t=x", "x\t", " x ", "\"x\"", "a,b",
              "Gr\xFCnmehl", "two\nlines", "two\r\nlines", "\r"}) {
            library.Table().AddNew();
            library.Table().SetValue("Feed Name", name);
            library.Table().SetValue("Category", std::string("Unheard of"));
            library.Table().SetValue("Ca (%DM)", -7.25);
            library.Table().SetValue("P (%DM)", StoredNumber(0.1F));
            library.Table().SetValue("Forage Description", std::string());
            library.Table().Update();
        }
    }
    const std::string before = FileText(small.Path());
    const ImportResult result = Import(small, small.Csv());
    EXPECT_EQ(result.Added + result.Replaced, 0);
    EXPECT_EQ(result.Unchanged, 17);
    EXPECT_EQ(result.PassedOver.size(), 2U);
    EXPECT_EQ(FileText(small.Path()), before);
}

TEST(Import, OfAnExportMakesTheSameLibraryAnew) {
    const SmallLibrary small("Feed Name,IFN,Category\n");
    Import(small,
           "Feed Name,IFN,Category\n"
           "'=1+1,,Fat\n'+1,\"\",Fat\n'-1,'@x,Fat\n'@x,,Fat\n'x,,Fat\n''=1,,Fat\n"
           "\"\"\"q\"\"\",,Fat\n\"a,b\",,Fat\n\" x \",,Fat\nGrün,,Fat\n");
    EXPECT_EQ(small.Names(), "=1+1|+1|-1|@x|'x|'=1|\"q\"|a,b| x |Grün|");
    const SmallLibrary other("Feed Name\n");
    EXPECT_EQ(Import(other, small.Csv()).Added, 10);
    EXPECT_EQ(other.Csv(), small.Csv());
    EXPECT_EQ(other.Value("+1", "IFN"), FieldValue(""));
    EXPECT_TRUE(IsNull(other.Value("@x", "IFN")));
}

// A simulation knows a feed by the bytes of its name, so a replaced one keeps them.
TEST(Import, LeavesTheBytesOfWhatStaysTheSame) {
    const SmallLibrary small;
    {
        FeedLibrary library = small.Open();
        library.Table().AddNew();
        library.Table().SetValue("Feed Name", std::string("Gr\xFCnmehl"));
        library.Table().Update();
    }
    EXPECT_EQ(Import(small, "Feed Name,Category,Ca (%DM)\nGrünmehl,Fat,1\n").Replaced, 1);
    EXPECT_EQ(small.Names(), "Corn|My hay|Barley|Gr\xFCnmehl|");
    EXPECT_EQ(small.Value("Gr\xFCnmehl", "Ca (%DM)"), FieldValue(1.0));
}

TEST(Import, RefusesTheWholeFileForOneBadRow) {
    const auto fault = [](const std::string& row, const std::string& column = "Ca (%DM)") {
        return FaultOf("Feed Name,Category," + column + "\nGood,Fat,\n" + row + "\n");
    };
    EXPECT_EQ(fault(",Fat,1"), "3, 1: the name is empty");
    EXPECT_EQ(fault("Good,Fat,1"), "3, 1: \"Good\" stands already in line 2");
    EXPECT_TRUE(fault("b,Hay,1").starts_with("3, 2: Category: \"Hay\" is none of Grass/Legume"));
    EXPECT_TRUE(fault("b,,1").starts_with("3, 2: Category: \"\" is none of "));
    EXPECT_EQ(fault("b,Fat,-0.1"), "3, 3: Ca (%DM): -0.1 is not between 0 and 100");
    EXPECT_EQ(fault("b,Fat,100.1"), "3, 3: Ca (%DM): 100.1 is not between 0 and 100");
    EXPECT_EQ(fault("b,Fat,100"), "");
    EXPECT_EQ(fault("b,Fat,0.5", "DM (%AF)"), "3, 3: DM (%AF): 0.5 is not between 1 and 100");
    EXPECT_EQ(fault("b,Fat,2", "NFC Digest"), "3, 3: NFC Digest: 2 is not between 0 and 1");
    EXPECT_EQ(fault("b,Fat,200", "TDN (%DM)"), "");  // computed: fat has more than 100
    EXPECT_EQ(fault("b,Fat,1e39", "TDN (%DM)"), "3, 3: TDN (%DM): 1E+39 is too large");
    EXPECT_TRUE(fault("b,Fat,Hay", "Energy Eq Class")
                    .starts_with("3, 3: Energy Eq Class: \"Hay\" is none of Forage, "));
    EXPECT_EQ(fault("\"b\nc\",Fat,1"),
              "3, 1: Feed Name: the text holds a line break or another control character");
    // In characters, of which one has two bytes here.
    std::string name;
    for (int i = 0; i < 255; ++i)
        name += "ü";
    EXPECT_EQ(fault(name + ",Fat,1"), "");
    EXPECT_EQ(fault(name + "ü,Fat,1"), "3, 1: Feed Name: the text is longer than 255 characters");
    EXPECT_EQ(FaultOf("Feed Name\na\n"), "1, 0: the column \"Category\" is missing");
}

TEST(Import, IntoAnEmptyLibraryAddsAll) {
    const SmallLibrary small("Feed Name\n");
    EXPECT_EQ(Import(small, FileText(TAV_LIBRARY_SOURCE)).Added, 152);
}

}  // namespace
}  // namespace tav
