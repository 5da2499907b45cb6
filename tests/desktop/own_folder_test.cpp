// A user's own copy of the program folder: nothing that the user has saved is ever lost.
#include "desktop/own_folder_copy.h"
#include "support/temporary_folder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace tav {
namespace {

const QString kLibrary = "TAV Dairy Cattle Program - Feed Library.mdb";
const QString kDefaultSimulation = "TAV Dairy Cattle Default Simulation Data File.tav";
const QString kSettings = "TAV Dairy Cattle Program Settings Data File";

class OwnFolder : public testing::Test {
  protected:
    QString Installed(const QString& name = {}) const { return In("installed/" + name); }
    QString Own(const QString& name = {}) const { return In("home/own copy/" + name); }
    QString In(const QString& name) const { return QString::fromStdString(all_.Path("")) + name; }

    static void Write(const QString& path, const QByteArray& text) {
        ASSERT_TRUE(QFileInfo(path).dir().mkpath("."));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
        file.write(text);
    }

    static QByteArray Read(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : "(cannot be read)";
    }

    static void Install(const QString& folder, const QByteArray& version) {
        for (const char* const name :
             {"tav-dairy", "tav", "LICENSE", "README.txt", "TAV Dairy Cattle Program Help.HLP",
              "share/icons/hicolor/scalable/apps/tav-dairy.svg"}) {
            Write(folder + name, name + version);
        }
        for (const char* const name : {"tav-dairy", "tav"}) {
            QFile::setPermissions(folder + name,
                                  QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther);
        }
        Write(folder + "Version.txt", version + "\n");
        Write(folder + kLibrary, "delivered feeds " + version);
        Write(folder + "Simulation Files/Dry Cow.tav", "sample " + version);
    }

    void SetUp() override { Install(Installed(), "1.1.9"); }

    TemporaryFolder all_;
};

TEST_F(OwnFolder, IsCompleteAndTheUsersToChange) {
    Write(Installed("notes of the administrator"), "not the program's");
    EXPECT_FALSE(HoldsProgram(Own()));
    CopyProgram(Installed(), Own());

    EXPECT_TRUE(HoldsProgram(Own()));
    EXPECT_FALSE(IsLater(Installed(), Own()));
    QStringList names = QDir(Installed()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    names.removeOne("notes of the administrator");
    EXPECT_EQ(QDir(Own()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), names);
    for (const QString& name :
         {QString("tav-dairy"), QString("tav"), kLibrary, QString("Simulation Files/Dry Cow.tav"),
          QString("share/icons/hicolor/scalable/apps/tav-dairy.svg")}) {
        EXPECT_EQ(Read(Own(name)), Read(Installed(name))) << name.toStdString();
    }
    // Read-only in the program folder, but it must be possible to renew it here.
    EXPECT_TRUE(QFile::permissions(Own("tav-dairy")) & QFile::WriteOwner);
    EXPECT_TRUE(QFile::permissions(Own("tav")) & QFile::ExeOwner);
}

TEST_F(OwnFolder, TakesALaterProgramAndKeepsTheUsersFiles) {
    CopyProgram(Installed(), Own());
    Write(Own(kLibrary), "own feeds");
    Write(Own(kDefaultSimulation), "own default");
    Write(Own(kSettings), "own settings");
    Write(Own("Simulation Files/Dry Cow.tav"), "changed sample");
    Write(Own("Simulation Files/Bella.tav"), "own cow");

    Install(Installed(), "1.1.10");
    Write(Installed(kDefaultSimulation), "somebody else's default");
    Write(Installed(kSettings), "somebody else's settings");
    Write(Installed("Simulation Files/New Sample.tav"), "new sample");
    ASSERT_TRUE(IsLater(Installed(), Own())) << "1.1.10 is later than 1.1.9";
    EXPECT_FALSE(IsLater(Own(), Installed()));
    CopyProgram(Installed(), Own());

    EXPECT_FALSE(IsLater(Installed(), Own()));
    EXPECT_EQ(Read(Own("tav-dairy")), "tav-dairy1.1.10");
    EXPECT_EQ(Read(Own("TAV Dairy Cattle Program Help.HLP")),
              "TAV Dairy Cattle Program Help.HLP1.1.10");
    EXPECT_EQ(Read(Own(kLibrary)), "own feeds");
    EXPECT_EQ(Read(Own(kDefaultSimulation)), "own default");
    EXPECT_EQ(Read(Own(kSettings)), "own settings");
    EXPECT_EQ(Read(Own("Simulation Files/Dry Cow.tav")), "changed sample");
    EXPECT_EQ(Read(Own("Simulation Files/Bella.tav")), "own cow");
    EXPECT_EQ(Read(Own("Simulation Files/New Sample.tav")), "new sample");
}

// A folder stands where a file has to go: copying breaks off there, says so, and goes on later.
TEST_F(OwnFolder, GoesOnWhereItWasBrokenOff) {
    ASSERT_TRUE(QDir().mkpath(Own("tav/in the way")));
    try {
        CopyProgram(Installed(), Own());
        FAIL() << "nothing was said";
    } catch (const CopyFault& fault) {
        EXPECT_NE(QString::fromUtf8(fault.what()).indexOf(QDir::cleanPath(Own("tav"))), -1)
            << fault.what();
    }
    EXPECT_FALSE(HoldsProgram(Own()));
    Write(Own(kSettings), "saved in between");

    ASSERT_TRUE(QDir(Own("tav")).removeRecursively());
    CopyProgram(Installed(), Own());
    EXPECT_TRUE(HoldsProgram(Own()));
    EXPECT_EQ(Read(Own(kSettings)), "saved in between");
}

// An update that breaks off leaves a program that starts, and is not taken for done.
TEST_F(OwnFolder, UpdatesAgainAfterAnUpdateThatFailed) {
    CopyProgram(Installed(), Own());
    Install(Installed(), "1.2.0");
    ASSERT_TRUE(QFile::remove(Own("tav")));
    ASSERT_TRUE(QDir().mkpath(Own("tav/in the way")));
    EXPECT_THROW(CopyProgram(Installed(), Own()), CopyFault);
    EXPECT_TRUE(HoldsProgram(Own()));
    EXPECT_EQ(Read(Own("tav-dairy")), "tav-dairy1.1.9");
    EXPECT_TRUE(IsLater(Installed(), Own()));
}

TEST_F(OwnFolder, SaysWhereNothingCanBeWritten) {
    EXPECT_TRUE(CanWriteIn(Installed()));
    EXPECT_FALSE(CanWriteIn(In("nowhere")));
    EXPECT_FALSE(CanWriteIn("/proc"));
    EXPECT_EQ(QDir(Installed()).entryList({"*.tmp"}), QStringList()) << "the trial is left behind";

    Write(In("a file"), "");
    EXPECT_THROW(CopyProgram(Installed(), In("a file")), CopyFault);
    EXPECT_THROW(CopyProgram(Installed(), "/proc"), CopyFault);
}

}  // namespace
}  // namespace tav
