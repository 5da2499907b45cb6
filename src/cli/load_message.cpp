#include "cli/load_message.h"

#include "core/display_text.h"

namespace tav {
namespace {

constexpr std::size_t kShownCharacters = 60;

// The text of a line, cut short and without anything that would disturb a terminal.
std::string Quoted(const std::string& bytes) {
    std::string shown;
    for (const char c : DisplayText(bytes.substr(0, kShownCharacters))) {
        const auto code = static_cast<unsigned char>(c);
        shown += code < 0x20 || code == 0x7F ? '?' : c;
    }
    return "\"" + shown + (bytes.size() > kShownCharacters ? "..." : "") + "\"";
}

std::string Explanation(const FileFault& fault) {
    std::string number = "error " + std::to_string(fault.Number) + ", " + fault.Description;
    switch (fault.Number) {
        case kFileNotFound: return "there is no such file (" + number + ")";
        case kPathNotFound: return "there is no such folder (" + number + ")";
        case kPermissionDenied: return "the file may not be read (" + number + ")";
        case kPathFileAccessError: return "this is no file that can be read (" + number + ")";
        case kInputPastEnd:
            return "the file ends before " + fault.Item + "; it has been cut off (" + number + ")";
        case kOverflow:
            return fault.Item + ": " + Quoted(fault.Text) + " is too large (" + number + ")";
        case kTypeMismatch:
            if (fault.Item.starts_with("the line")) {
                return Quoted(fault.Text) + " stands where " + fault.Item +
                       " must be: this is no simulation file, or lines are missing or too many (" +
                       number + ")";
            }
            return fault.Item + ": " + Quoted(fault.Text) +
                   " is not what must stand here; a line may be missing or too many (" + number +
                   ")";
        default: return number;
    }
}

}  // namespace

std::string LoadFaultText(const std::string& file, const FileFault& fault) {
    const std::string place = fault.Line > 0 ? ", line " + std::to_string(fault.Line) : "";
    return file + place + ": " + Explanation(fault);
}

}  // namespace tav
