#include "forms/file_lists.h"

#include "core/platform.h"
#include "core/runtime_error.h"
#include "forms/form.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace tav {
namespace {

namespace fs = std::filesystem;

bool IsFolder(const std::string& path) {
    std::error_code error;
    return fs::is_directory(path, error);
}

// The entries of a folder that are wanted, by name; none if it can't be read.
template <class Wanted>
std::vector<std::string> NamesIn(const std::string& folder, Wanted&& wanted) {
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        if (wanted(*entry)) names.push_back(entry->path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

bool SameLetter(char a, char b) {
    return std::tolower(static_cast<unsigned char>(a)) ==
           std::tolower(static_cast<unsigned char>(b));
}

// A star stands for any characters, a question mark for one. Walks back to the last star on a
// mismatch, so that the time stays within the product of the two lengths.
bool FitsOne(std::string_view name, std::string_view pattern) {
    if (pattern == "*.*") return true;
    std::size_t n = 0, p = 0, star = std::string_view::npos, mark = 0;
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            mark = n;
        } else if (p < pattern.size() && (pattern[p] == '?' || SameLetter(pattern[p], name[n]))) {
            ++p;
            ++n;
        } else if (star != std::string_view::npos) {
            p = star + 1;
            n = ++mark;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

bool Fits(std::string_view name, const std::string& patterns) {
    std::istringstream stream(patterns);
    for (std::string pattern; std::getline(stream, pattern, ';');) {
        if (FitsOne(name, pattern)) return true;
    }
    return false;
}

// Without a closing separator, but for the root's own.
std::string WithoutClosingSeparator(std::string path) {
#ifdef _WIN32
    if (path.size() == 2 && path[1] == ':') path += '\\';
#endif
    const std::size_t root = fs::path(path).root_path().string().size();
    while (path.size() > std::max<std::size_t>(root, 1) &&
           (path.back() == '/' || path.back() == kPathSeparator)) {
        path.pop_back();
    }
    return path;
}

#ifdef _WIN32
std::vector<std::string> SystemDrives() {
    std::vector<std::string> drives;
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        const std::string drive = {letter, ':'};
        if (IsFolder(drive + '\\')) drives.push_back(drive);
    }
    return drives;
}
#else
// A blank in a mount point is written as \040.
std::string WithBlanks(std::string path) {
    const std::string_view blank = "\\040";
    for (std::size_t at = path.find(blank); at != std::string::npos; at = path.find(blank)) {
        path.replace(at, blank.size(), " ");
    }
    return path;
}

bool IsForUsers(const std::string& mountPoint) {
    for (const std::string_view root : {"/media/", "/run/media/", "/mnt/", "/Volumes/"}) {
        if (mountPoint.starts_with(root)) return true;
    }
    return mountPoint == "/mnt";
}

std::vector<std::string> SystemDrives() {
    std::vector<std::string> drives = {"/"};
    const char* const home = std::getenv("HOME");
    if (home != nullptr && IsFolder(home) && drives[0] != home) drives.emplace_back(home);
    std::ifstream mounts("/proc/mounts");
    for (std::string line; std::getline(mounts, line);) {
        std::istringstream fields(line);
        std::string device, mountPoint;
        fields >> device >> mountPoint;
        mountPoint = WithBlanks(mountPoint);
        if (IsForUsers(mountPoint)) drives.push_back(mountPoint);
    }
    return drives;
}
#endif

}  // namespace

std::vector<std::string> DriveList::Drives() { return SystemDrives(); }

std::string DriveList::DefaultDrive() {
#ifdef _WIN32
    return "C:";
#else
    return "/";
#endif
}

void DriveList::SetDrive(const std::string& drive) {
    if (!IsFolder(WithoutClosingSeparator(drive))) tav::Raise(kPathNotFound);
    if (drive == drive_) return;
    drive_ = drive;
    Fire(Change);
}

void DriveList::UserChoose(const std::string& drive) {
    RequireUsable();
    Form::DismissPopUps();
    TakeFocus();
    drive_ = drive;
    Fire(Change);
}

void FolderList::SetPath(const std::string& path) {
    const std::string folder = WithoutClosingSeparator(path);
    if (!IsFolder(folder)) tav::Raise(kPathNotFound);
    if (folder == path_) return;
    path_ = folder;
    Fire(Change);
}

std::vector<std::string> FolderList::Folders() const {
    return NamesIn(path_, [](const fs::directory_entry& entry) {
        std::error_code error;
        return entry.is_directory(error);
    });
}

void FolderList::UserOpen(const std::string& folder) {
    RequireUsable();
    const fs::path target =
        folder == ".." ? fs::path(path_).parent_path() : fs::path(path_) / folder;
    if (!IsFolder(target.string())) throw NotPossible(FullName() + " has no folder " + folder);
    Form::DismissPopUps();
    TakeFocus();
    const std::string previous = path_;
    SetPath(target.string());
    if (path_ == previous) Fire(Change);
}

void FileList::SetPath(const std::string& path) {
    if (!IsFolder(path)) tav::Raise(kPathNotFound);
    path_ = WithoutClosingSeparator(path);
    Refresh();
}

void FileList::SetPattern(std::string pattern) {
    pattern_ = std::move(pattern);
    Refresh();
}

void FileList::Refresh() {
    SetItems(NamesIn(path_, [this](const fs::directory_entry& entry) {
        std::error_code error;
        return entry.is_regular_file(error) && Fits(entry.path().filename().string(), pattern_);
    }));
}

}  // namespace tav
