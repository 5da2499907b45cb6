// A script as it is read: its statements.
#pragma once

#include "scenario/expression.h"
#include "scenario/lexer.h"

#include <string>
#include <string_view>
#include <vector>

namespace tav {

struct Statement {
    int Line = 0;
    std::string Name;
    std::vector<std::string> Args;  // "${APP}" and its like still in them

    // Of print and expect.
    Expression Looked;
    std::string LookedSource;
    std::string Operator;
};

// A statement can't be read, with its line.
class ReadError : public ScriptError {
  public:
    ReadError(int line, const std::string& what) : ScriptError(what), Line(line) {}

    int Line;
};

// Reads a whole script. Throws ReadError at the first line that is no statement: an unknown name,
// too few or too many arguments, or one that can't be what it has to be.
std::vector<Statement> ReadScript(std::string_view text);

}  // namespace tav
