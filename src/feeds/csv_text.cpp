#include "feeds/csv_text.h"

#include <algorithm>
#include <array>

namespace tav {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr int kMostCells = 1000;
constexpr char kGuard = '\'';

// Signs with which spreadsheets begin a formula, in the wide forms of East Asian ones as well.
constexpr std::array<std::string_view, 8> kFormulaSigns = {
    "=", "+", "-", "@", "\xEF\xBC\x9D", "\xEF\xBC\x8B", "\xEF\xBC\x8D", "\xEF\xBC\xA0"};

bool WouldRun(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(kGuard), text.size()));
    if (text.starts_with('\t') || text.starts_with('\r') || text.starts_with('\n')) return true;
    text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
    return std::any_of(kFormulaSigns.begin(), kFormulaSigns.end(),
                       [&](std::string_view sign) { return text.starts_with(sign); });
}

}  // namespace

CsvReader::CsvReader(std::string_view text) : rest_(text) {
    if (rest_.starts_with(kByteOrderMark)) rest_.remove_prefix(kByteOrderMark.size());
}

bool CsvReader::TakeLineEnd() {
    const std::size_t length = rest_.starts_with("\r\n") ? 2 : 1;
    if (!rest_.starts_with('\r') && !rest_.starts_with('\n')) return false;
    rest_.remove_prefix(length);
    ++line_;
    return true;
}

void CsvReader::ReadQuoted(CsvCell& cell, int column) {
    cell.Quoted = true;
    rest_.remove_prefix(1);
    while (true) {
        const std::size_t quote = rest_.find('"');
        if (quote == std::string_view::npos) {
            throw CsvFault(cell.Line, column, "the quotation mark is not closed");
        }
        const std::string_view piece = rest_.substr(0, quote);
        line_ += static_cast<int>(std::count(piece.begin(), piece.end(), '\n'));
        cell.Text += piece;
        rest_.remove_prefix(quote + 1);
        if (!rest_.starts_with('"')) break;
        cell.Text += '"';
        rest_.remove_prefix(1);
    }
    if (!rest_.empty() && std::string_view(",\r\n").find(rest_.front()) == std::string_view::npos) {
        throw CsvFault(line_, column, "text stands behind the closing quotation mark");
    }
}

CsvCell CsvReader::ReadCell(int column) {
    CsvCell cell;
    cell.Line = line_;
    if (rest_.starts_with('"')) {
        ReadQuoted(cell, column);
    } else {
        const std::size_t end = std::min(rest_.find_first_of(",\r\n"), rest_.size());
        cell.Text = rest_.substr(0, end);
        rest_.remove_prefix(end);
    }
    return cell;
}

bool CsvReader::ReadRow(std::vector<CsvCell>& row) {
    row.clear();
    while (TakeLineEnd()) {
    }
    if (rest_.empty()) return false;
    while (true) {
        const int column = static_cast<int>(row.size()) + 1;
        if (column > kMostCells) throw CsvFault(line_, column, "the row has too many cells");
        row.push_back(ReadCell(column));
        if (!rest_.starts_with(',')) break;
        rest_.remove_prefix(1);
    }
    TakeLineEnd();
    return true;
}

std::string CsvText(std::string_view text) {
    const bool plain = text.find_first_of(",\"\r\n") == std::string_view::npos &&
                       !text.starts_with(' ') && !text.ends_with(' ');
    if (plain) return std::string(text);
    std::string quoted = "\"";
    for (const char c : text) {
        quoted += c;
        if (c == '"') quoted += c;
    }
    return quoted + '"';
}

std::string WithGuard(std::string text) {
    if (WouldRun(text)) text.insert(text.begin(), kGuard);
    return text;
}

std::string WithoutGuard(std::string text) {
    if (text.starts_with(kGuard) && WouldRun(text)) text.erase(text.begin());
    return text;
}

}  // namespace tav
