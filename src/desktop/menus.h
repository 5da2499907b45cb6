// Menu bar and pop-up menus.
#pragma once

#include "forms/menu.h"

#include <QList>
#include <QPoint>
#include <utility>
#include <vector>

class QAction;
class QMenu;
class QMenuBar;
class QWidget;

namespace tav {

// The menus of a form in a menu bar.
class MenuBar {
  public:
    MenuBar(Form& form, QMenuBar& bar);

    // Reads captions, marks and what can be chosen anew.
    void Sync();

  private:
    void Fill(QMenu& menu, const MenuItem& of);
    void Add(QMenu& menu, MenuItem& item);

    std::vector<std::pair<MenuItem*, QAction*>> actions_;
};

// Opens a menu at a place on the screen until the user has chosen; null if none of its entries was.
// The further actions stand below them and run by themselves.
MenuItem* ChooseFromPopUp(const MenuItem& menu, const QList<QAction*>& further, QPoint at);

}  // namespace tav
