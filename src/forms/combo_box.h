// A drop-down list, with or without free text.
#pragma once

#include "forms/control.h"

#include <string>
#include <string_view>
#include <vector>

namespace tav {

class ComboBox : public Control {
  public:
    using Control::Control;
    ControlKind Kind() const override { return ControlKind::ComboBox; }

    bool FreeText = false;

    const std::vector<std::string>& Items() const { return items_; }
    int ListCount() const { return static_cast<int>(items_.size()); }
    const std::string& List(int index) const;  // empty beyond the list

    // None of these raises an event. Clear empties the box as well. A text that is no entry is
    // shown all the same, with the index -1.
    void Clear();
    void AddItem(std::string text);
    const std::string& Text() const { return text_; }
    void SetText(std::string text);
    int ListIndex() const { return listIndex_; }
    void SetListIndex(int index);  // -1: none, and an empty box. Error 5 beyond the list

    // The user has picked an entry, the same one again included, or entered a free text.
    std::function<void()> Change;

    void UserChoose(int index);
    void UserType(std::string_view text);  // throws NotPossible without FreeText

    int IndexOf(std::string_view text) const;

  private:
    std::vector<std::string> items_;
    std::string text_;
    int listIndex_ = -1;
};

}  // namespace tav
