#include "scenario/expression.h"

#include "scenario/lexer.h"

#include <charconv>
#include <cmath>

namespace tav {
namespace {

class PathReader {
  public:
    explicit PathReader(std::string_view source) : source_(source) {}

    Expression Read() {
        Expression path;
        do {
            path.push_back(ReadPart());
        } while (Take('.'));
        if (at_ != source_.size()) Fail();
        return path;
    }

  private:
    [[noreturn]] void Fail() const {
        throw ScriptError("can't read the expression " + std::string(source_));
    }

    bool Take(char c) {
        if (at_ >= source_.size() || source_[at_] != c) return false;
        ++at_;
        return true;
    }

    void SkipBlanks() {
        while (at_ < source_.size() && source_[at_] == ' ')
            ++at_;
    }

    // A quoted text, or everything up to one of the ending characters.
    std::string ReadText(std::string_view ends) {
        const std::size_t begin = at_;
        if (at_ < source_.size() && source_[at_] == '"') {
            at_ = EndOfQuoted(source_, begin);
            return Unquoted(source_.substr(begin, at_ - begin));
        }
        at_ = std::min(source_.find_first_of(ends, begin), source_.size());
        std::string_view text = source_.substr(begin, at_ - begin);
        while (text.ends_with(' '))
            text.remove_suffix(1);
        if (text.empty()) Fail();
        return std::string(text);
    }

    PathPart ReadPart() {
        PathPart part;
        part.Name = ReadText(".()\"");
        if (!Take('(')) return part;
        do {
            SkipBlanks();
            part.Args.push_back(ReadText(",()\""));
            SkipBlanks();
        } while (Take(','));
        if (!Take(')')) Fail();
        return part;
    }

    std::string_view source_;
    std::size_t at_ = 0;
};

template <class T>
std::optional<T> WholeText(std::string_view text) {
    T value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

}  // namespace

Expression ReadExpression(std::string_view source) { return PathReader(source).Read(); }

std::optional<int> WholeNumber(std::string_view text) { return WholeText<int>(text); }

std::optional<double> DecimalNumber(std::string_view text) {
    const std::optional<double> value = WholeText<double>(text);
    return value && std::isfinite(*value) ? value : std::nullopt;
}

}  // namespace tav
