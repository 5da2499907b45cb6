#include "scenario/record_values.h"

#include "core/number_text.h"
#include "forms/control.h"

#include <type_traits>

namespace tav {
namespace {

using Value = std::optional<std::string>;

Value Show(Single value) { return NumberText(value); }
Value Show(bool value) { return std::string(BooleanText(value)); }
Value Show(std::int16_t value) { return NumberText(static_cast<int>(value)); }
Value Show(std::uint8_t value) { return NumberText(static_cast<int>(value)); }
Value Show(const std::string& value) { return value; }
Value Show(const OptionalReal& value) { return value ? NumberText(*value) : std::string(); }

template <class T>
concept Array = requires(const T& value) {
    value.size();
    value[0];
}
&&!std::is_same_v<T, std::string>;

template <class T>
concept Row = requires(const T& value) {
    VisitFields(value, [](std::string_view, const auto&) {});
};

[[noreturn]] void RefusePath(const PathPart& part) {
    throw NotPossible("the record has no such value: " + part.Name);
}

// rest is what stands behind the part that named the value.
template <class T>
Value ValueIn(const T& value, const Expression& path, std::size_t at);

template <Row T>
Value FieldOf(const T& row, const Expression& path, std::size_t at) {
    if (at >= path.size()) RefusePath(path.back());
    bool found = false;
    Value value;
    VisitFields(row, [&](std::string_view name, const auto& field) {
        if (name != path[at].Name) return;
        found = true;
        value = ValueIn(field, path, at);
    });
    if (!found) RefusePath(path[at]);
    return value;
}

template <class T>
Value ValueIn(const T& value, const Expression& path, std::size_t at) {
    const PathPart& part = path[at];
    if constexpr (Array<T>) {
        constexpr int kFirst = std::is_same_v<T, Texts3> ? 0 : 1;
        if (part.Args.size() != 1) throw NotPossible(part.Name + " needs the place of an entry");
        const std::optional<int> place = WholeNumber(part.Args[0]);
        if (!place) throw NotPossible("\"" + part.Args[0] + "\" is not a whole number");
        const int index = *place - kFirst;
        if (index < 0 || static_cast<std::size_t>(index) >= value.size()) return std::nullopt;
        const auto& entry = value[static_cast<std::size_t>(index)];
        if constexpr (Row<std::remove_cvref_t<decltype(entry)>>) {
            return FieldOf(entry, path, at + 1);
        } else {
            if (at + 1 != path.size()) RefusePath(path.back());
            return Show(entry);
        }
    } else {
        if (!part.Args.empty() || at + 1 != path.size()) RefusePath(path.back());
        return Show(value);
    }
}

}  // namespace

std::optional<std::string> RecordValue(const SimulationRecord& record, const Expression& path) {
    return FieldOf(record, path, 1);
}

}  // namespace tav
