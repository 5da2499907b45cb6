#include "scenario/lexer.h"

namespace tav {
namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\r'; }

std::size_t EndOfWord(std::string_view line, std::size_t begin) {
    if (line[begin] == '"') {
        const std::size_t end = EndOfQuoted(line, begin);
        if (end < line.size() && !IsBlank(line[end])) {
            throw ScriptError("a blank is missing behind " +
                              std::string(line.substr(begin, end - begin)));
        }
        return end;
    }
    std::size_t at = begin;
    int brackets = 0;
    while (at < line.size() && (brackets > 0 || !IsBlank(line[at]))) {
        if (line[at] == '"') {
            at = EndOfQuoted(line, at);
            continue;
        }
        if (line[at] == '(') ++brackets;
        if (line[at] == ')' && brackets > 0) --brackets;
        ++at;
    }
    while (at > begin && IsBlank(line[at - 1]))
        --at;  // of a bracket that was never closed
    return at;
}

}  // namespace

std::size_t EndOfQuoted(std::string_view text, std::size_t begin) {
    for (std::size_t at = begin + 1; at < text.size(); ++at) {
        if (text[at] == '\\') {
            ++at;
        } else if (text[at] == '"') {
            return at + 1;
        }
    }
    throw ScriptError("a closing quote is missing");
}

std::string Unquoted(std::string_view source) {
    std::string text;
    for (std::size_t at = 1; at + 1 < source.size(); ++at) {
        if (source[at] != '\\') {
            text += source[at];
            continue;
        }
        switch (source[++at]) {
            case '"': text += '"'; break;
            case '\\': text += '\\'; break;
            case 'r': text += '\r'; break;
            case 'n': text += '\n'; break;
            default: throw ScriptError(std::string("no such escape: \\") + source[at]);
        }
    }
    return text;
}

std::vector<Word> SplitLine(std::string_view line) {
    std::vector<Word> words;
    std::size_t at = 0;
    while (true) {
        while (at < line.size() && IsBlank(line[at]))
            ++at;
        if (at == line.size() || line[at] == '#') return words;
        const std::size_t end = EndOfWord(line, at);
        const std::string_view source = line.substr(at, end - at);
        words.push_back(
            {std::string(source), source[0] == '"' ? Unquoted(source) : std::string(source)});
        at = end;
    }
}

}  // namespace tav
