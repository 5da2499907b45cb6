#include "desktop/menus.h"

#include "desktop/desktop.h"
#include "desktop/text.h"
#include "forms/form.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>
#include <array>
#include <string_view>

namespace tav {
namespace {

struct Shortcut {
    std::string_view Item;
    QKeySequence::StandardKey Key;
};

// The keys that every program of today has for the same commands.
constexpr std::array kShortcuts = {
    Shortcut{"mnuNewSimulation", QKeySequence::New},
    Shortcut{"mnuLoadSimulation", QKeySequence::Open},
    Shortcut{"mnuSaveSimulation", QKeySequence::Save},
    Shortcut{"mnuSaveSimulationAs", QKeySequence::SaveAs},
    Shortcut{"mnuWhatsThis", QKeySequence::WhatsThis},
};

void GiveShortcut(QAction& action, std::string_view item) {
    const auto* const found = std::find_if(kShortcuts.begin(), kShortcuts.end(),
                                           [&](const Shortcut& key) { return key.Item == item; });
    if (found == kShortcuts.end()) return;
    action.setShortcut(QKeySequence(found->Key));
    // Not every desktop has a key for this one.
    if (found->Key == QKeySequence::SaveAs && action.shortcut().isEmpty()) {
        action.setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    }
}

}  // namespace

MenuBar::MenuBar(Form& form, QMenuBar& bar) {
    for (Control* const control : form.Controls()) {
        auto* const item = dynamic_cast<MenuItem*>(control);
        if (item == nullptr || item->Container() != nullptr || !item->Visible) continue;
        QMenu* const menu = bar.addMenu(ToQt(item->Caption));
        actions_.emplace_back(item, menu->menuAction());
        Fill(*menu, *item);
    }
}

void MenuBar::Fill(QMenu& menu, const MenuItem& of) {
    for (MenuItem* const item : of.Entries())
        Add(menu, *item);
}

void MenuBar::Add(QMenu& menu, MenuItem& item) {
    if (item.IsSeparator()) {
        menu.addSeparator();
        return;
    }
    if (!item.Entries().empty()) {
        QMenu* const sub = menu.addMenu(ToQt(item.Caption));
        actions_.emplace_back(&item, sub->menuAction());
        Fill(*sub, item);
        return;
    }
    QAction* const action = menu.addAction(ToQt(item.Caption));
    GiveShortcut(*action, item.Name());
    QObject::connect(action, &QAction::triggered, [&item] {
        TheDesktop().FinishTyping();
        TheDesktop().Perform([&item] { item.UserClick(); });
    });
    actions_.emplace_back(&item, action);
}

void MenuBar::Sync() {
    for (const auto& [item, action] : actions_) {
        action->setVisible(item->Visible);
        action->setEnabled(item->Enabled);
        action->setCheckable(item->Checkable);
        // Choosing a checkable entry has ticked it; what counts is the program's mark.
        action->setChecked(item->Checked);
    }
}

MenuItem* ChooseFromPopUp(const MenuItem& menu, const QList<QAction*>& further, QPoint at) {
    QMenu shown;
    std::vector<std::pair<QAction*, MenuItem*>> entries;
    for (MenuItem* const item : menu.Entries()) {
        if (item->IsSeparator()) {
            shown.addSeparator();
            continue;
        }
        if (!item->Visible) continue;
        QAction* const action = shown.addAction(ToQt(item->Caption));
        action->setEnabled(item->Enabled);
        entries.emplace_back(action, item);
    }
    if (!further.isEmpty()) shown.addSeparator();
    shown.addActions(further);
    const QAction* const chosen = shown.exec(at);
    for (const auto& [action, item] : entries) {
        if (action == chosen && chosen != nullptr) return item;
    }
    return nullptr;
}

}  // namespace tav
