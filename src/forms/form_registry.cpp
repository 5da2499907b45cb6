#include "forms/form_registry.h"

#include "core/platform.h"
#include "core/program_state.h"
#include "core/runtime_error.h"

#include <algorithm>
#include <stdexcept>

namespace tav {

FormRegistry& TheForms() {
    static FormRegistry forms;
    return forms;
}

void FormRegistry::Register(const std::string& name, Factory factory) {
    factories_.insert_or_assign(name, std::move(factory));
}

FormRegistry::Entry* FormRegistry::EntryOf(std::string_view name) {
    const auto found = std::find_if(loaded_.begin(), loaded_.end(), [&](const auto& entry) {
        return entry->TheForm->Name() == name;
    });
    return found == loaded_.end() ? nullptr : found->get();
}

Form* FormRegistry::Find(std::string_view name) const {
    Entry* const entry = const_cast<FormRegistry*>(this)->EntryOf(name);
    return entry == nullptr ? nullptr : entry->TheForm.get();
}

Form& FormRegistry::Load(std::string_view name) {
    if (Form* const form = Find(name)) return *form;
    const auto factory = factories_.find(name);
    if (factory == factories_.end()) throw std::out_of_range("no form " + std::string(name));
    // Stands in the list before its load runs, which may come back here for the same form.
    loaded_.push_back(std::make_unique<Entry>(Entry{factory->second()}));
    Form& form = *loaded_.back()->TheForm;
    form.loaded_ = true;
    form.Form_Load();
    return form;
}

Form& FormRegistry::Show(std::string_view name) {
    Form& form = Load(name);
    Entry* const entry = EntryOf(name);
    // The load itself may have unloaded the form or ended the program.
    if (entry == nullptr || TheProgram().Ended) return form;
    entry->ShownAs = ++shown_;
    form.visible_ = true;
    form.Form_Activate();
    return form;
}

Form& FormRegistry::ShowModal(std::string_view name) {
    Form& form = Load(name);
    form.modal_ = form.loaded_;
    return Show(name);
}

void FormRegistry::Hide(std::string_view name) const {
    Form* const form = Find(name);
    if (form == nullptr) return;
    form->visible_ = false;
    form->modal_ = false;
}

bool FormRegistry::QueryChildren() const {
    for (Form* const form : Loaded()) {
        bool cancel = false;
        if (!form->IsChild) continue;
        form->FinishEntry();
        form->Form_QueryUnload(cancel);
        if (cancel) return false;
    }
    return true;
}

bool FormRegistry::UnloadChildren() {
    for (Form* const form : Loaded()) {
        bool cancel = false;
        if (!form->IsChild || !form->loaded_) continue;
        form->Form_Unload(cancel);
        if (cancel) return false;
        Remove(*form);
    }
    return true;
}

bool FormRegistry::Unload(std::string_view name) {
    Form* const form = Find(name);
    // A form that is just being unloaded and asks for it once more.
    if (form == nullptr || form->unloading_) return true;
    struct Unloading {
        explicit Unloading(bool& flag) : Flag(flag) { Flag = true; }
        ~Unloading() { Flag = false; }
        bool& Flag;
    } const unloading(form->unloading_);

    bool cancel = false;
    form->FinishEntry();
    form->Form_QueryUnload(cancel);
    if (cancel) return false;
    if (form->IsMainWindow && (!QueryChildren() || !UnloadChildren())) return false;
    form->Form_Unload(cancel);
    if (cancel) return false;
    Remove(*form);
    return true;
}

void FormRegistry::Remove(Form& form) {
    const auto found = std::find_if(loaded_.begin(), loaded_.end(), [&](const auto& entry) {
        return entry->TheForm.get() == &form;
    });
    if (found == loaded_.end()) return;
    form.loaded_ = false;
    form.visible_ = false;
    unloaded_.push_back(std::move((*found)->TheForm));
    loaded_.erase(found);
}

std::vector<Form*> FormRegistry::Loaded() const {
    std::vector<Form*> forms;
    for (const auto& entry : loaded_) {
        forms.push_back(entry->TheForm.get());
    }
    return forms;
}

Form* FormRegistry::Active() const {
    const Entry* active = nullptr;
    for (const auto& entry : loaded_) {
        if (!entry->TheForm->visible_) continue;
        if (active == nullptr || entry->ShownAs > active->ShownAs) active = entry.get();
    }
    return active == nullptr ? nullptr : active->TheForm.get();
}

Form* FormRegistry::Modal() const {
    const Entry* modal = nullptr;
    for (const auto& entry : loaded_) {
        if (!entry->TheForm->visible_ || !entry->TheForm->modal_) continue;
        if (modal == nullptr || entry->ShownAs > modal->ShownAs) modal = entry.get();
    }
    return modal == nullptr ? nullptr : modal->TheForm.get();
}

void FormRegistry::Run(const std::function<void()>& action) {
    if (depth_ > 0) {
        action();
        return;
    }
    struct Depth {
        explicit Depth(int& depth) : Value(depth) { ++Value; }
        ~Depth() { --Value; }
        int& Value;
    } const depth(depth_);

    ProgramState& program = TheProgram();
    try {
        action();
    } catch (const RuntimeError& error) {
        program.FatalError = error.Number;
        program.Ended = true;
        ThePlatform().ReportFatalError(error.Number, error.Description);
    }
    if (loaded_.empty()) program.Ended = true;
    if (program.Ended) Clear();
    unloaded_.clear();
}

void FormRegistry::Clear() {
    for (const auto& entry : loaded_) {
        entry->TheForm->loaded_ = false;
        unloaded_.push_back(std::move(entry->TheForm));
    }
    loaded_.clear();
    if (depth_ == 0) unloaded_.clear();
}

}  // namespace tav
