// Views of controls that take no entry.
#pragma once

#include "desktop/control_view.h"
#include "forms/passive_controls.h"

#include <QFrame>
#include <QGroupBox>
#include <QLabel>

namespace tav {

// The text is plain, whatever stands in it, and breaks between words.
class LabelView : public ControlView {
  public:
    LabelView(Label& model, QWidget& parent, FormView& form);

  protected:
    void SyncContent() override;
    std::optional<int> OwnHeight() const override;
    bool PassesClicks() const override { return true; }

  private:
    LabelView(Label& model, QLabel* label, FormView& form);

    Label& model_;
    QLabel& label_;
};

class FrameView : public ControlView {
  public:
    FrameView(Frame& model, QWidget& parent, FormView& form);

  protected:
    void SyncContent() override;
    bool PassesClicks() const override { return true; }

  private:
    FrameView(Frame& model, QGroupBox* box, FormView& form);

    Frame& model_;
    QGroupBox& box_;
};

// A picture by its name, as large as fits into the control.
template <class Pictured>
class PictureView : public ControlView {
  public:
    PictureView(Pictured& model, QWidget& parent, FormView& form);

  protected:
    void SyncContent() override;
    bool PassesClicks() const override { return true; }

  private:
    PictureView(Pictured& model, QLabel* label, FormView& form);

    Pictured& model_;
    QLabel& label_;
    QString shown_;
};

using PictureBoxView = PictureView<PictureBox>;
using ImageView = PictureView<Image>;

class LineView : public ControlView {
  public:
    LineView(Line& model, QWidget& parent, FormView& form);

  protected:
    void SyncContent() override {}
    std::optional<int> OwnHeight() const override;
};

}  // namespace tav
