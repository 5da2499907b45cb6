#include "screens/placing.h"

namespace tav {
namespace {

constexpr int kBetween = 120;  // a label and its box

}  // namespace

void PlaceOn(TabControl& tabs, int page, Control& control, int left, int top, int width,
             int height) {
    control.Move(left, top, width, height);
    tabs.Put(control, page);
}

void PlaceField(const FieldColumn& column, Label& label, const std::string& caption, Control& box,
                int top) {
    label.Caption = caption;
    label.Move(column.Left, top, column.LabelWidth, kLineHeight);
    box.Move(column.Left + column.LabelWidth + kBetween, top, column.BoxWidth, kBoxHeight);
}

void PlaceFieldOn(TabControl& tabs, int page, const FieldColumn& column, Label& label,
                  const std::string& caption, Control& box, int top) {
    PlaceField(column, label, caption, box, top);
    tabs.Put(label, page);
    tabs.Put(box, page);
}

void PlaceCaption(CaptionedControl& control, const std::string& caption, int left, int top,
                  int width) {
    control.Caption = caption;
    control.Move(left, top, width, kLineHeight);
}

}  // namespace tav
