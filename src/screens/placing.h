// Places the controls of a screen, in the layout units of its design at 800 by 600 pixels.
#pragma once

#include "forms/control.h"
#include "forms/passive_controls.h"
#include "forms/tab_control.h"

#include <string>

namespace tav {

inline constexpr int kBoxHeight = 345;
inline constexpr int kLineHeight = 345;  // of a label, an option, a check box

// Puts a control on a page of the tabs that hold it.
void PlaceOn(TabControl& tabs, int page, Control& control, int left, int top, int width,
             int height);

// A label with its caption, and the box that it names to the right of it.
struct FieldColumn {
    int Left;
    int LabelWidth;
    int BoxWidth;
};
void PlaceField(const FieldColumn& column, Label& label, const std::string& caption, Control& box,
                int top);
void PlaceFieldOn(TabControl& tabs, int page, const FieldColumn& column, Label& label,
                  const std::string& caption, Control& box, int top);

// A caption and its place, for options and check boxes.
void PlaceCaption(CaptionedControl& control, const std::string& caption, int left, int top,
                  int width);

}  // namespace tav
