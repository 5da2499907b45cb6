// What shows one form: a window, or a pane in the main window, with a view for each control.
#pragma once

#include "desktop/control_view.h"
#include "forms/form.h"

#include <QPointer>
#include <QWidget>
#include <map>
#include <memory>
#include <vector>

namespace tav {

class FormView : public QObject {
  public:
    // The view that fits the form. It belongs to itself until Retire.
    static FormView* Of(Form& form);

    ~FormView() override;

    Form& TheForm() const { return form_; }
    // Whether the form is still loaded. One that isn't must not be touched, and the widgets may be
    // on their way out.
    bool IsLive() const;

    // Shows the form as it is now.
    virtual void Sync();
    virtual void BringToFront();
    // Hands over what is being typed into the form and hasn't reached its controls yet.
    void FinishTyping();
    bool IsTyping() const;
    // Takes the form off the screen at once, and itself away when no event is on its way any more.
    void Retire();

    // The window in which it stands.
    QWidget* Window() const;
    // The area on which the controls stand.
    QWidget& Surface() const { return *surface_; }
    // Where a child form stands; null where there is no room for one.
    virtual QWidget* ChildArea() { return nullptr; }

    ControlView* ViewOf(const Control& control) const;
    // The control whose widget that is, or in whose widget it stands; null if it is none's.
    Control* ControlOf(const QWidget* widget) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    // pane is the whole of what the form takes, surface the part of it for the controls.
    FormView(Form& form, QWidget* pane, QWidget* surface);

    QWidget& Pane() const { return *pane_; }
    void Perform(const std::function<void()>& action) const;
    virtual void SyncWindow() = 0;

  private:
    void MakeViews();
    QWidget& PlaceOf(const Control& control) const;
    void SyncFocus();
    void GiveFirstFocus();

    Form& form_;
    // Goes with the main window where it stands in that one.
    QPointer<QWidget> pane_;
    QWidget* surface_;
    std::vector<std::unique_ptr<ControlView>> views_;
    std::map<const Control*, ControlView*> viewOf_;
    const Control* focusShown_ = nullptr;
    bool retired_ = false;
};

}  // namespace tav
