// A form for the tests, which writes down the events that reach it.
#pragma once

#include "core/program_state.h"
#include "forms/controls.h"
#include "forms/form_registry.h"
#include "forms/headless_platform.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace tav {

using EventLog = std::vector<std::string>;

class SampleForm : public Form {
  public:
    explicit SampleForm(const std::string& name, EventLog& log) : Form(name), Events(log) {}

    EventLog& Events;
    bool RefuseQuery = false;
    bool RefuseUnload = false;

    Frame fraGroup{*this, "fraGroup"};
    TextBox txtName{*this, "txtName"};
    CommandButton cmdOK{*this, "cmdOK"};
    OptionButton optFlat{fraGroup, "optFlat"};
    OptionButton optHilly{fraGroup, "optHilly"};
    OptionButton optElsewhere{*this, "optElsewhere"};
    CheckBox chkTarget{*this, "chkTarget"};

    // Writes down the focus, the mouse and the clicks of a control.
    void Watch(Control& control) {
        const std::string name = control.Name();
        control.GotFocus = [this, name] { Events.push_back(name + " got focus"); };
        control.LostFocus = [this, name] { Events.push_back(name + " lost focus"); };
        control.MouseDown = [this, name](MouseButton) { Events.push_back(name + " down"); };
        control.MouseUp = [this, name](MouseButton) { Events.push_back(name + " up"); };
        control.Click = [this, name] { Events.push_back(name + " click"); };
    }

  protected:
    void Form_Load() override { Events.push_back(Name() + " load"); }
    void Form_Activate() override { Events.push_back(Name() + " activate"); }
    void Form_Resize() override { Events.push_back(Name() + " resize"); }
    void Form_KeyDown(const KeyPress& key) override { Events.push_back(Name() + " " + key.Key); }
    void Form_QueryUnload(bool& cancel) override {
        Events.push_back(Name() + " query");
        cancel = RefuseQuery;
    }
    void Form_Unload(bool& cancel) override {
        Events.push_back(Name() + " unload");
        cancel = RefuseUnload;
    }
};

class FormsTest : public testing::Test {
  protected:
    FormsTest() {
        SetPlatform(Platform);
        TheProgram() = {};
        TheForms().Clear();
    }
    ~FormsTest() override { TheForms().Clear(); }

    // Registers and shows a form of that class.
    template <class T = SampleForm>
    T& Open(const std::string& name = "frmSample") {
        TheForms().Register(name, [this, name] { return std::make_unique<T>(name, Events); });
        T& form = dynamic_cast<T&>(TheForms().Show(name));
        Events.clear();
        return form;
    }

    HeadlessPlatform Platform;
    EventLog Events;
};

}  // namespace tav
