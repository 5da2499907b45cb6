// Comma-separated text of the library: reading, writing, and what a spreadsheet may make of it.
#include "feeds/library_csv.h"

#include "feeds/small_library.h"

#include <gtest/gtest.h>

namespace tav {
namespace {

// "line, column: what" of the fault of a text, empty if there is none.
std::string FaultOf(const std::string& text) {
    try {
        ReadLibraryCsv(text);
        return {};
    } catch (const CsvFault& fault) {
        return std::to_string(fault.Line) + ", " + std::to_string(fault.Column) + ": " +
               fault.what();
    }
}

TEST(CsvText, ReadsCellsAsSpreadsheetsWriteThem) {
    CsvReader reader(
        "\xEF\xBB\xBF"
        "a,\"b,\"\"c\"\"\nd\",\r\n\r\n\"\",e");
    std::vector<CsvCell> row;
    ASSERT_TRUE(reader.ReadRow(row));
    ASSERT_EQ(row.size(), 3U);
    EXPECT_EQ(row[0].Text, "a");
    EXPECT_EQ(row[1].Text, "b,\"c\"\nd");
    EXPECT_EQ(row[2].Text, "");
    EXPECT_FALSE(row[2].Quoted);
    ASSERT_TRUE(reader.ReadRow(row));
    EXPECT_TRUE(row[0].Quoted);
    EXPECT_EQ(row[1].Text, "e");
    EXPECT_EQ(row[1].Line, 4);
    EXPECT_FALSE(reader.ReadRow(row));
}

TEST(CsvText, GuardsWhatASpreadsheetWouldRun) {
    for (const std::string text : {"=1+1", "+1", "-1", "@SUM(A1)", "\t=1", "\r=1", " =1", "'=1",
                                   "''=1", "\xEF\xBC\x9Dx", "\n"}) {
        const std::string guarded = WithGuard(text);
        EXPECT_EQ(guarded, "'" + text);
        EXPECT_EQ(WithoutGuard(guarded), text);
    }
    for (const std::string text : {"", "Corn", "'Tis hay", "1-00-059", "a=b", "' hay", "'"}) {
        EXPECT_EQ(WithGuard(text), text);
        EXPECT_EQ(WithoutGuard(text), text);
    }
}

TEST(LibraryCsv, NamesTheLineAndColumnOfAFault) {
    const std::string head = "Feed Name,Category,Ca (%DM)\n";
    EXPECT_EQ(FaultOf(head + "a,Fat,1\n"), "");
    EXPECT_EQ(FaultOf(""), "1, 0: the file has no first line of column names");
    EXPECT_EQ(FaultOf("Feed Name,Price\n"), "1, 2: the feed library has no column \"Price\"");
    EXPECT_EQ(FaultOf("IFN,Feed Name,IFN\n"), "1, 3: the column \"IFN\" stands here twice");
    EXPECT_EQ(FaultOf(head + "\"a\nb\",Fat,1\nc,Fat,x\n"), "4, 3: Ca (%DM): \"x\" is not a number");
    EXPECT_EQ(FaultOf(head + "a,Fat,\"1,5\"\n"), "2, 3: Ca (%DM): \"1,5\" is not a number");
    EXPECT_EQ(FaultOf(head + "a,Fat\n"), "2, 3: the row has 2 cells, not 3");
    EXPECT_EQ(FaultOf(head + "a,Fat,1,2\n"), "2, 4: the row has 4 cells, not 3");
    EXPECT_EQ(FaultOf(head + "a,\"Fat\"x,1\n"),
              "2, 2: text stands behind the closing quotation mark");
    EXPECT_EQ(FaultOf(head + "a,Fat,1\nb,\"Fat,1\n"), "3, 2: the quotation mark is not closed");
    EXPECT_EQ(FaultOf("Feed Name,Read Only\na,yes\n"),
              "2, 2: Read Only: \"yes\" is neither True nor False");
    EXPECT_EQ(FaultOf(head + std::string(2000, ',') + "\n"), "2, 1001: the row has too many cells");
}

TEST(LibraryCsv, PassesOverRowsOfEmptyCells) {
    const LibraryRows rows = ReadLibraryCsv("Feed Name,Category\na,Fat\n,\n,\n");
    EXPECT_EQ(rows.Rows.size(), 1U);
}

TEST(LibraryCsv, KeepsEmptyTextsNullsAndOddNamesApart) {
    const std::vector<std::string> names = {"",          "=1+1",    "'=1+1", "'Tis",
                                            "a,b \"c\"", " blank ", "-5"};
    const SmallLibrary small("Feed Name\n");
    {
        FeedLibrary library = small.Open();
        for (const std::string& name : names) {
            library.Table().AddNew();
            library.Table().SetValue("Feed Name", name);
            library.Table().Update();
        }
    }
    const LibraryRows rows = ReadLibraryCsv(small.Csv());
    ASSERT_EQ(rows.Rows.size(), names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
        EXPECT_EQ(*Find(rows.Rows[i], rows.Columns, "Feed Name"), FieldValue(names[i]));
        EXPECT_TRUE(IsNull(*Find(rows.Rows[i], rows.Columns, "IFN")));
    }
}

TEST(LibraryCsv, CarriesAByteOrderMarkOnlyWhereATextNeedsIt) {
    EXPECT_TRUE(SmallLibrary().Csv().starts_with("Feed Name,IFN,"));
    const SmallLibrary small("Feed Name,Category\nGrünmehl,Energy Source\n");
    EXPECT_TRUE(
        small.Csv().starts_with("\xEF\xBB\xBF"
                                "Feed Name,IFN,"));
    EXPECT_EQ(ReadLibraryCsv(small.Csv()).Rows.size(), 1U);
    // As a spreadsheet writes it in the system's code page.
    const LibraryRows rows = ReadLibraryCsv("Feed Name\nGr\xFCnmehl\n");
    EXPECT_EQ(NameOf(rows.Rows[0], rows.Columns), "Grünmehl");
}

TEST(LibraryCsv, WritesTheDeliveredLibraryAsItsSourceStands) {
    const std::string source = FileText(TAV_LIBRARY_SOURCE);
    EXPECT_EQ(SmallLibrary(source).Csv(), source);
}

}  // namespace
}  // namespace tav
