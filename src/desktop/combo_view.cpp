#include "desktop/combo_view.h"

#include "desktop/pixels.h"
#include "desktop/text.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QSignalBlocker>

namespace tav {
namespace {

constexpr int kMostItemsShown = 20;

}  // namespace

ComboView::ComboView(ComboBox& model, QWidget& parent, FormView& form)
    : ComboView(model, new QComboBox(&parent), form) {}

ComboView::ComboView(ComboBox& model, QComboBox* box, FormView& form)
    : ControlView(model, *box, form), model_(model), box_(*box) {
    box->setEditable(model.FreeText);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setMaxVisibleItems(kMostItemsShown);
    // A long entry widens the list, not the box.
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    Watch(*box);
    QObject::connect(box, &QComboBox::activated,
                     [this](int index) { Perform([this, index] { model_.UserChoose(index); }); });
    if (QLineEdit* const edit = box->lineEdit()) {
        box->setCompleter(nullptr);
        QObject::connect(edit, &QLineEdit::textEdited, [this](const QString& text) {
            Perform([this, &text] { model_.UserType(FromQt(text)); });
        });
    }
}

// Turning the wheel over a box on the way down a page must not change what stands in it.
bool ComboView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Wheel) {
        event->ignore();
        return true;
    }
    if (event->type() == QEvent::KeyPress && OpensList(*static_cast<QKeyEvent*>(event))) {
        box_.showPopup();
        return true;
    }
    return ControlView::eventFilter(watched, event);
}

// The arrows open the list instead of choosing one entry after the other on the way, each of which
// may have a question to ask.
bool ComboView::OpensList(const QKeyEvent& key) const {
    return (key.key() == Qt::Key_Down || key.key() == Qt::Key_Up) && box_.count() > 0;
}

bool ComboView::ConsumesKey(const QKeyEvent& key) const { return key.key() == Qt::Key_Escape; }

bool ComboView::EntersFor(Qt::FocusReason reason) const {
    return reason != Qt::MouseFocusReason && ControlView::EntersFor(reason);
}

std::optional<int> ComboView::OwnHeight() const {
    return std::max(Pixels(model_.Height), box_.sizeHint().height());
}

void ComboView::SyncContent() {
    const QSignalBlocker quiet(box_);
    if (items_ != model_.Items()) {
        items_ = model_.Items();
        box_.clear();
        for (const std::string& item : items_)
            box_.addItem(ToQt(item));
        const int widest = box_.view()->sizeHintForColumn(0);
        box_.view()->setMinimumWidth(widest + box_.view()->sizeHintForRow(0));
    }
    if (box_.currentIndex() != model_.ListIndex()) box_.setCurrentIndex(model_.ListIndex());
    const QString text = ToQt(model_.Text());
    if (QLineEdit* const edit = box_.lineEdit()) {
        edit->setFont(box_.font());
        if (edit->text() != text) edit->setText(text);
    } else {
        // What isn't in the list is shown all the same.
        box_.setPlaceholderText(text);
    }
}

}  // namespace tav
