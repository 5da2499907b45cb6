// Help on a single control: What's This by a click, F1 on the one with the keyboard.
#pragma once

namespace tav {

// Listens to the whole program's mouse and keys from now on.
void InstallHelpKeys();

// Shows by the pointer whether the next click asks for help.
void ShowWhatsThisMode();

}  // namespace tav
