#include "desktop/whats_this.h"

#include "core/platform.h"
#include "core/program_state.h"
#include "desktop/desktop.h"
#include "desktop/form_view.h"
#include "forms/form_registry.h"
#include "shell/parent_form.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

namespace tav {
namespace {

ParentForm* TheParent() { return dynamic_cast<ParentForm*>(TheForms().Find("frmParent")); }

bool IsAsking() {
    const ParentForm* const parent = TheParent();
    return parent != nullptr && parent->WhatsThisMode;
}

void StopAsking() {
    if (ParentForm* const parent = TheParent()) parent->WhatsThisMode = false;
    ShowWhatsThisMode();
}

const Control* ControlOf(const QWidget* widget) {
    for (Form* const form : TheForms().Loaded()) {
        const FormView* const view = TheDesktop().ViewOf(*form);
        const Control* const control = view == nullptr ? nullptr : view->ControlOf(widget);
        if (control != nullptr) return control;
    }
    return nullptr;
}

void ShowHelpOn(const Control* control, int command) {
    CommonDialog dialog;
    dialog.HelpFile = TheProgram().HelpFile;
    dialog.HelpCommand = control == nullptr ? CommonDialog::kHelpFinder : command;
    if (control != nullptr) dialog.HelpTopic = control->Name();
    ThePlatform().ShowHelp(dialog);
}

class HelpKeys : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        auto* const widget = qobject_cast<QWidget*>(watched);
        if (widget == nullptr) return false;
        switch (event->type()) {
            case QEvent::KeyPress: return Key(static_cast<QKeyEvent&>(*event));
            case QEvent::MouseButtonPress: return Click(*widget);
            case QEvent::MouseButtonRelease: return std::exchange(swallowRelease_, false);
            default: return false;
        }
    }

  private:
    bool Key(const QKeyEvent& key) {
        if (key.key() == Qt::Key_Escape && IsAsking()) {
            StopAsking();
            return true;
        }
        if (key.key() != Qt::Key_F1 || key.modifiers() != Qt::NoModifier) return false;
        // A menu has no use for it, and the help on a control knows its page.
        if (QApplication::activePopupWidget() != nullptr) return false;
        const QWidget* const focus = QApplication::focusWidget();
        if (QApplication::activeModalWidget() != nullptr && ControlOf(focus) == nullptr) {
            return false;
        }
        ShowHelpOn(ControlOf(focus), CommonDialog::kHelpTopic);
        return true;
    }

    // The click asks, and does nothing else.
    bool Click(QWidget& widget) {
        if (!IsAsking()) return false;
        StopAsking();
        swallowRelease_ = true;
        if (const Control* const control = ControlOf(&widget)) {
            ShowHelpOn(control, CommonDialog::kHelpTopicPopUp);
        }
        return true;
    }

    bool swallowRelease_ = false;
};

bool pointerShown = false;

}  // namespace

void InstallHelpKeys() { qApp->installEventFilter(new HelpKeys(qApp)); }

void ShowWhatsThisMode() {
    const bool asking = IsAsking();
    if (asking == pointerShown) return;
    pointerShown = asking;
    if (asking) {
        QApplication::setOverrideCursor(Qt::WhatsThisCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

}  // namespace tav
