#include "forms/list_box.h"

#include "core/runtime_error.h"
#include "forms/form.h"

#include <algorithm>

namespace tav {
namespace {

const std::string kNoText;

}  // namespace

const std::string& ListBox::List(int index) const {
    return index >= 0 && index < ListCount() ? items_[static_cast<std::size_t>(index)] : kNoText;
}

void ListBox::SetItems(std::vector<std::string> items) {
    items_ = std::move(items);
    marks_.assign(items_.size(), false);
    listIndex_ = -1;
}

void ListBox::Clear() { SetItems({}); }

void ListBox::AddItem(std::string text) {
    items_.push_back(std::move(text));
    marks_.push_back(false);
}

void ListBox::RemoveItem(int index) {
    if (index < 0 || index >= ListCount()) tav::Raise(kInvalidProcedureCall);
    items_.erase(items_.begin() + index);
    marks_.erase(marks_.begin() + index);
    if (listIndex_ == index) {
        listIndex_ = -1;
    } else if (listIndex_ > index) {
        --listIndex_;
    }
}

void ListBox::SetListIndex(int index) {
    if (index < -1 || index >= ListCount()) tav::Raise(kInvalidProcedureCall);
    if (index == listIndex_) return;
    listIndex_ = index;
    Fire(Click);
}

bool ListBox::Selected(int index) const {
    if (index < 0 || index >= ListCount()) tav::Raise(kInvalidProcedureCall);
    return MultiSelect ? marks_[static_cast<std::size_t>(index)] : index == listIndex_;
}

void ListBox::SetSelected(int index, bool marked) {
    if (index < 0 || index >= ListCount()) tav::Raise(kInvalidProcedureCall);
    if (MultiSelect) {
        marks_[static_cast<std::size_t>(index)] = marked;
    } else if (marked) {
        listIndex_ = index;
    } else if (listIndex_ == index) {
        listIndex_ = -1;
    }
}

int ListBox::IndexOf(std::string_view text) const {
    const auto found = std::find(items_.begin(), items_.end(), text);
    return found == items_.end() ? -1 : static_cast<int>(found - items_.begin());
}

void ListBox::RequireEntry(int index) const {
    if (index < 0 || index >= ListCount()) {
        throw NotPossible(FullName() + " has no entry " + std::to_string(index));
    }
}

void ListBox::UserChoose(int index) {
    RequireUsable();
    if (MultiSelect) throw NotPossible(FullName() + " takes marks, not a choice");
    RequireEntry(index);
    Form::DismissPopUps();
    TakeFocus();
    RequireEntry(index);
    listIndex_ = index;
    Fire(Click);
}

void ListBox::UserMark(int index, bool marked) {
    RequireUsable();
    if (!MultiSelect) throw NotPossible(FullName() + " takes a choice, not marks");
    RequireEntry(index);
    Form::DismissPopUps();
    TakeFocus();
    RequireEntry(index);
    if (Selected(index) == marked) return;
    marks_[static_cast<std::size_t>(index)] = marked;
    listIndex_ = index;
    Fire(Click);
}

}  // namespace tav
