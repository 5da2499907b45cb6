// Views of options, check boxes and command buttons.
#pragma once

#include "desktop/control_view.h"
#include "forms/buttons.h"

#include <QAbstractButton>

namespace tav {

// What the three have in common: a caption with its access key, and a click, by mouse or key.
class ButtonView : public ControlView {
  public:
    ButtonView(CaptionedControl& model, QAbstractButton* button, FormView& form);

  protected:
    void SyncContent() override;
    bool ConsumesKey(const QKeyEvent& key) const override;
    bool EntersFor(Qt::FocusReason reason) const override;

    QAbstractButton& Button() const { return button_; }

  private:
    CaptionedControl& model_;
    QAbstractButton& button_;
};

class OptionView : public ButtonView {
  public:
    OptionView(OptionButton& model, QWidget& parent, FormView& form);

  protected:
    void SyncContent() override;

  private:
    // Whether the tab key leads to it: to the one that is on, or to any where none is. From there
    // the arrow keys lead to the others.
    bool IsDoorToGroup() const;

    OptionButton& model_;
};

class CheckView : public ButtonView {
  public:
    CheckView(CheckBox& model, QWidget& parent, FormView& form);

  protected:
    void SyncContent() override;

  private:
    CheckBox& model_;
};

class CommandView : public ButtonView {
  public:
    CommandView(CommandButton& model, QWidget& parent, FormView& form);
};

}  // namespace tav
