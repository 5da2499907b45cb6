// Lists of the machine's drives, of a folder's folders and of a folder's files, read from the file
// system.
#pragma once

#include "forms/list_box.h"

#include <string>
#include <string_view>
#include <vector>

namespace tav {

// The drives: letters such as "C:" where the platform has them, otherwise the root, the user's home
// and the mounted places for removable and network media.
class DriveList : public Control {
  public:
    using Control::Control;
    ControlKind Kind() const override { return ControlKind::DriveList; }

    // Read from the system when asked.
    static std::vector<std::string> Drives();
    // The one that is always there: "C:" or "/".
    static std::string DefaultDrive();

    // Setting another one raises Change. Error 76 for a drive that isn't there.
    const std::string& Drive() const { return drive_; }
    void SetDrive(const std::string& drive);

    std::function<void()> Change;

    // Picks a drive, whether it is ready or not: a drive that fails is the program's matter.
    void UserChoose(const std::string& drive);

  private:
    std::string drive_ = DefaultDrive();
};

// The folders in Path, sorted by name.
class FolderList : public Control {
  public:
    using Control::Control;
    ControlKind Kind() const override { return ControlKind::FolderList; }

    // A full path without a closing separator, other than the root's. Setting another one raises
    // Change. Error 76 if there is no such folder.
    const std::string& Path() const { return path_; }
    void SetPath(const std::string& path);

    // The names of the folders in Path; empty if it can't be read.
    std::vector<std::string> Folders() const;

    std::function<void()> Change;

    // Opens a folder: its full path, the name of one in Path, or "..". Raises Change for the one
    // that is open as well, so that its files can be read anew.
    void UserOpen(const std::string& folder);

  private:
    std::string path_ = DriveList::DefaultDrive();
};

// The files of Path that fit Pattern, sorted by name.
class FileList : public ListBox {
  public:
    FileList(Form& owner, std::string name) : ListBox(owner, std::move(name)) {}
    FileList(Control& container, std::string name) : ListBox(container, std::move(name)) {}
    ControlKind Kind() const override { return ControlKind::FileList; }

    // Setting either reads the folder anew and takes all marks away. Error 76 if there is no such
    // folder. The pattern is "*.tav", several separated by semicolons; upper and lower case are
    // alike.
    const std::string& Path() const { return path_; }
    void SetPath(const std::string& path);
    const std::string& Pattern() const { return pattern_; }
    void SetPattern(std::string pattern);
    void Refresh();

    // The chosen file's name, empty if none is chosen.
    const std::string& FileName() const { return Text(); }

  private:
    std::string path_;
    std::string pattern_ = "*.*";
};

}  // namespace tav
