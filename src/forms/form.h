// A form: a window, its controls and its events.
//
// A screen is a class derived from Form whose controls are members under their own names; each
// registers itself with the form:
//
//   class FeedsForm : public Form {
//     public:
//       FeedsForm() : Form("frmFeeds") { cmdMoveUp.Click = [this] { cmdMoveUp_Click(); }; }
//       CommandButton cmdMoveUp{*this, "cmdMoveUp"};
//     private:
//       void cmdMoveUp_Click();
//       void Form_Load() override;
//   };
#pragma once

#include "core/number.h"
#include "forms/control.h"

#include <string>
#include <string_view>
#include <vector>

namespace tav {

class MenuItem;

enum class WindowState { Normal, Minimised, Maximised };

class Form {
  public:
    explicit Form(std::string name);
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    virtual ~Form() = default;

    const std::string& Name() const { return name_; }

    std::string Caption;
    bool Enabled = true;
    Single Left, Top, Width, Height;  // of the window with its frame, layout units
    // What frame, caption, menu and toolbar take of the window; the rest is the client area.
    Single FrameWidth = 120, FrameHeight = 405;
    bool Sizable = true;        // the user may pull, maximise and minimise it
    bool HasCloseBox = true;    // the user may close it
    bool IsMainWindow = false;  // holds the forms with IsChild
    bool IsChild = false;       // stands inside the main window and has no frame of its own

    Number ClientWidth() const { return Width - FrameWidth; }
    Number ClientHeight() const { return Height - FrameHeight; }

    // Sets the size or the state and raises Form_Resize if that changed anything. Coming back to
    // Normal restores the size that the window had there.
    void Resize(Number width, Number height);
    void SetWindowState(WindowState state);
    WindowState State() const { return state_; }

    // The controls in the order in which they were made; those of an array one after the other.
    const std::vector<Control*>& Controls() const { return controls_; }
    // The control of that name, null if there is none. index is the place in a control array.
    Control* Find(std::string_view name, int index = -1) const;

    // The control that has the focus, null if none has it. MoveFocus completes the entry in the one
    // that had it and raises its LostFocus, then GotFocus of the new one; null takes the focus
    // away.
    Control* Focus() const { return focus_; }
    void MoveFocus(Control* control);

    // Shows one of this form's menus as a pop-up under the mouse, and keeps it open until the user
    // chooses one of its entries or does something else. Closed is called then.
    void PopUp(MenuItem& menu, std::function<void()> closed = {});
    MenuItem* OpenPopUp() const { return popUp_; }
    void ClosePopUp();

    bool IsLoaded() const { return loaded_; }
    bool Visible() const { return visible_; }
    bool IsModal() const { return modal_; }

    // What the user does to the window; each throws NotPossible where it isn't allowed.
    void UserResize(Number width, Number height);
    void UserSetState(WindowState state);
    void UserClick();  // a press of the left button on the form's own surface
    void UserRightClick();
    void UserKey(const KeyPress& key);
    void UserClose();

    // Throws NotPossible unless the form is shown, enabled and not behind a modal one.
    void RequireUsable() const;
    // Closes a pop-up menu that is open in any form, as any action elsewhere does.
    static void DismissPopUps();
    // Completes what the user is entering in this form, or in any, before a menu, a toolbar or the
    // closing of the form acts on it.
    void FinishEntry();
    static void FinishEntries();

  protected:
    // The events. A form that unloads itself in one of them stays until the event has run.
    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    virtual void Form_Resize() {}
    virtual void Form_QueryUnload(bool& /*cancel*/) {}
    virtual void Form_Unload(bool& /*cancel*/) {}
    virtual void Form_Click() {}
    virtual void Form_MouseDown(MouseButton /*button*/) {}
    virtual void Form_MouseUp(MouseButton /*button*/) {}
    virtual void Form_KeyDown(const KeyPress& /*key*/) {}

  private:
    friend class Control;
    friend class FormRegistry;

    void Press(MouseButton button);
    // Clicks the default button for Enter, the cancel button for Escape, if there is one to click.
    void PressButtonOf(const KeyPress& key);

    std::string name_;
    std::vector<Control*> controls_;
    Control* focus_ = nullptr;
    MenuItem* popUp_ = nullptr;
    std::function<void()> popUpClosed_;
    WindowState state_ = WindowState::Normal;
    Single normalWidth_, normalHeight_;
    bool loaded_ = false;
    bool unloading_ = false;
    bool visible_ = false;
    bool modal_ = false;
};

}  // namespace tav
