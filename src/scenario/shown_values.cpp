#include "scenario/shown_values.h"

#include "forms/control.h"

#include <array>
#include <string_view>

namespace tav {
namespace {

using Value = std::optional<std::string>;

template <class Enum, std::size_t N>
std::string NameOf(const std::array<std::string_view, N>& names, Enum value) {
    return std::string(names.at(static_cast<std::size_t>(value)));
}

std::string Show(MessageIcon icon) {
    return NameOf(std::array<std::string_view, 5>{"None", "Critical", "Question", "Exclamation",
                                                  "Information"},
                  icon);
}

std::string Show(MessageButtons buttons) {
    return NameOf(std::array<std::string_view, 4>{"OK", "OKCancel", "YesNo", "YesNoCancel"},
                  buttons);
}

std::string Show(MessageAnswer answer) {
    return NameOf(std::array<std::string_view, 4>{"OK", "Cancel", "Yes", "No"}, answer);
}

std::string Show(HeadlessPlatform::DialogKind kind) {
    return NameOf(std::array<std::string_view, 4>{"Open", "Save", "Help", "Printer"}, kind);
}

Value PropertyOf(const HeadlessPlatform::ShownMessage& message, const std::string& name) {
    if (name == "Title") return message.Shown.Title;
    if (name == "Text") return message.Shown.Text;
    if (name == "Icon") return Show(message.Shown.Icon);
    if (name == "Buttons") return Show(message.Shown.Buttons);
    if (name == "Answer") return Show(message.Answer);
    return std::nullopt;
}

Value PropertyOf(const HeadlessPlatform::ShownDialog& dialog, const std::string& name) {
    const CommonDialog& asked = dialog.Asked;
    if (name == "Kind") return Show(dialog.Kind);
    if (name == "Title") return asked.DialogTitle;
    if (name == "Folder") return asked.InitDir;
    if (name == "FileName") return asked.FileName;
    if (name == "Filter") return asked.Filter;
    if (name == "FilterIndex") return std::to_string(asked.FilterIndex);
    if (name == "Flags") return std::to_string(asked.Flags);
    if (name == "HelpFile") return asked.HelpFile;
    if (name == "HelpCommand") return std::to_string(asked.HelpCommand);
    if (name == "HelpTopic") return asked.HelpTopic;
    return std::nullopt;
}

// The one that the path means: the last one, or that of its number, from 1.
template <class Shown>
const Shown* Meant(const std::vector<Shown>& shown, const PathPart& part) {
    if (part.Args.empty()) return shown.empty() ? nullptr : &shown.back();
    const std::optional<int> number = WholeNumber(part.Args[0]);
    if (!number || part.Args.size() != 1) {
        throw NotPossible("\"" + part.Args[0] + "\" is not a whole number");
    }
    const bool exists = *number >= 1 && static_cast<std::size_t>(*number) <= shown.size();
    return exists ? &shown[static_cast<std::size_t>(*number - 1)] : nullptr;
}

template <class Shown>
Value ValueOf(const std::vector<Shown>& shown, const Expression& path) {
    if (path.size() != 2) throw NotPossible(path[0].Name + " needs a property");
    const std::string& name = path[1].Name;
    if (name == "Count") return std::to_string(shown.size());
    if (!PropertyOf(Shown(), name)) throw NotPossible(path[0].Name + " has no property " + name);
    const Shown* const meant = Meant(shown, path[0]);
    return meant == nullptr ? std::nullopt : PropertyOf(*meant, name);
}

}  // namespace

std::optional<std::string> MessageValue(const std::vector<HeadlessPlatform::ShownMessage>& messages,
                                        const Expression& path) {
    return ValueOf(messages, path);
}

std::optional<std::string> DialogValue(const std::vector<HeadlessPlatform::ShownDialog>& dialogs,
                                       const Expression& path) {
    return ValueOf(dialogs, path);
}

}  // namespace tav
