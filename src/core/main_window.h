// What the start, the commands and the exit of the program ask of the main window and its screens.
#pragma once

#include "core/platform.h"

#include <string>
#include <string_view>

namespace tav {

// A screen is named by its key: "Inputs", "Feeds", "Ration" or "Reports". Any other text names
// none, and an operation on it does nothing.
class MainWindow {
  public:
    virtual ~MainWindow() = default;

    // The terms of use, with which the program begins.
    virtual void ShowTerms() {}

    // Each of the two creates the main window if it isn't there yet, which runs its load. The first
    // marks one toolbar button as pressed and leaves the others; the second also marks the other
    // three screens' buttons as not pressed.
    virtual void PressButton(std::string_view /*key*/) {}
    virtual void PressOnlyButton(std::string_view /*key*/) {}

    // Runs the toolbar's click.
    virtual void ClickButton(std::string_view /*key*/) {}

    // Loads and shows a screen. One that is already loaded is only brought to the front.
    virtual void ShowScreen(std::string_view /*key*/) {}

    // Unloads a screen, which stores what it shows; nothing if it isn't loaded.
    virtual void CloseScreen(std::string_view /*key*/) {}

    // Brings what stands in a screen's controls into the record: the open tab of the inputs, the
    // feed on show, the quantities of the ration. Nothing if the screen isn't loaded: it stored
    // itself when it was unloaded.
    virtual void StoreScreen(std::string_view /*key*/) {}

    // Has the inputs or reports screen show itself anew.
    virtual void SetUpScreen(std::string_view /*key*/) {}

    virtual void SetTitle(const std::string& /*title*/) {}

    // The dialog that the commands of the File menu share.
    virtual CommonDialog& Dialog() = 0;
};

// The main window in use, or one that does nothing when there is none, as in a program without a
// screen. SetMainWindow keeps the pointer; null takes it back.
MainWindow& TheMainWindow();
void SetMainWindow(MainWindow* window);

}  // namespace tav
