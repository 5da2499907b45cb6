#include "core/main_window.h"

namespace tav {
namespace {

class NoMainWindow : public MainWindow {
  public:
    CommonDialog& Dialog() override { return dialog_; }

  private:
    CommonDialog dialog_;
};

MainWindow* current = nullptr;

}  // namespace

MainWindow& TheMainWindow() {
    static NoMainWindow none;
    return current != nullptr ? *current : none;
}

void SetMainWindow(MainWindow* window) { current = window; }

}  // namespace tav
