#include "desktop/accessibility.h"

#include "desktop/form_view.h"
#include "desktop/text.h"
#include "forms/passive_controls.h"

#include <QLabel>
#include <limits>

namespace tav {
namespace {

// How far a label's end is from a control that it may belong to: one beside it counts before one
// above. Nothing if it stands elsewhere.
std::optional<double> Distance(const Label& label, const Control& control) {
    const double right = label.Left.Value() + label.Width.Value();
    const double bottom = label.Top.Value() + label.Height.Value();
    const double left = control.Left.Value();
    const double top = control.Top.Value();
    const bool sameLine = label.Top.Value() < top + control.Height.Value() && bottom > top;
    if (sameLine && label.Left.Value() < left) return std::abs(left - right);
    const bool sameColumn = label.Left.Value() < left + control.Width.Value() && right > left;
    constexpr double kAboveCountsLess = 1000;
    if (sameColumn && bottom <= top + control.Height.Value() / 2 && label.Top.Value() < top) {
        return kAboveCountsLess + std::abs(top - bottom);
    }
    return std::nullopt;
}

const Label* LabelOf(const Form& form, const Control& control) {
    const Label* nearest = nullptr;
    double least = std::numeric_limits<double>::max();
    for (const Control* const other : form.Controls()) {
        const auto* const label = dynamic_cast<const Label*>(other);
        if (label == nullptr || label->Container() != control.Container() ||
            label->TabPage != control.TabPage || label->Caption.empty()) {
            continue;
        }
        const std::optional<double> distance = Distance(*label, control);
        if (distance && *distance < least) {
            least = *distance;
            nearest = label;
        }
    }
    return nearest;
}

bool TakesEntry(const Control& control) {
    return control.TakesFocus() && dynamic_cast<const CaptionedControl*>(&control) == nullptr &&
           control.HasPlace();
}

void Name(const Form& form, const FormView& view, const Control& control, QWidget& widget) {
    if (const Label* const label = LabelOf(form, control)) {
        widget.setAccessibleName(WithoutAccessKey(label->Caption));
        ControlView* const shown = view.ViewOf(*label);
        auto* const text = shown == nullptr ? nullptr : qobject_cast<QLabel*>(&shown->Widget());
        if (text != nullptr && text->buddy() == nullptr) text->setBuddy(&widget);
        return;
    }
    if (const auto* const frame = dynamic_cast<const Frame*>(control.Container())) {
        widget.setAccessibleName(WithoutAccessKey(frame->Caption));
    }
}

}  // namespace

void NameForScreenReaders(const Form& form, const FormView& view) {
    for (const Control* const control : form.Controls()) {
        ControlView* const shown = view.ViewOf(*control);
        if (shown == nullptr || !TakesEntry(*control)) continue;
        QWidget* const widget = shown->FocusWidget();
        if (widget != nullptr && widget->accessibleName().isEmpty()) {
            Name(form, view, *control, *widget);
        }
    }
}

}  // namespace tav
