// The dialogs for opening and saving a file.
#pragma once

#include "core/platform.h"

class QWidget;

namespace tav {

// Each shows the dialog over a window. True: FileName and FileTitle are what was chosen. False:
// cancelled, and nothing is changed.
bool ChooseFileToOpen(CommonDialog& dialog, QWidget* over);
bool ChoosePlaceToSave(CommonDialog& dialog, QWidget* over);

}  // namespace tav
