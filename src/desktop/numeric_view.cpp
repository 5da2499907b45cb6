#include "desktop/numeric_view.h"

#include "desktop/form_view.h"
#include "desktop/pixels.h"
#include "desktop/text.h"
#include "desktop/text_view.h"
#include "desktop/theme.h"

#include <QApplication>
#include <QTimer>

namespace tav {
namespace {

constexpr int kNoteGap = 2;
constexpr int kNoteMargin = 3;

}  // namespace

NumericView::NumericView(NumericTextBox& model, QWidget& parent, FormView& form)
    : NumericView(model, new QLineEdit(&parent), form) {}

NumericView::NumericView(NumericTextBox& model, QLineEdit* edit, FormView& form)
    : ControlView(model, *edit, form), model_(model), edit_(*edit) {
    Watch(*edit);
    QObject::connect(edit, &QLineEdit::textEdited, [this](QString text) {
        // A cell from a spreadsheet comes with the end of its line.
        text.replace(QLatin1Char('\n'), QLatin1Char(' '));
        Perform([this, &text] { model_.UserType(FromQt(text)); });
    });
}

bool NumericView::eventFilter(QObject* watched, QEvent* event) {
    const bool done = ControlView::eventFilter(watched, event);
    const bool entered = event->type() == QEvent::KeyPress &&
                         (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Return ||
                          static_cast<QKeyEvent*>(event)->key() == Qt::Key_Enter);
    // Behind the press of the mouse, which would take the selection away again.
    if (event->type() == QEvent::FocusIn || entered) {
        QTimer::singleShot(0, &edit_, [this] {
            if (edit_.hasFocus()) edit_.selectAll();
        });
    }
    return done;
}

std::optional<int> NumericView::OwnHeight() const {
    return LineHeight(edit_, Pixels(model_.Height));
}

QString NumericView::Shown() const {
    if (!model_.IsBeingEdited()) return ToQt(model_.Text);
    return ToQt(model_.RefusedText().empty() ? model_.EditText() : model_.RefusedText());
}

void NumericView::SyncContent() {
    const QString text = Shown();
    if (edit_.text() != text) {
        const int cursor = edit_.cursorPosition();
        edit_.setText(text);
        edit_.setCursorPosition(cursor);
    }
    SyncRefusal();
}

// The note is made when the first one is due: most boxes never have one.
void NumericView::SyncRefusal() {
    if (model_.Refusal.empty() || !model_.IsShown()) {
        if (note_ == nullptr || note_->isHidden()) return;
        note_->hide();
        edit_.setAccessibleDescription(QString());
        return;
    }
    if (note_ == nullptr) MakeNote();
    note_->setText(ToQt(model_.Refusal));
    edit_.setAccessibleDescription(note_->text());
    note_->adjustSize();
    PlaceNote();
    note_->show();
    note_->raise();
}

// It goes when the keyboard goes on to another control once more.
void NumericView::MakeNote() {
    note_ = new QLabel(&TheForm().Surface());
    note_->setObjectName(QStringLiteral("refusal"));
    note_->setTextFormat(Qt::PlainText);
    note_->setFrameStyle(QFrame::Box);
    note_->setMargin(kNoteMargin);
    note_->setPalette(RefusalPalette());
    note_->setAutoFillBackground(true);
    note_->setAttribute(Qt::WA_TransparentForMouseEvents);
    QObject::connect(qApp, &QApplication::focusChanged, note_, [this] {
        if (!TheForm().IsLive()) return;
        model_.Refusal.clear();
        SyncRefusal();
    });
}

// Under the field, moved to the left where the window ends.
void NumericView::PlaceNote() {
    QWidget& surface = TheForm().Surface();
    QPoint corner = edit_.mapTo(&surface, QPoint(0, edit_.height() + kNoteGap));
    corner.setX(std::max(0, std::min(corner.x(), surface.width() - note_->width())));
    if (corner.y() + note_->height() > surface.height()) {
        corner.setY(edit_.mapTo(&surface, QPoint()).y() - note_->height() - kNoteGap);
    }
    note_->move(corner);
}

}  // namespace tav
