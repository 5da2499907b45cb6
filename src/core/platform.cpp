#include "core/platform.h"

#include "core/runtime_error.h"

#include <cassert>
#include <cstdio>
#include <ctime>
#include <filesystem>

namespace tav {
namespace {

Platform* current = nullptr;

}  // namespace

const char kPathSeparator = static_cast<char>(std::filesystem::path::preferred_separator);

std::string JoinPath(std::string_view folder, std::string_view name) {
    return std::string(folder) + kPathSeparator + std::string(name);
}

bool Platform::ShowOpenDialog(CommonDialog&) { return false; }

bool Platform::ShowSaveDialog(CommonDialog&) { return false; }

void Platform::ShowHelp(const CommonDialog&) {}

int Platform::ShowPrinterSetup(int orientation) { return orientation; }

std::chrono::local_seconds Platform::Now() {
    const std::time_t now = std::time(nullptr);
    const std::tm* const local = std::localtime(&now);
    if (local == nullptr) Raise(kOverflow);
    using namespace std::chrono;
    return local_days(year(local->tm_year + 1900) / (local->tm_mon + 1) / local->tm_mday) +
           hours(local->tm_hour) + minutes(local->tm_min) + seconds(local->tm_sec);
}

ScreenSize Platform::Screen() { return {}; }

std::string Platform::ProgramFolder() { return CurrentFolder(); }

std::string Platform::CurrentFolder() {
    std::error_code error;
    const auto folder = std::filesystem::current_path(error);
    if (error) Raise(kPathNotFound);
    return folder.string();
}

std::optional<std::string> Platform::RegistryText(std::string_view, std::string_view) {
    return std::nullopt;
}

void Platform::StartProcess(const std::string&) { Raise(kFileNotFound); }

void Platform::ReportFatalError(int number, const std::string& description) {
    std::fprintf(stderr, "Run-time error %d: %s\n", number, description.c_str());
}

Platform& ThePlatform() {
    assert(current != nullptr);
    return *current;
}

void SetPlatform(Platform& platform) { current = &platform; }

}  // namespace tav
