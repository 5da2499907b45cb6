#include "forms/context_help.h"

#include "core/platform.h"
#include "core/program_state.h"
#include "forms/form_registry.h"
#include "forms/menu.h"

namespace tav {
namespace {

Control* contextControl = nullptr;

void ShowTopic(int command) {
    if (contextControl == nullptr) return;
    CommonDialog dialog;
    dialog.HelpFile = TheProgram().HelpFile;
    dialog.HelpCommand = command;
    dialog.HelpTopic = contextControl->Name();
    ThePlatform().ShowHelp(dialog);
}

void OpenMenu(std::string_view name, Control& control) {
    Form* const parent = TheForms().Find("frmParent");
    if (parent == nullptr) return;
    auto* const menu = dynamic_cast<MenuItem*>(parent->Find(name));
    if (menu == nullptr) return;
    contextControl = nullptr;
    parent->PopUp(*menu, [] { contextControl = nullptr; });
    contextControl = &control;
}

}  // namespace

void OpenContextMenu(Control& control) { OpenMenu("mnuContextMenu", control); }

void OpenJumpMenu(Control& control) { OpenMenu("mnuJumpMenu", control); }

Control* ContextControl() { return contextControl; }

void ShowWhatsThis() { ShowTopic(CommonDialog::kHelpTopicPopUp); }

void JumpToHelpTopic() { ShowTopic(CommonDialog::kHelpTopic); }

}  // namespace tav
