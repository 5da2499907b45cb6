#include "desktop/text_view.h"

#include "desktop/form_view.h"
#include "desktop/pixels.h"
#include "desktop/text.h"

#include <QSignalBlocker>

namespace tav {

std::unique_ptr<ControlView> MakeTextView(TextBox& model, QWidget& parent, FormView& form) {
    if (model.MultiLine) return std::make_unique<MultiLineTextView>(model, parent, form);
    return std::make_unique<TextView>(model, parent, form);
}

int LineHeight(const QLineEdit& edit, int designed) {
    constexpr int kFrame = 4;
    return std::max(designed, QFontMetrics(edit.font()).height() + kFrame);
}

TextView::TextView(TextBox& model, QWidget& parent, FormView& form)
    : TextView(model, new QLineEdit(&parent), form) {}

TextView::TextView(TextBox& model, QLineEdit* edit, FormView& form)
    : ControlView(model, *edit, form), model_(model), edit_(*edit) {
    Watch(*edit);
    QObject::connect(edit, &QLineEdit::textEdited, [this](const QString& text) {
        Perform([this, &text] { model_.UserType(FromQt(text)); });
    });
}

std::optional<int> TextView::OwnHeight() const { return LineHeight(edit_, Pixels(model_.Height)); }

void TextView::SyncContent() {
    edit_.setReadOnly(model_.ReadOnly);
    const QString text = ToQt(model_.Text);
    if (edit_.text() != text) edit_.setText(text);
}

MultiLineTextView::MultiLineTextView(TextBox& model, QWidget& parent, FormView& form)
    : MultiLineTextView(model, new QPlainTextEdit(&parent), form) {}

MultiLineTextView::MultiLineTextView(TextBox& model, QPlainTextEdit* edit, FormView& form)
    : ControlView(model, *edit, form), model_(model), edit_(*edit) {
    edit->setTabChangesFocus(true);
    Watch(*edit);
    // Clicks reach the area in which the text stands.
    Watch(*edit->viewport());
    QObject::connect(edit, &QPlainTextEdit::textChanged, [this] {
        // A change of letters is told as one of the text as well.
        const QString shown = edit_.toPlainText();
        if (syncing_ || shown == ToQt(model_.Text)) return;
        const std::string text = FromQt(shown);
        Perform([this, &text] { model_.UserType(text); });
    });
}

// Enter begins a new line.
bool MultiLineTextView::ConsumesKey(const QKeyEvent& key) const {
    return key.key() == Qt::Key_Escape;
}

bool MultiLineTextView::eventFilter(QObject* watched, QEvent* event) {
    if (!TheForm().IsLive()) return false;
    if (watched != edit_.viewport() || event->type() == QEvent::MouseButtonPress) {
        return ControlView::eventFilter(watched, event);
    }
    return false;
}

void MultiLineTextView::SyncContent() {
    edit_.setReadOnly(model_.ReadOnly);
    const QString text = ToQt(model_.Text);
    if (edit_.toPlainText() == text) return;
    syncing_ = true;
    edit_.setPlainText(text);
    syncing_ = false;
}

}  // namespace tav
