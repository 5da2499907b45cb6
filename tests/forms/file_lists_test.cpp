#include "forms/sample_form.h"
#include "support/temporary_folder.h"

#include <filesystem>
#include <fstream>

namespace tav {
namespace {

namespace fs = std::filesystem;

class FileForm : public SampleForm {
  public:
    FileForm(const std::string& name, EventLog& log) : SampleForm(name, log) {
        Drives.Change = [this] { Events.push_back("drive " + Drives.Drive()); };
        Folders.Change = [this] {
            Events.push_back("folder");
            Files.SetPath(Folders.Path());
        };
        Files.MultiSelect = true;
        Files.SetPattern("*.tav");
    }
    DriveList Drives{*this, "DriveList"};
    FolderList Folders{*this, "DirList"};
    FileList Files{*this, "FileList"};
};

class FileListsTest : public FormsTest {
  protected:
    FileListsTest() {
        fs::create_directories(Root / "herd");
        fs::create_directories(Root / "folder.tav");
        for (const char* const name : {"b.tav", "A.TAV", "notes.txt", "c.tav.bak"}) {
            std::ofstream(Root / name) << "x";
        }
    }

    TemporaryFolder Folder;
    fs::path Root = Folder.Path("root");
    FileForm& Form = Open<FileForm>();
};

TEST_F(FileListsTest, FilesFollowTheFolderAndFitThePattern) {
    Form.Folders.SetPath(Root.string() + "/");
    EXPECT_EQ(Form.Folders.Path(), Root.string());
    EXPECT_EQ(Form.Files.Items(), (std::vector<std::string>{"A.TAV", "b.tav"}));
    EXPECT_EQ(Form.Folders.Folders(), (std::vector<std::string>{"folder.tav", "herd"}));
    Form.Files.UserMark(1, true);
    Form.Files.SetPattern("*.txt;?.tav.*");
    EXPECT_EQ(Form.Files.Items(), (std::vector<std::string>{"c.tav.bak", "notes.txt"}));
    EXPECT_FALSE(Form.Files.Selected(1));
}

TEST_F(FileListsTest, UserWalksThroughTheFolders) {
    Form.Folders.UserOpen(Root.string());
    Form.Folders.UserOpen("herd");
    EXPECT_EQ(Form.Folders.Path(), (Root / "herd").string());
    EXPECT_EQ(Form.Files.ListCount(), 0);
    Form.Folders.UserOpen("..");
    EXPECT_EQ(Form.Folders.Path(), Root.string());
    EXPECT_THROW(Form.Folders.UserOpen("nowhere"), NotPossible);
    EXPECT_EQ(Events.size(), 3u);
}

TEST_F(FileListsTest, WhatIsNotThereIsAnError) {
    const std::string nowhere = (Root / "nowhere").string();
    for (const auto& set : std::vector<std::function<void()>>{
             [&] { Form.Folders.SetPath(nowhere); }, [&] { Form.Files.SetPath(nowhere); },
             [&] { Form.Drives.SetDrive(nowhere); }}) {
        try {
            set();
            FAIL() << "no error";
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.Number, kPathNotFound);
        }
    }
    EXPECT_TRUE(Events.empty());
}

TEST_F(FileListsTest, UserMayPickADriveThatFails) {
    Form.Drives.UserChoose("/nowhere");
    EXPECT_EQ(Events, (EventLog{"drive /nowhere"}));
    const auto drives = DriveList::Drives();
    EXPECT_NE(std::find(drives.begin(), drives.end(), DriveList::DefaultDrive()), drives.end());
    for (const std::string& drive : drives)
        EXPECT_TRUE(fs::is_directory(drive)) << drive;
}

}  // namespace
}  // namespace tav
