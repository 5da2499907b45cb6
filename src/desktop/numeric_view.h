// The view of a box for one number.
#pragma once

#include "desktop/control_view.h"
#include "forms/text_box.h"

#include <QLabel>
#include <QLineEdit>

namespace tav {

// All is selected on entry, so that typing replaces the value. Why a value isn't taken is said
// quietly under the field until the user types on or goes on to yet another control.
class NumericView : public ControlView {
  public:
    NumericView(NumericTextBox& model, QWidget& parent, FormView& form);

    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    void SyncContent() override;
    std::optional<int> OwnHeight() const override;

  private:
    NumericView(NumericTextBox& model, QLineEdit* edit, FormView& form);
    QString Shown() const;
    void SyncRefusal();
    void MakeNote();
    void PlaceNote();

    NumericTextBox& model_;
    QLineEdit& edit_;
    QLabel* note_ = nullptr;
};

}  // namespace tav
