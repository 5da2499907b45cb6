#include "cli/batch_files.h"

#include <filesystem>

namespace tav {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// Whether two paths lead to the same regular file. The output may also be a device.
bool IsSameFile(const std::string& path, const std::string& other) {
    std::error_code error;
    return fs::is_regular_file(other, error) && fs::equivalent(path, other, error);
}

}  // namespace

BatchFiles::BatchFiles(std::vector<std::string> files, const std::string& list)
    : files_(std::move(files)) {
    if (!list.empty()) list_.emplace(list);
}

std::optional<std::string> BatchFiles::Next() {
    if (list_) return NextLine();
    if (next_ == files_.size()) return std::nullopt;
    return files_[next_++];
}

std::optional<std::string> BatchFiles::NextLine() {
    try {
        while (true) {
            std::string_view line = list_->ReadLine();
            if (list_->Line() == 1 && line.starts_with(kByteOrderMark)) {
                line.remove_prefix(kByteOrderMark.size());
            }
            if (!line.empty()) return std::string(line);
        }
    } catch (const RuntimeError& error) {
        if (error.Number == kInputPastEnd) return std::nullopt;
        throw ListFault(error);
    }
}

BatchSurvey SurveyBatch(const std::vector<std::string>& files, const std::string& list,
                        const std::string& output) {
    BatchSurvey survey;
    std::error_code error;
    if (!list.empty() && !fs::is_regular_file(list, error)) return survey;
    survey.HoldsOutput = !list.empty() && IsSameFile(list, output);
    // Files of another name are not looked at: a herd may have very many.
    const fs::path name = fs::path(output).filename();
    BatchFiles paths(files, list);
    while (const std::optional<std::string> path = paths.Next()) {
        ++survey.Count;
        survey.HoldsOutput =
            survey.HoldsOutput || (fs::path(*path).filename() == name && IsSameFile(*path, output));
    }
    survey.IsEmpty = survey.Count == 0;
    return survey;
}

}  // namespace tav
