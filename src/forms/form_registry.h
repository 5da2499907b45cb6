// The forms of the program by their names: which exist, which are loaded, which is on show.
#pragma once

#include "forms/form.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tav {

class FormRegistry {
  public:
    using Factory = std::function<std::unique_ptr<Form>()>;

    // Makes a form known. Registering the same name again replaces it for the next load.
    void Register(const std::string& name, Factory factory);

    bool Knows(std::string_view name) const { return factories_.contains(name); }

    // The loaded form of that name; makes it and runs Form_Load if it isn't loaded. An unknown name
    // throws std::out_of_range.
    Form& Load(std::string_view name);
    template <class T>
    T& Get(std::string_view name) {
        return dynamic_cast<T&>(Load(name));
    }

    // The form if it is loaded, null otherwise.
    Form* Find(std::string_view name) const;

    // Loads the form if need be, puts it in front and runs Form_Activate. A modal form lets the
    // user reach no other one until it is unloaded or hidden; ShowModal returns at once, so it
    // stands at the end of the operation that calls it.
    Form& Show(std::string_view name);
    Form& ShowModal(std::string_view name);
    void Hide(std::string_view name) const;

    // Runs Form_QueryUnload, unloads the children of a main window, runs Form_Unload and takes the
    // form away. False, and the form stays, when one of them was cancelled. True if nothing of the
    // name was loaded. The object lives on until the event at hand has run.
    bool Unload(std::string_view name);

    // The loaded forms in the order of loading, and the one that the user is in, which is the one
    // shown last; null if none is shown.
    std::vector<Form*> Loaded() const;
    Form* Active() const;
    // The modal form in front, null if there is none.
    Form* Modal() const;

    // Runs an action from the outside (the start of the program, what a user does, a timer's tick)
    // to its end. A RuntimeError that leaves it ends the program: its number goes into FatalError
    // and the platform reports it. A program that has ended (Ended in the program's state, set by
    // the program, by a fault, or because no form is left) loses its forms without any further
    // event.
    void Run(const std::function<void()>& action);

    // Forgets all loaded forms without an event.
    void Clear();

  private:
    struct Entry {
        std::unique_ptr<Form> TheForm;
        int ShownAs = 0;  // grows with each show
    };

    Entry* EntryOf(std::string_view name);
    bool UnloadChildren();
    bool QueryChildren() const;
    void Remove(Form& form);

    std::map<std::string, Factory, std::less<>> factories_;
    std::vector<std::unique_ptr<Entry>> loaded_;
    std::vector<std::unique_ptr<Form>> unloaded_;  // until the event at hand has run
    int shown_ = 0;
    int depth_ = 0;
};

// The process-wide registry.
FormRegistry& TheForms();

}  // namespace tav
