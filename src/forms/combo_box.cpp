#include "forms/combo_box.h"

#include "core/runtime_error.h"
#include "forms/form.h"

#include <algorithm>

namespace tav {
namespace {

const std::string kNoText;

}  // namespace

const std::string& ComboBox::List(int index) const {
    return index >= 0 && index < ListCount() ? items_[static_cast<std::size_t>(index)] : kNoText;
}

void ComboBox::Clear() {
    items_.clear();
    text_.clear();
    listIndex_ = -1;
}

void ComboBox::AddItem(std::string text) { items_.push_back(std::move(text)); }

void ComboBox::SetText(std::string text) {
    text_ = std::move(text);
    listIndex_ = IndexOf(text_);
}

void ComboBox::SetListIndex(int index) {
    if (index < -1 || index >= ListCount()) tav::Raise(kInvalidProcedureCall);
    listIndex_ = index;
    text_ = List(index);
}

int ComboBox::IndexOf(std::string_view text) const {
    const auto found = std::find(items_.begin(), items_.end(), text);
    return found == items_.end() ? -1 : static_cast<int>(found - items_.begin());
}

void ComboBox::UserChoose(int index) {
    RequireUsable();
    if (index < 0 || index >= ListCount()) {
        throw NotPossible(FullName() + " has no entry " + std::to_string(index));
    }
    Form::DismissPopUps();
    TakeFocus();
    SetListIndex(index);
    Fire(Change);
}

void ComboBox::UserType(std::string_view text) {
    RequireUsable();
    if (!FreeText) throw NotPossible(FullName() + " takes no free text");
    if (text.find_first_of("\r\n") != std::string_view::npos) {
        throw NotPossible(FullName() + " takes a single line");
    }
    if (Owner().Focus() != this) UserEnter();
    SetText(std::string(text));
    Fire(Change);
}

}  // namespace tav
