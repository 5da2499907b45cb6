// The program's own drawings: toolbar, logo.
#pragma once

#include <QIcon>
#include <string_view>

namespace tav {

// The drawing of that name, sharp at any size, its lines in the colour of the text around it. A
// name that there is no drawing for gives an empty icon.
QIcon IconOf(std::string_view name);

}  // namespace tav
