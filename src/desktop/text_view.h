// Views of text boxes, of one line and of several.
#pragma once

#include "desktop/control_view.h"
#include "forms/text_box.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <memory>

namespace tav {

// The height that a box of one line needs: never less than its letters.
int LineHeight(const QLineEdit& edit, int designed);

std::unique_ptr<ControlView> MakeTextView(TextBox& model, QWidget& parent, FormView& form);

class TextView : public ControlView {
  public:
    TextView(TextBox& model, QWidget& parent, FormView& form);

  protected:
    void SyncContent() override;
    bool PassesClicks() const override { return static_cast<bool>(model_.Click); }
    std::optional<int> OwnHeight() const override;

  private:
    TextView(TextBox& model, QLineEdit* edit, FormView& form);

    TextBox& model_;
    QLineEdit& edit_;
};

class MultiLineTextView : public ControlView {
  public:
    MultiLineTextView(TextBox& model, QWidget& parent, FormView& form);

    bool eventFilter(QObject* watched, QEvent* event) override;

  protected:
    void SyncContent() override;
    bool PassesClicks() const override { return static_cast<bool>(model_.Click); }
    bool ConsumesKey(const QKeyEvent& key) const override;

  private:
    MultiLineTextView(TextBox& model, QPlainTextEdit* edit, FormView& form);

    TextBox& model_;
    QPlainTextEdit& edit_;
    bool syncing_ = false;
};

}  // namespace tav
