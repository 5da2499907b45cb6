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

}  // namespace

void OpenContextMenu(Control& control) {
    Form* const parent = TheForms().Find("frmParent");
    if (parent == nullptr) return;
    auto* const menu = dynamic_cast<MenuItem*>(parent->Find("mnuContextMenu"));
    if (menu == nullptr) return;
    contextControl = &control;
    parent->PopUp(*menu, [] { contextControl = nullptr; });
}

Control* ContextControl() { return contextControl; }

void ShowWhatsThis() { ShowTopic(CommonDialog::kHelpTopicPopUp); }

void JumpToHelpTopic() { ShowTopic(CommonDialog::kHelpTopic); }

}  // namespace tav
