// The real program in the test's own process, driven through the events of mouse and keyboard.
#pragma once

#include "core/program_state.h"
#include "core/simulation_record.h"
#include "desktop/desktop.h"
#include "forms/controls.h"
#include "forms/form_registry.h"
#include "respondent.h"
#include "support/temporary_folder.h"

#include <QAbstractScrollArea>
#include <QMainWindow>
#include <QMenu>
#include <QTimer>
#include <string>

#include <QtTest/QTest>
#include <gtest/gtest.h>

namespace tav {

// Each test has a program folder of its own, with the delivered feed library and the help in it,
// and the forms are named as the controls are: "frmRation.grdRation", "frmInputs.cboSumRes(3)".
class DrivenProgram : public testing::Test {
  protected:
    DrivenProgram();
    ~DrivenProgram() override;

    // What the next start finds.
    void UseSettings(const std::string& name);    // of the scenarios
    void UseSimulation(const std::string& name);  // a sample, as the default simulation
    std::string SamplePath(const std::string& name) const;
    std::string InFolder(const std::string& name) const { return folder_.Path(name); }
    static std::string Content(const std::string& path);

    // Begins a run; the terms of use are on show. Begins another one where the last one has ended.
    void Begin();
    void AcceptTerms();
    // A run with a lactating cow and her ration, on that screen.
    void OpenCow(const std::string& screen);
    bool HasEnded() const { return TheProgram().Ended; }

    // The control itself.
    template <class T>
    T& Model(const std::string& name) const {
        return dynamic_cast<T&>(ControlOf(name));
    }
    Control& ControlOf(const std::string& fullName) const;
    FormView& ViewOf(const std::string& form) const;

    // The control's widget, which bears its name; of the type T.
    template <class T = QWidget>
    T& Widget(const std::string& name) const {
        return dynamic_cast<T&>(WidgetOf(name));
    }
    QWidget& WidgetOf(const std::string& fullName) const;
    QMainWindow& MainWindow() const;

    // Presses and releases at that place of the widget, or on its text; it must be what is seen
    // there.
    void Click(QWidget& widget, QPoint at = {}, Qt::MouseButton button = Qt::LeftButton) const;
    void Click(const std::string& name) const { Click(WidgetOf(name)); }
    void RightClick(const std::string& name) const { Click(WidgetOf(name), {}, Qt::RightButton); }
    void ClickToolbar(const std::string& caption) const;
    void ClickTab(const std::string& tabs, int page) const;
    // "File", then "Save Simulation".
    void ClickMenu(const std::string& menu, const std::string& entry) const;
    QAction& ActionOf(const std::string& menu, const std::string& entry) const;

    // To whatever has the keyboard.
    void Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
    void Type(const std::string& text) const;
    // Into the field of that name: click, keys, and on with the tab key.
    void Enter(const std::string& name, const std::string& text) const;
    // Picks an entry of a drop-down list with the keys.
    void Choose(const std::string& name, const std::string& entry) const;
    // Sets or takes the mark of an entry in a list, with the mouse.
    void Mark(const std::string& name, const std::string& entry) const;

    // What is due in the event loop.
    static void Settle();
    // The name of the control that has the keyboard; empty if none has it.
    std::string Keyboard() const;

    // The one message since the last call; an empty one, and a failure, if there are others.
    Said TheMessage();
    std::vector<Said> Messages() { return Asked.TakeSaid(); }

    Respondent Asked;

  private:
    void End();

    TemporaryFolder folder_;
};

}  // namespace tav
