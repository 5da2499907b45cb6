// The view of a drop-down list.
#pragma once

#include "desktop/control_view.h"
#include "forms/combo_box.h"

#include <QComboBox>

namespace tav {

class ComboView : public ControlView {
  public:
    ComboView(ComboBox& model, QWidget& parent, FormView& form);

    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    void SyncContent() override;
    std::optional<int> OwnHeight() const override;
    bool ConsumesKey(const QKeyEvent& key) const override;
    bool EntersFor(Qt::FocusReason reason) const override;

  private:
    ComboView(ComboBox& model, QComboBox* box, FormView& form);
    bool OpensList(const QKeyEvent& key) const;

    ComboBox& model_;
    QComboBox& box_;
    std::vector<std::string> items_;
};

}  // namespace tav
