// The access layer on a real file, in one process.
#include "feeds/small_library.h"

#include <gtest/gtest.h>

namespace tav {
namespace {

TEST(LibraryFile, WalksTheRowsInTheirStoredOrder) {
    const SmallLibrary small;
    EXPECT_EQ(small.Names(), "Corn|My hay|Barley|");
    FeedLibrary library = small.Open();
    Recordset& row = library.Table();
    EXPECT_EQ(ShownText(row.Value("Feed Name")), "Corn");  // current from the opening on
    for (int i = 0; i < 3; ++i)
        row.MoveNext();
    EXPECT_TRUE(row.AtEnd());
    EXPECT_EQ(ErrorOf([&] { row.MoveNext(); }), kNoCurrentRecord);
    EXPECT_EQ(ErrorOf([&] { row.Value("Feed Name"); }), kNoCurrentRecord);
    row.MoveFirst();
    EXPECT_EQ(ShownText(row.Value("Feed Name")), "Corn");
}

TEST(LibraryFile, KeepsTextNumbersBooleansAndNullsApart) {
    const SmallLibrary small;
    EXPECT_EQ(small.Value("Corn", "IFN"), FieldValue("4-02-935"));
    EXPECT_TRUE(IsNull(small.Value("Barley", "IFN")));
    EXPECT_EQ(small.Value("Corn", "Ca (%DM)"), FieldValue(0.03));
    EXPECT_TRUE(IsNull(small.Value("Barley", "Ca (%DM)")));
    EXPECT_EQ(small.Value("Corn", "Read Only"), FieldValue(true));
    EXPECT_EQ(small.Value("My hay", "Read Only"), FieldValue(false));
    FeedLibrary library = small.Open();
    EXPECT_EQ(ErrorOf([&] { library.Table().Value("Cost"); }), kInvalidProcedureCall);
}

TEST(LibraryFile, FindsANameToTheLetterOnly) {
    const SmallLibrary small;
    FeedLibrary library = small.Open();
    EXPECT_TRUE(library.Find("My hay"));
    EXPECT_FALSE(library.Find("my hay"));
    EXPECT_FALSE(library.Find("My hay "));
    EXPECT_TRUE(library.Table().AtEnd());
    EXPECT_TRUE(library.Find("Corn"));
}

TEST(LibraryFile, ANullIsNoNameAndNotTheEmptyOne) {
    const SmallLibrary small("Feed Name,IFN,Category\n,1,Fat\n\"\",2,Fat\n");
    EXPECT_EQ(small.Value("", "IFN"), FieldValue("2"));
    EXPECT_FALSE(SmallLibrary("Feed Name,Category\n,Fat\n").Open().Find(""));
}

TEST(LibraryFile, AddsBehindTheLastRowAndStaysWhereItWas) {
    const SmallLibrary small;
    {
        FeedLibrary library = small.Open();
        Recordset& row = library.Table();
        EXPECT_EQ(ErrorOf([&] { row.SetValue("Feed Name", std::string("x")); }),
                  kInvalidProcedureCall);
        EXPECT_EQ(ErrorOf([&] { row.Update(); }), kInvalidProcedureCall);
        row.AddNew();
        row.SetValue("Feed Name", std::string("It's \"new\"; DROP TABLE --"));
        EXPECT_EQ(ErrorOf([&] { row.SetValue("Cost", 1.0); }), kInvalidProcedureCall);
        row.Update();
        EXPECT_EQ(ShownText(row.Value("Feed Name")), "Corn");
    }
    EXPECT_EQ(small.Names(), "Corn|My hay|Barley|It's \"new\"; DROP TABLE --|");
    EXPECT_EQ(small.Value("It's \"new\"; DROP TABLE --", "Read Only"), FieldValue(false));
    EXPECT_TRUE(IsNull(small.Value("It's \"new\"; DROP TABLE --", "Category")));
}

TEST(LibraryFile, ChangesNoFieldButTheWrittenOnes) {
    const SmallLibrary small;
    {
        FeedLibrary library = small.Open();
        ASSERT_TRUE(library.Find("My hay"));
        library.Table().Edit();
        library.Table().SetValue("Ca (%DM)", FieldValue());
        library.Table().SetValue("P (%DM)", StoredNumber(0.3));
        library.Table().Update();
        EXPECT_EQ(library.Table().Value("P (%DM)"), FieldValue(0.3));
        library.Table().Edit();
        library.Table().Update();  // changes nothing
    }
    EXPECT_TRUE(IsNull(small.Value("My hay", "Ca (%DM)")));
    EXPECT_EQ(small.Value("My hay", "CP (%DM)"), FieldValue(15.0));
    EXPECT_EQ(small.Names(), "Corn|My hay|Barley|");
}

TEST(LibraryFile, DeletesTheCurrentRowAndGoesOnWithTheNext) {
    const SmallLibrary small;
    {
        FeedLibrary library = small.Open();
        Recordset& row = library.Table();
        ASSERT_TRUE(library.Find("My hay"));
        row.Delete();
        EXPECT_EQ(ErrorOf([&] { row.Value("Feed Name"); }), kNoCurrentRecord);
        row.MoveNext();
        EXPECT_EQ(ShownText(row.Value("Feed Name")), "Barley");
        row.Delete();
        row.MoveNext();
        EXPECT_TRUE(row.AtEnd());
    }
    EXPECT_EQ(small.Names(), "Corn|");
}

TEST(LibraryFile, AnEmptyTableHasNoFirstRow) {
    const SmallLibrary small("Feed Name,Category\n");
    FeedLibrary library = small.Open();
    EXPECT_TRUE(library.Table().AtEnd());
    EXPECT_EQ(ErrorOf([&] { library.Table().MoveFirst(); }), kNoCurrentRecord);
    EXPECT_EQ(ErrorOf([&] { library.Find("Corn"); }), kNoCurrentRecord);
    EXPECT_EQ(ErrorOf([&] { library.Table().Edit(); }), kNoCurrentRecord);
    library.Table().AddNew();
    library.Table().Update();
    library.Table().MoveFirst();
    EXPECT_FALSE(library.Table().AtEnd());
}

TEST(LibraryFile, ReadOnlyAllowsNoWrite) {
    const SmallLibrary small;
    FeedLibrary library = small.Open(LibraryUse::ReadOnly);
    EXPECT_EQ(ErrorOf([&] { library.Table().AddNew(); }), kPermissionDenied);
    EXPECT_EQ(ErrorOf([&] { library.Table().Edit(); }), kPermissionDenied);
    EXPECT_EQ(ErrorOf([&] { library.Table().Delete(); }), kPermissionDenied);
    EXPECT_EQ(ErrorOf([&] { library.File().BeginTrans(); }), kPermissionDenied);
}

TEST(LibraryFile, ATransactionWithoutItsEndLeavesNothing) {
    const SmallLibrary small;
    const auto addTwo = [&](bool commit) {
        FeedLibrary library = small.Open();
        library.File().BeginTrans();
        for (const char* const name : {"A", "B"}) {
            library.Table().AddNew();
            library.Table().SetValue("Feed Name", std::string(name));
            library.Table().Update();
        }
        if (commit) library.File().CommitTrans();
    };
    addTwo(false);
    EXPECT_EQ(small.Names(), "Corn|My hay|Barley|");
    addTwo(true);
    EXPECT_EQ(small.Names(), "Corn|My hay|Barley|A|B|");
}

TEST(LibraryOpening, IsExclusiveInOneProcess) {
    const SmallLibrary small;
    FeedLibrary first = small.Open(LibraryUse::ReadOnly);
    EXPECT_EQ(small.OpeningFault(LibraryUse::ReadOnly), kFileInUse);
    EXPECT_EQ(small.OpeningFault(LibraryUse::ReadWrite), kFileInUse);
    EXPECT_EQ(ShownText(first.Table().Value("Feed Name")), "Corn");
    first.Close();
    EXPECT_EQ(small.OpeningFault(), 0);
}

TEST(LibraryOpening, ChecksThePasswordOfTheConnectString) {
    const SmallLibrary small;
    SqliteEngine engine;
    const auto fault = [&](std::string_view connect) {
        return ErrorOf([&] { engine.OpenDatabase(small.Path(), true, true, connect); });
    };
    EXPECT_EQ(fault("; pwd=amber oats"), 0);
    EXPECT_EQ(fault("; pwd=Amber oats"), kNotAValidPassword);
    EXPECT_EQ(fault("; pwd="), kNotAValidPassword);
    EXPECT_EQ(fault(""), kNotAValidPassword);
}

TEST(LibraryOpening, TellsAMissingAndAForeignFileAndLeavesThemAlone) {
    const SmallLibrary small;
    const std::string sound = FileText(small.Path());
    std::filesystem::remove(small.Path());
    EXPECT_EQ(small.OpeningFault(LibraryUse::ReadWrite), kCouldNotFindFile);
    EXPECT_FALSE(std::filesystem::exists(small.Path()));

    const std::size_t page = sound.size() / 2;
    std::string otherDatabase = sound;
    otherDatabase[68] = 'X';  // the mark of the application
    const std::string damaged = sound.substr(0, page) + std::string(page, 'x');
    for (const std::string& text :
         {std::string(), std::string("short"), std::string(70000, 'x'), damaged, otherDatabase,
          sound.substr(0, page), sound.substr(0, 60), "X" + sound.substr(1)}) {
        WriteText(small.Path(), text);
        EXPECT_EQ(small.OpeningFault(LibraryUse::ReadWrite), kUnrecognizedFormat) << text.size();
        EXPECT_EQ(FileText(small.Path()), text);
    }
    std::filesystem::remove(small.Path());
    std::filesystem::create_directory(small.Path());
    EXPECT_EQ(small.OpeningFault(), kUnrecognizedFormat);
}

TEST(DeliveredLibraryFile, KeepsUsersFeedsWhenItIsMadeAnew) {
    const SmallLibrary small;
    CreateDeliveredLibrary(small.Path(), ReadLibraryCsv("Category,Feed Name,Read Only,Ca (%DM)\n"
                                                        "Energy Source,Corn,True,0.04\n"
                                                        "Energy Source,Oats,True,0.1\n"));
    EXPECT_EQ(small.Names(), "Corn|Oats|My hay|");
    EXPECT_EQ(small.Value("Corn", "Ca (%DM)"), FieldValue(0.04));
    EXPECT_EQ(small.Value("My hay", "Ca (%DM)"), FieldValue(0.6));
    CopyDeliveredLibrary(small.Path(), small.Path("copy.mdb"));
    EXPECT_EQ(FeedLibrary(LibraryUse::ReadOnly, small.Path("copy.mdb")).Find("My hay"), false);
}

TEST(DeliveredLibraryFile, ReplacesADamagedOneAndNeedsAFolder) {
    const SmallLibrary small;
    WriteText(small.Path(), "damaged");
    CreateDeliveredLibrary(small.Path(), ReadLibraryCsv(kSmallLibrary));
    EXPECT_EQ(small.Names(), "Corn|My hay|Barley|");
    EXPECT_EQ(ErrorOf([&] { CreateLibrary(small.Path("no/such"), {}); }), kPathNotFound);
}

}  // namespace
}  // namespace tav
