#include "scenario/looking.h"

#include "core/display_text.h"
#include "core/number_text.h"
#include "core/program_state.h"
#include "core/simulation_record.h"
#include "forms/form_registry.h"
#include "scenario/properties.h"
#include "scenario/record_values.h"
#include "scenario/shown_values.h"
#include "scenario/targets.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace tav {
namespace {

using Value = std::optional<std::string>;

[[noreturn]] void Refuse(const PathPart& part) {
    throw NotPossible("nothing of the name " + part.Name + " can be looked at");
}

std::string NumberOf(std::size_t value) { return std::to_string(value); }

Value ProgramValueOf(const Expression& path) {
    if (path.size() != 2) Refuse(path[0]);
    const PathPart& name = path[1];
    const std::optional<int> index = name.Args.empty() ? 0 : WholeNumber(name.Args[0]);
    if (!index || *index < 0) throw NotPossible("\"" + name.Args[0] + "\" is not a whole number");
    Value value = ProgramValue(name.Name, static_cast<std::size_t>(*index));
    if (!value && !ProgramValue(name.Name)) Refuse(name);
    return value;
}

// The lines of a text. An empty rest behind the last line end is no line.
std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        if (line.ends_with('\r')) line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

Value FileValue(const Expression& path) {
    if (path.size() != 2 || path[0].Args.size() != 1) Refuse(path[0]);
    const PathPart& asked = path[1];
    const std::string& name = path[0].Args[0];
    std::error_code error;
    if (asked.Name == "Exists") {
        return std::string(BooleanText(std::filesystem::exists(name, error)));
    }
    std::ifstream file(name, std::ios::binary);
    if (!file || !std::filesystem::is_regular_file(name, error)) return std::nullopt;
    const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    if (asked.Name == "Text") return text;
    const std::vector<std::string> lines = LinesOf(text);
    if (asked.Name == "Lines") return NumberOf(lines.size());
    if (asked.Name != "Line" || asked.Args.size() != 1) Refuse(asked);
    const std::optional<int> number = WholeNumber(asked.Args[0]);
    if (!number || *number < 1 || static_cast<std::size_t>(*number) > lines.size())
        return std::nullopt;
    return lines[static_cast<std::size_t>(*number - 1)];
}

Value FormValue(const Expression& path) {
    const std::string& name = path[0].Name;
    if (path.size() == 3) return PropertyOf(ControlAt(path[0], path[1]), path[2]);
    if (path.size() != 2) Refuse(path[0]);
    const PathPart& property = path[1];
    if (!TheForms().Knows(name)) throw NotPossible("there is no form " + name);
    const Form* const form = TheForms().Find(name);
    if (property.Name == "Loaded") return std::string(BooleanText(form != nullptr));
    if (property.Name == "Visible" && form == nullptr) return std::string(BooleanText(false));
    return PropertyOf(FormAt(name), property);
}

Value RawValue(const Expression& path, const Surroundings& surroundings, World& world) {
    const HeadlessPlatform& platform = surroundings.Platform;
    const std::string& root = path[0].Name;
    if (root == "record") return RecordValue(TheSimulation(), path);
    if (root == "program") return ProgramValueOf(path);
    if (root == "file") return FileValue(path);
    if (root == "message") return MessageValue(platform.Messages, path);
    if (root == "dialog") return DialogValue(platform.Dialogs, path);
    if (root == "library") return world.LibraryValue(platform.AppFolder, path);
    if (root == "report") return world.ReportValue(path);
    return FormValue(path);
}

}  // namespace

std::optional<std::string> Look(const Expression& path, const Surroundings& surroundings,
                                World& world) {
    Expression filled = path;
    for (PathPart& part : filled) {
        for (std::string& arg : part.Args)
            arg = surroundings.Filled(arg);
    }
    const Value value = RawValue(filled, surroundings, world);
    return value ? Value(DisplayText(*value)) : std::nullopt;
}

}  // namespace tav
