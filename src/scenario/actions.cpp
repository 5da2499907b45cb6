#include "scenario/actions.h"

#include "forms/controls.h"
#include "forms/form_registry.h"
#include "scenario/expression.h"
#include "scenario/targets.h"

#include <map>

namespace tav {
namespace {

using Args = std::vector<std::string>;
using Action = void (*)(const Args&);

// The control of that kind that the first argument names.
template <class T>
T& TargetOf(const Args& args, std::string_view kind) {
    Control& control = ControlAt(args[0]);
    auto* const target = dynamic_cast<T*>(&control);
    if (target == nullptr) throw NotPossible(control.FullName() + " is not a " + std::string(kind));
    return *target;
}

int Whole(const std::string& text) { return *WholeNumber(text); }

void Click(const Args& args) {
    if (args.size() == 2) {
        TargetOf<Toolbar>(args, "toolbar").UserClickButton(args[1]);
    } else if (IsFormName(args[0])) {
        FormAt(args[0]).UserClick();
    } else {
        Control& control = ControlAt(args[0]);
        if (control.Kind() == ControlKind::Timer) throw NotPossible(args[0] + " can't be clicked");
        control.UserClick();
    }
}

void RightClick(const Args& args) {
    if (IsFormName(args[0])) {
        FormAt(args[0]).UserRightClick();
    } else {
        ControlAt(args[0]).UserRightClick();
    }
}

void Key(const Args& args) {
    const KeyPress key = ParseKey(args[1]);
    if (IsFormName(args[0])) {
        FormAt(args[0]).UserKey(key);
    } else {
        ControlAt(args[0]).UserKey(key);
    }
}

void ChooseRow(Control& control, int index) {
    if (auto* const list = dynamic_cast<ListBox*>(&control)) {
        list->UserChoose(index);
    } else if (auto* const box = dynamic_cast<ComboBox*>(&control)) {
        box->UserChoose(index);
    } else {
        throw NotPossible(control.FullName() + " is not a list");
    }
}

int RowOf(const Control& control, const std::string& text) {
    int row = -1;
    if (const auto* const list = dynamic_cast<const ListBox*>(&control)) row = list->IndexOf(text);
    if (const auto* const box = dynamic_cast<const ComboBox*>(&control)) row = box->IndexOf(text);
    if (row < 0) throw NotPossible(control.FullName() + " has no entry \"" + text + "\"");
    return row;
}

void Choose(const Args& args) {
    Control& control = ControlAt(args[0]);
    ChooseRow(control, RowOf(control, args[1]));
}

void Mark(const Args& args, bool marked) {
    auto& list = TargetOf<ListBox>(args, "list");
    list.UserMark(RowOf(list, args[1]), marked);
}

void Folder(const Args& args) {
    if (auto* const drives = dynamic_cast<DriveList*>(&ControlAt(args[0]))) {
        drives->UserChoose(args[1]);
    } else {
        TargetOf<FolderList>(args, "folder or drive list").UserOpen(args[1]);
    }
}

void Leave(Control& control) {
    if (control.Owner().IsLoaded() && control.Owner().Focus() == &control) control.UserLeave();
}

template <class T>
bool TypeInto(Control& control, const std::string& text) {
    auto* const box = dynamic_cast<T*>(&control);
    if (box == nullptr) return false;
    box->UserEnter();
    if (box->Owner().Focus() != box) throw NotPossible(box->FullName() + " doesn't keep the focus");
    box->UserType(text);
    return true;
}

void Type(const Args& args) {
    Control& control = ControlAt(args[0]);
    if (!TypeInto<TextBox>(control, args[1]) && !TypeInto<NumericTextBox>(control, args[1]) &&
        !TypeInto<ComboBox>(control, args[1])) {
        throw NotPossible(control.FullName() + " takes no text");
    }
    Leave(control);
}

void Edit(const Args& args) {
    TargetOf<Grid>(args, "grid").UserEdit(Whole(args[1]), Whole(args[2]), args[3]);
}

void Resize(const Args& args) {
    FormAt(args[0]).UserResize(*DecimalNumber(args[1]), *DecimalNumber(args[2]));
}

const std::map<std::string, Action, std::less<>> kActions = {
    {"click", Click},
    {"rightclick", RightClick},
    {"key", Key},
    {"choose", Choose},
    {"chooserow", [](const Args& args) { ChooseRow(ControlAt(args[0]), Whole(args[1])); }},
    {"mark", [](const Args& args) { Mark(args, true); }},
    {"unmark", [](const Args& args) { Mark(args, false); }},
    {"markrow",
     [](const Args& args) { TargetOf<ListBox>(args, "list").UserMark(Whole(args[1]), true); }},
    {"folder", Folder},
    {"type", Type},
    {"focus", [](const Args& args) { ControlAt(args[0]).UserEnter(); }},
    {"leave", [](const Args& args) { ControlAt(args[0]).UserLeave(); }},
    {"edit", Edit},
    {"tab",
     [](const Args& args) {
         TargetOf<TabControl>(args, "tab control").UserClickTab(Whole(args[1]));
     }},
    {"resize", Resize},
    {"maximise", [](const Args& args) { FormAt(args[0]).UserSetState(WindowState::Maximised); }},
    {"minimise", [](const Args& args) { FormAt(args[0]).UserSetState(WindowState::Minimised); }},
    {"close", [](const Args& args) { FormAt(args[0]).UserClose(); }},
};

}  // namespace

bool Act(const std::string& statement, const std::vector<std::string>& args) {
    const auto action = kActions.find(statement);
    if (action == kActions.end()) return false;
    TheForms().Run([&] { action->second(args); });
    return true;
}

}  // namespace tav
