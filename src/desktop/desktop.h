// The program on a display: it brings the forms that are loaded to the screen, and what the user
// does to them.
#pragma once

#include "desktop/desktop_platform.h"
#include "forms/form.h"

#include <QList>
#include <QPoint>
#include <QPointer>
#include <functional>
#include <string>
#include <vector>

class QAction;

namespace tav {

class FormView;

class Desktop {
  public:
    // Begins the run: the terms of use are on show when it returns, or the program has ended.
    void Start();

    // Runs what the user has done, or a timer's tick, to its end, then shows everything anew. What
    // can't be done (a control that an earlier action has just disabled) is not done.
    void Perform(const std::function<void()>& action);
    // Hands over what is being typed in any form. Stands before what the menu or the toolbar does.
    void FinishTyping();
    // Whether a cell is open, whose text no form knows yet.
    bool IsTyping() const;
    // Whether an action is being run, and waits for the answer to a message, for example.
    bool IsBusy() const { return depth_ > 0; }

    // Tells the user of a fault that has no number, and ends the program.
    void EndWithFault(const std::string& description);

    // Shows all forms as they are now.
    void Refresh();

    // The view of a form; null if it isn't on show.
    FormView* ViewOf(const Form& form) const;
    // The window that a message or a dialog stands over; null before the first one.
    QWidget* FrontWindow() const;

    DesktopPlatform& Platform() { return platform_; }

  private:
    void RetireClosed();
    void ShowLoaded(bool mainWindows);
    void BringToFront();
    void OpenPopUp();
    QPoint PlaceOfPopUp() const;
    QList<QAction*> ActionsOfContext() const;
    void End();

    DesktopPlatform platform_;
    std::vector<QPointer<FormView>> views_;
    const Form* front_ = nullptr;
    bool popUpOpen_ = false;
    bool ended_ = false;
    int depth_ = 0;
};

// The one of this process.
Desktop& TheDesktop();

}  // namespace tav
