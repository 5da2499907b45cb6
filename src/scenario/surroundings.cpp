#include "scenario/surroundings.h"

#include "forms/control.h"

#include <array>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <random>

namespace tav {
namespace {

namespace fs = std::filesystem;

std::string MakeTemporaryFolder() {
    std::random_device random;
    while (true) {
        const fs::path folder =
            fs::temp_directory_path() / ("tav-scenario-" + std::to_string(random()));
        if (fs::create_directory(folder)) return folder.string();
    }
}

void Replace(std::string& text, const std::string& name, const std::string& value) {
    for (std::size_t at = 0; (at = text.find(name, at)) != std::string::npos; at += value.size()) {
        text.replace(at, name.size(), value);
    }
}

// The full path of a folder, without a closing separator.
std::string FolderPath(const std::string& path) {
    const fs::path full = fs::absolute(path).lexically_normal();
    return (full.has_filename() || full == full.root_path() ? full : full.parent_path()).string();
}

void Check(const std::error_code& error, const std::string& what) {
    if (error) throw NotPossible(what + ": " + error.message());
}

// The clock of the machine, in the zone of the machine, as far as a script doesn't set it.
std::chrono::local_seconds MachineTime() {
    class Machine : public Platform {
      public:
        MessageAnswer ShowMessage(const Message&) override { return MessageAnswer::OK; }
    };
    return Machine().Now();
}

// "2026-11-22 15:27:05"; the digits stand where the pattern has zeros.
std::chrono::local_seconds ReadTime(const std::string& text) {
    constexpr std::string_view kPattern = "0000-00-00 00:00:00";
    bool fits = text.size() == kPattern.size();
    for (std::size_t i = 0; fits && i < text.size(); ++i) {
        const bool digit = text[i] >= '0' && text[i] <= '9';
        fits = kPattern[i] == '0' ? digit : text[i] == kPattern[i];
    }
    if (!fits) throw NotPossible("\"" + text + "\" is not a time such as 2026-11-22 15:27:05");
    const auto number = [&](std::size_t at, std::size_t count) {
        return std::stoi(text.substr(at, count));
    };
    using namespace std::chrono;
    const year_month_day day(year(number(0, 4)), month(static_cast<unsigned>(number(5, 2))),
                             std::chrono::day(static_cast<unsigned>(number(8, 2))));
    if (!day.ok() || number(11, 2) > 23 || number(14, 2) > 59 || number(17, 2) > 59) {
        throw NotPossible("there is no time " + text);
    }
    return local_days(day) + hours(number(11, 2)) + minutes(number(14, 2)) + seconds(number(17, 2));
}

}  // namespace

Surroundings::Surroundings(World& world, std::string scriptFolder)
    : world_(world), scriptFolder_(std::move(scriptFolder)), temporary_(MakeTemporaryFolder()) {
    Platform.AppFolder = JoinPath(temporary_, "app");
    Platform.StartFolder = JoinPath(temporary_, "start");
    Platform.Clock = MachineTime();
    MakeFolder(Platform.AppFolder);
    MakeFolder(Platform.StartFolder);
    world_.PlaceLibrary(Platform.AppFolder);
}

Surroundings::~Surroundings() {
    std::error_code ignored;
    fs::remove_all(temporary_, ignored);
}

std::string Surroundings::Filled(std::string text) const {
    Replace(text, "${APP}", Platform.AppFolder);
    Replace(text, "${START}", Platform.StartFolder);
    Replace(text, "${SCRIPT}", scriptFolder_);
    return text;
}

void Surroundings::SetAppFolder(const std::string& path) {
    MakeFolder(path);
    Platform.AppFolder = FolderPath(path);
    if (!library_.empty()) ApplyLibrary();
}

void Surroundings::SetStartFolder(const std::string& path) {
    MakeFolder(path);
    Platform.StartFolder = FolderPath(path);
}

void Surroundings::SetScreen(int widthInPixels, int heightInPixels) {
    ScreenSize& screen = Platform.ScreenInUse;
    screen.Width = widthInPixels * screen.UnitsPerPixelX;
    screen.Height = heightInPixels * screen.UnitsPerPixelY;
}

void Surroundings::SetClock(const std::string& time) { Platform.Clock = ReadTime(time); }

void Surroundings::SetLibrary(const std::string& csvFile) {
    library_ = csvFile;
    ApplyLibrary();
}

void Surroundings::ApplyLibrary() {
    world_.RemoveLibrary(Platform.AppFolder);
    if (library_ != "none") world_.MakeLibrary(library_, Platform.AppFolder);
}

void Surroundings::QueueAnswer(const std::string& answer) {
    static const std::array<std::pair<std::string_view, MessageAnswer>, 4> kAnswers = {{
        {"OK", MessageAnswer::OK},
        {"Cancel", MessageAnswer::Cancel},
        {"Yes", MessageAnswer::Yes},
        {"No", MessageAnswer::No},
    }};
    for (const auto& [name, value] : kAnswers) {
        if (answer == name) Platform.Answers.push_back(value);
    }
}

void Surroundings::QueueFile(const std::string& path) {
    if (path == "cancel") {
        Platform.Files.emplace_back(std::nullopt);
    } else {
        Platform.Files.emplace_back(fs::absolute(path).string());
    }
}

void Surroundings::QueueOrientation(const std::string& orientation) {
    Platform.Orientations.push_back(orientation == "landscape" ? 1 : 0);
}

void CopyOneFile(const std::string& from, const std::string& to) {
    std::error_code error;
    fs::path target = to;
    if (fs::is_directory(target)) target /= fs::path(from).filename();
    fs::copy_file(from, target, fs::copy_options::overwrite_existing, error);
    Check(error, "can't copy " + from);
}

void WriteWholeFile(const std::string& path, const std::string& text) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file << text;
    file.close();
    if (!file) throw NotPossible("can't write " + path);
}

void RemoveFile(const std::string& path) {
    std::error_code error;
    fs::remove(path, error);
    Check(error, "can't remove " + path);
}

void MakeFolder(const std::string& path) {
    std::error_code error;
    fs::create_directories(path, error);
    Check(error, "can't make the folder " + path);
}

}  // namespace tav
