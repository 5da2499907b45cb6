// The value of one field of a library row.
#pragma once

#include "core/number.h"

#include <string>
#include <string_view>
#include <variant>

namespace tav {

// Null, a text, a Boolean or a number.
using FieldValue = std::variant<std::monostate, std::string, bool, double>;

inline bool IsNull(const FieldValue& value) {
    return std::holds_alternative<std::monostate>(value);
}

// The value as what a feed's field needs. Each raises 13 for a Null and for a text that can't be
// brought to the type, the second also 6 for a number beyond the range of 32 bits.
std::string ToText(const FieldValue& value);
Single ToSingle(const FieldValue& value);
bool ToBoolean(const FieldValue& value);

// The value as it is shown: numbers in their shortest form, nothing for a Null.
std::string ShownText(const FieldValue& value);

// The number as which a field of a feed is stored: the one that its shortest decimal text names, so
// that 0.3 of a 32-bit field is 0.3 in the library and not 0.300000012.
FieldValue StoredNumber(Single value);

}  // namespace tav
