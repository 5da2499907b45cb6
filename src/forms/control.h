// What all controls have in common: a name, a place on a form, properties and events.
//
// A control holds what a screen reads and sets, in layout units (15 a pixel at design size), and
// knows nothing of pixels. The program sets its properties, and nobody is told: a view reads the
// whole form anew after each event. An event is a callable that the form ties to one of its
// operations.
//
// What a person's hands do are the operations whose names begin with User. They throw NotPossible
// where a person could not do it, and raise the events in the order in which they are due. They are
// the only way in: a desktop and a test tool call the same ones.
#pragma once

#include "core/number.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tav {

class Form;

enum class ControlKind {
    Label,
    Frame,
    TextBox,
    NumericTextBox,
    ListBox,
    ComboBox,
    OptionButton,
    CheckBox,
    CommandButton,
    PictureBox,
    Image,
    Line,
    Timer,
    Grid,
    TabControl,
    Toolbar,
    DriveList,
    FolderList,
    FileList,
    DocumentPane,
    Menu
};

enum class Alignment { Left, Right, Center };

enum class MouseButton { Left, Right, Middle };

// A key with the keys that are held with it. Key is a letter or digit in upper case, or a name such
// as "Enter", "Escape", "F1" or "Space".
struct KeyPress {
    std::string Key;
    bool Ctrl = false;
    bool Shift = false;
    bool Alt = false;
};

// Reads "Ctrl+Shift+V". Throws NotPossible when it names no key.
KeyPress ParseKey(std::string_view text);

// A person can't do what was asked, because the control is disabled or hidden, or has no such
// entry.
class NotPossible : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

class Control {
  public:
    // On a form, or in a container on one. Registers the control with the form.
    Control(Form& owner, std::string name, int index = -1);
    Control(Control& container, std::string name, int index = -1);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() = default;

    virtual ControlKind Kind() const = 0;

    const std::string& Name() const { return name_; }
    int Index() const { return index_; }  // place in a control array, from 0; -1 outside of one
    std::string FullName() const;         // "frmInputs.cboSumRes(3)"
    Form& Owner() const { return *owner_; }
    Control* Container() const {
        return container_;
    }  // frame, tab control or picture, null: the form

    // Set by the program. Left and Top count from the container's corner.
    bool Enabled = true;
    bool Visible = true;
    Single Left, Top, Width, Height;
    Single FontSize = 8;  // points
    std::string ToolTip;
    int TabPage = 0;  // the page of the tab control that it stands on, where that is the container

    std::function<void()> Click;
    std::function<void()> GotFocus;
    std::function<void()> LostFocus;
    std::function<void(MouseButton)> MouseDown;
    std::function<void(MouseButton)> MouseUp;
    std::function<void(const KeyPress&)> KeyDown;

    void Move(Number left, Number top, Number width, Number height);

    // Gives the focus to this control, as the program does it. Nothing if a person couldn't turn to
    // it.
    void SetFocus();

    // Whether it has a place on the form and a font. A timer and a menu have neither, a line and an
    // image no font.
    virtual bool HasPlace() const { return true; }
    virtual bool HasFont() const { return true; }

    // Whether a person sees it, or can use it: the control, its containers and the page it stands
    // on.
    bool IsShown() const;
    bool IsUsable() const;

    // A click with the left button: focus, button down and up, and what a click does to this kind.
    virtual void UserClick();
    void UserRightClick();
    // Turning to the control, and turning away from it, which completes an entry.
    virtual void UserEnter();
    void UserLeave();
    // Enter and Escape reach the form's default and cancel button, a key that the control has no
    // event for its form.
    virtual void UserKey(const KeyPress& key);

    virtual bool TakesFocus() const { return true; }

    // Completes what the user has been entering. Called when the focus leaves.
    virtual void FinishEntry() {}

  protected:
    // Throws NotPossible unless a person can reach the control.
    void RequireUsable() const;
    // Takes the focus, if this kind takes it and it isn't there yet.
    void TakeFocus();
    // Raises an event, unless its form has been unloaded by an earlier one.
    template <class Event, class... Args>
    void Fire(const Event& event, Args&&... args) {
        if (event && IsLive()) event(std::forward<Args>(args)...);
    }

  private:
    friend class Form;
    bool IsLive() const;

    Form* owner_;
    Control* container_;
    std::string name_;
    int index_;
};

// A control with a caption. An ampersand in it marks the access key.
class CaptionedControl : public Control {
  public:
    using Control::Control;

    std::string Caption;
};

// Controls of one name, numbered from 0:
//   ControlArray<ComboBox> cboSumRes{fraSummaryResults, "cboSumRes", 10};
template <class T>
class ControlArray {
  public:
    template <class Place>
    ControlArray(Place& place, const std::string& name, int count) {
        for (int i = 0; i < count; ++i)
            items_.push_back(std::make_unique<T>(place, name, i));
    }

    T& operator[](int index) { return *items_.at(static_cast<std::size_t>(index)); }
    const T& operator[](int index) const { return *items_.at(static_cast<std::size_t>(index)); }
    int Count() const { return static_cast<int>(items_.size()); }

    // Calls tie(control, index) for each, to tie the events.
    template <class Tie>
    void ForEach(Tie&& tie) {
        for (int i = 0; i < Count(); ++i)
            tie((*this)[i], i);
    }

  private:
    std::vector<std::unique_ptr<T>> items_;
};

}  // namespace tav
