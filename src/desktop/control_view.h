// What shows one control.
//
// A view owns a widget. It reads its control anew whenever Sync is called, and it passes what the
// user does on to the control's User operations, through Perform. It decides nothing itself.
#pragma once

#include "forms/control.h"

#include <QAction>
#include <QKeyEvent>
#include <QList>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

namespace tav {

class FormView;

class ControlView : public QObject {
  public:
    // The widget belongs to its parent widget, which outlives neither the form's view nor this.
    ControlView(Control& model, QWidget& widget, FormView& form);

    Control& Model() const { return model_; }
    QWidget& Widget() const { return widget_; }

    // Reads the control: place, font, whether it is shown and can be used, then its content.
    void Sync();

    // The widget that has the keyboard when the control has the focus.
    virtual QWidget* FocusWidget() { return &widget_; }

    // Hands over what is being typed and hasn't reached the control yet, as before a command from
    // the menu.
    virtual void FinishTyping() {}

    // Whether something is being typed that the control doesn't know of yet.
    virtual bool IsTyping() const { return false; }

    // What the view itself offers in the control's pop-up menu.
    virtual QList<QAction*> OwnActions() { return {}; }

    // Listens to nothing any more. Stands before the widgets are taken away.
    void StopListening();

    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    virtual void SyncContent() = 0;

    // How tall the widget wants to be at least, for kinds whose height is their own matter.
    virtual std::optional<int> OwnHeight() const { return std::nullopt; }

    // Runs an action of the user's on the control, then shows the whole program anew.
    void Perform(const std::function<void()>& action);

    // Listens to the widget's keys, mouse and focus on the control's behalf. Call it for every
    // widget that can take them.
    void Watch(QWidget& widget);

    // Whether the control itself says what a right click does; the widget's own menu opens
    // otherwise.
    bool HasRightClick() const;

    // Whether a key is done with when the control has had it, and doesn't reach the widget.
    virtual bool ConsumesKey(const QKeyEvent& key) const;
    // Whether a click is passed on as one of the control's; widgets that tell their clicks by a
    // signal of their own say no.
    virtual bool PassesClicks() const { return false; }
    // Whether the keyboard's coming for that reason means that the user turns to the control. Not
    // for menus and for the window that comes to the front again, nor for a press of the mouse
    // where the click that it begins does so.
    virtual bool EntersFor(Qt::FocusReason reason) const;

    FormView& TheForm() const { return form_; }

  private:
    bool MousePressed(Qt::MouseButton button);
    bool KeyPressed(const QKeyEvent& event);
    void FocusTaken(Qt::FocusReason reason);

    Control& model_;
    QWidget& widget_;
    FormView& form_;
    std::vector<QPointer<QWidget>> watched_;
};

// A key as the controls know it; nothing for one that only goes with others, such as Shift.
std::optional<KeyPress> KeyOf(const QKeyEvent& event);

}  // namespace tav
