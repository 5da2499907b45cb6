#include "scenario/targets.h"

#include "forms/form_registry.h"

namespace tav {

bool IsFormName(const std::string& target) { return target.find('.') == std::string::npos; }

Form& FormAt(const std::string& name) {
    if (!TheForms().Knows(name)) throw NotPossible("there is no form " + name);
    Form* const form = TheForms().Find(name);
    if (form == nullptr) throw NotPossible(name + " isn't loaded");
    return *form;
}

Control& ControlAt(const PathPart& form, const PathPart& control) {
    int index = -1;
    if (!control.Args.empty()) {
        const std::optional<int> place = WholeNumber(control.Args[0]);
        if (!place || control.Args.size() != 1) {
            throw NotPossible("\"" + control.Args[0] + "\" is not a place in a control array");
        }
        index = *place;
    }
    Control* const found = FormAt(form.Name).Find(control.Name, index);
    if (found == nullptr) {
        const std::string place = index < 0 ? "" : "(" + control.Args[0] + ")";
        throw NotPossible(form.Name + " has no control " + control.Name + place);
    }
    return *found;
}

Control& ControlAt(const std::string& target) {
    const Expression path = ReadExpression(target);
    if (path.size() != 2) throw NotPossible(target + " is not a form and its control");
    return ControlAt(path[0], path[1]);
}

}  // namespace tav
