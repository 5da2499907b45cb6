#include "cli/text_table.h"

#include <algorithm>

namespace tav {

std::size_t CharacterCount(const std::string& text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
    }));
}

std::string TextTable::Text() const {
    std::vector<std::size_t> widths;
    for (const auto& row : rows_) {
        if (row.size() < 2) continue;
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], CharacterCount(row[i]));
        }
    }
    std::string text;
    for (const auto& row : rows_) {
        std::string line(indent_, ' ');
        for (std::size_t i = 0; i < row.size(); ++i) {
            const std::size_t width = row.size() < 2 ? 0 : widths[i];
            const std::size_t count = CharacterCount(row[i]);
            const std::string blanks(width > count ? width - count : 0, ' ');
            if (i > 0) line.append(gap_, ' ');
            line += i == 0 ? row[i] + blanks : blanks + row[i];
        }
        const std::size_t end = line.find_last_not_of(' ');
        line.resize(end == std::string::npos ? 0 : end + 1);
        text += line + "\n";
    }
    return text;
}

}  // namespace tav
