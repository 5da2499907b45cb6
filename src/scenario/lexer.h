// The words of a script's line.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tav {

// A script can't be read: the statement at the line isn't one.
class ScriptError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

struct Word {
    std::string Source;  // as it stands in the line
    std::string Value;   // what it means as an argument: without its quotes, escapes resolved
};

// The words of a line, which blanks separate. A word that begins with a double quote ends with one,
// and holds the escapes \" \\ \r \n. In a word that doesn't, quoted text and what stands in
// brackets belong to the word, blanks included: file("a b.tav").Line(1). A # at the beginning of
// the line or behind a blank begins a comment. Throws ScriptError for a quote that isn't closed, an
// unknown escape, or a text right behind a closing quote.
std::vector<Word> SplitLine(std::string_view line);

// The text that a quoted one stands for; source begins and ends with a double quote.
std::string Unquoted(std::string_view source);

// Where the quoted text ends that begins at that place: one behind the closing quote.
std::size_t EndOfQuoted(std::string_view text, std::size_t begin);

}  // namespace tav
