#include "scenario/comparison.h"

#include "scenario/expression.h"

#include <cmath>

namespace tav {
namespace {

bool Equal(const std::string& value, const std::string& expected) {
    const std::optional<double> a = DecimalNumber(value);
    const std::optional<double> b = DecimalNumber(expected);
    return a && b ? *a == *b : value == expected;
}

bool Near(const std::string& value, const std::vector<std::string>& expected) {
    const std::optional<double> number = DecimalNumber(value);
    return number && std::abs(*number - *DecimalNumber(expected[0])) <= *DecimalNumber(expected[1]);
}

}  // namespace

bool Fits(const std::optional<std::string>& value, std::string_view comparison,
          const std::vector<std::string>& expected) {
    if (!value) return false;
    if (comparison == "near") return Near(*value, expected);
    if (comparison == "is") return *value == expected[0];
    if (comparison == "==") return Equal(*value, expected[0]);
    if (comparison == "!=") return !Equal(*value, expected[0]);
    const bool contains = value->find(expected[0]) != std::string::npos;
    return comparison == "~" ? contains : !contains;
}

std::string Quoted(std::string_view text) {
    std::string quoted = "\"";
    for (const char c : text) {
        switch (c) {
            case '"': quoted += "\\\""; break;
            case '\\': quoted += "\\\\"; break;
            case '\r': quoted += "\\r"; break;
            case '\n': quoted += "\\n"; break;
            default: quoted += c;
        }
    }
    return quoted + '"';
}

}  // namespace tav
