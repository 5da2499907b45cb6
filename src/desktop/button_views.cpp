#include "desktop/button_views.h"

#include "desktop/text.h"
#include "forms/form.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>

namespace tav {

ButtonView::ButtonView(CaptionedControl& model, QAbstractButton* button, FormView& form)
    : ControlView(model, *button, form), model_(model), button_(*button) {
    Watch(*button);
    QObject::connect(button, &QAbstractButton::clicked,
                     [this] { Perform([this] { model_.UserClick(); }); });
}

void ButtonView::SyncContent() {
    const QString caption = ToQt(model_.Caption);
    if (button_.text() != caption) button_.setText(caption);
}

// The control presses itself for Space.
bool ButtonView::ConsumesKey(const QKeyEvent& key) const {
    return key.key() == Qt::Key_Space || ControlView::ConsumesKey(key);
}

bool ButtonView::EntersFor(Qt::FocusReason reason) const {
    return reason != Qt::MouseFocusReason && ControlView::EntersFor(reason);
}

OptionView::OptionView(OptionButton& model, QWidget& parent, FormView& form)
    : ButtonView(model, new QRadioButton(&parent), form), model_(model) {}

// An exclusive button can't be switched off by itself.
void OptionView::SyncContent() {
    ButtonView::SyncContent();
    Button().setAutoExclusive(false);
    Button().setChecked(model_.Value());
    Button().setAutoExclusive(true);
    Button().setFocusPolicy(IsDoorToGroup() ? Qt::StrongFocus : Qt::ClickFocus);
}

bool OptionView::IsDoorToGroup() const {
    if (model_.Value()) return true;
    const std::vector<Control*>& all = model_.Owner().Controls();
    return std::none_of(all.begin(), all.end(), [this](const Control* control) {
        return control->Kind() == ControlKind::OptionButton &&
               control->Container() == model_.Container() &&
               static_cast<const OptionButton*>(control)->Value();
    });
}

CheckView::CheckView(CheckBox& model, QWidget& parent, FormView& form)
    : ButtonView(model, new QCheckBox(&parent), form), model_(model) {}

void CheckView::SyncContent() {
    ButtonView::SyncContent();
    Button().setChecked(model_.Value);
}

CommandView::CommandView(CommandButton& model, QWidget& parent, FormView& form)
    : ButtonView(model, new QPushButton(&parent), form) {
    auto* const button = static_cast<QPushButton*>(&Button());
    button->setAutoDefault(false);
    button->setDefault(model.Default);
}

}  // namespace tav
