// Lists: one entry chosen, or several marked.
#pragma once

#include "forms/control.h"

#include <string>
#include <string_view>
#include <vector>

namespace tav {

class ListBox : public Control {
  public:
    using Control::Control;
    ControlKind Kind() const override { return ControlKind::ListBox; }

    bool MultiSelect = false;

    const std::vector<std::string>& Items() const { return items_; }
    int ListCount() const { return static_cast<int>(items_.size()); }
    // The text of an entry, from 0; empty beyond the list.
    const std::string& List(int index) const;

    // Empties the list, adds an entry at the end, removes one. None raises an event; an index
    // behind the removed entry moves with its entry, that of the removed one becomes -1.
    void Clear();
    void AddItem(std::string text);
    void RemoveItem(int index);  // error 5 beyond the list

    // The entry chosen, or the one clicked last in a list with several marks; -1: none. Setting
    // another one raises Click, as a click of the user does. Error 5 beyond the list.
    int ListIndex() const { return listIndex_; }
    void SetListIndex(int index);
    // The text of the chosen entry, empty if none is.
    const std::string& Text() const { return List(listIndex_); }

    // Whether an entry is marked; in a list without marks, whether it is the chosen one. Setting a
    // mark raises no event.
    bool Selected(int index) const;
    void SetSelected(int index, bool marked);

    // Picks an entry of a list without marks. Clicking the chosen one again raises Click again.
    void UserChoose(int index);
    // Sets or removes a mark; the Click that follows finds the entry in ListIndex. One that is
    // already so isn't touched.
    void UserMark(int index, bool marked);

    // The place of an entry with that text, -1 if there is none.
    int IndexOf(std::string_view text) const;

  protected:
    // Fills the list anew without an event.
    void SetItems(std::vector<std::string> items);

  private:
    void RequireEntry(int index) const;

    std::vector<std::string> items_;
    std::vector<bool> marks_;
    int listIndex_ = -1;
};

}  // namespace tav
