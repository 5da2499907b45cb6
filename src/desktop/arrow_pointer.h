// The mouse pointer over a dialog that the program shows while it is busy.
#pragma once

#include <QApplication>

namespace tav {

// For as long as it lives the pointer is the arrow, however busy the program is behind the dialog.
class ArrowPointer {
  public:
    ArrowPointer() : busy_(QApplication::overrideCursor() != nullptr) {
        if (busy_) QApplication::setOverrideCursor(Qt::ArrowCursor);
    }
    ArrowPointer(const ArrowPointer&) = delete;
    ArrowPointer& operator=(const ArrowPointer&) = delete;
    ~ArrowPointer() {
        if (busy_) QApplication::restoreOverrideCursor();
    }

  private:
    bool busy_;
};

}  // namespace tav
