#include "desktop/passive_views.h"

#include "desktop/pictures.h"
#include "desktop/pixels.h"
#include "desktop/text.h"

namespace tav {
namespace {

constexpr int kRulePixels = 2;
constexpr int kBoxPixels = 24;      // the most that a box for a number is high
constexpr int kMostLinesOfOne = 3;  // a label with more room than that begins at its top

Qt::Alignment AlignmentOf(Alignment alignment) {
    switch (alignment) {
        case Alignment::Left: return Qt::AlignLeft;
        case Alignment::Right: return Qt::AlignRight;
        case Alignment::Center: return Qt::AlignHCenter;
    }
    return Qt::AlignLeft;
}

QFrame* MakeRule(QWidget& parent) {
    auto* const rule = new QFrame(&parent);
    rule->setFrameStyle(static_cast<int>(QFrame::HLine) | static_cast<int>(QFrame::Sunken));
    return rule;
}

}  // namespace

LabelView::LabelView(Label& model, QWidget& parent, FormView& form)
    : LabelView(model, new QLabel(&parent), form) {}

LabelView::LabelView(Label& model, QLabel* label, FormView& form)
    : ControlView(model, *label, form), model_(model), label_(*label) {
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    Watch(*label);
}

// No line is lower than its letters, on the smallest display either.
std::optional<int> LabelView::OwnHeight() const {
    QFont font = label_.font();
    font.setPixelSize(FontPixels(model_.FontSize));
    const int letters = QFontMetrics(font).lineSpacing();
    return letters > Pixels(model_.Height) ? std::optional<int>(letters) : std::nullopt;
}

// A single line stands in the middle, level with the text of the field beside it.
void LabelView::SyncContent() {
    const QString caption = ToQt(model_.Caption);
    if (label_.text() != caption) label_.setText(caption);
    const QFontMetrics metrics(label_.font());
    const bool oneLine = !caption.contains(QLatin1Char('\n')) &&
                         metrics.horizontalAdvance(caption) <= label_.width() &&
                         label_.height() < kMostLinesOfOne * metrics.lineSpacing();
    label_.setAlignment(AlignmentOf(model_.Alignment) |
                        (oneLine ? Qt::AlignVCenter : Qt::AlignTop));
    const int room = std::max(kBoxPixels, metrics.lineSpacing());
    label_.setContentsMargins(0, 0, 0, oneLine ? std::max(0, label_.height() - room) : 0);
}

FrameView::FrameView(Frame& model, QWidget& parent, FormView& form)
    : FrameView(model, new QGroupBox(&parent), form) {}

FrameView::FrameView(Frame& model, QGroupBox* box, FormView& form)
    : ControlView(model, *box, form), model_(model), box_(*box) {
    Watch(*box);
}

void FrameView::SyncContent() {
    const QString title = ToQt(model_.Caption);
    if (box_.title() != title) box_.setTitle(title);
}

template <class Pictured>
PictureView<Pictured>::PictureView(Pictured& model, QWidget& parent, FormView& form)
    : PictureView(model, new QLabel(&parent), form) {}

template <class Pictured>
PictureView<Pictured>::PictureView(Pictured& model, QLabel* label, FormView& form)
    : ControlView(model, *label, form), model_(model), label_(*label) {
    label->setAlignment(Qt::AlignCenter);
    Watch(*label);
}

template <class Pictured>
void PictureView<Pictured>::SyncContent() {
    const QString wanted = ToQt(model_.Picture) + QString::number(label_.width()) +
                           QLatin1Char('x') + QString::number(label_.height());
    if (wanted == shown_) return;
    shown_ = wanted;
    label_.setPixmap(IconOf(model_.Picture).pixmap(label_.size()));
}

template class PictureView<PictureBox>;
template class PictureView<Image>;

LineView::LineView(Line& model, QWidget& parent, FormView& form)
    : ControlView(model, *MakeRule(parent), form) {}

std::optional<int> LineView::OwnHeight() const { return kRulePixels; }

}  // namespace tav
