// A screen on its own, without the main window around it.
#pragma once

#include "core/program_state.h"
#include "core/simulation_file.h"
#include "core/simulation_record.h"
#include "forms/form_registry.h"
#include "forms/headless_platform.h"

#include <memory>
#include <string>

#include <gtest/gtest.h>

namespace tav {

class ScreenTest : public testing::Test {
  protected:
    ScreenTest() {
        SetPlatform(Platform);
        TheForms().Clear();
        TheProgram() = {};
        TheProgram().UseMetric = true;
        TheProgram().DryMatterBasis = true;
        TheProgram().UseMilkTrueProtein = true;
        TheSimulation() = {};
    }
    ~ScreenTest() override { TheForms().Clear(); }

    static void LoadSample(const std::string& name) {
        ReadSimulation(TAV_SIMULATIONS + name, TheSimulation());
    }

    template <class T>
    static T& Open(const std::string& name) {
        TheForms().Register(name, [] { return std::make_unique<T>(); });
        return dynamic_cast<T&>(TheForms().Show(name));
    }

    // The number of the error that the action raises, 0 if none.
    template <class Action>
    static int ErrorOf(Action&& action) {
        try {
            action();
        } catch (const RuntimeError& error) {
            return error.Number;
        }
        return 0;
    }

    HeadlessPlatform Platform;
};

}  // namespace tav
