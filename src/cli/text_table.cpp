#include "cli/text_table.h"

#include <algorithm>

namespace tav {

std::size_t CharacterCount(const std::string& text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
    }));
}

std::string TextTable::Text() const {
    std::vector<std::size_t> widths(sides_.size(), 0);
    for (const auto& row : rows_) {
        for (std::size_t i = 0; i < widths.size(); ++i) {
            widths[i] = std::max(widths[i], CharacterCount(row[i]));
        }
    }
    std::string text;
    for (const auto& row : rows_) {
        std::string line;
        for (std::size_t i = 0; i < widths.size(); ++i) {
            const std::string blanks(widths[i] - CharacterCount(row[i]), ' ');
            if (i > 0) line += "  ";
            line += sides_[i] == 'l' ? row[i] + blanks : blanks + row[i];
        }
        line.resize(line.find_last_not_of(' ') + 1);
        text += line + "\n";
    }
    return text;
}

}  // namespace tav
