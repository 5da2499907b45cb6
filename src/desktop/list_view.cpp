#include "desktop/list_view.h"

#include "desktop/form_view.h"
#include "desktop/text.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

namespace tav {
namespace {

// Lines with a little room between them.
class RoomyLines : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        constexpr int kRoom = 3;
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, kRoom);
    }
};

// Letters lead to the line that begins with them. Where lines are marked, only Space and the mouse
// mark one.
class SearchedList : public QListWidget {
  public:
    using QListWidget::QListWidget;

    void keyboardSearch(const QString& typed) override {
        if (selectionMode() != MultiSelection) {
            QListWidget::keyboardSearch(typed);
            return;
        }
        if (!sinceKey_.isValid() || sinceKey_.elapsed() > QApplication::keyboardInputInterval()) {
            wanted_.clear();
        }
        sinceKey_.start();
        wanted_ += typed;
        const int from = std::max(currentRow(), 0) + (wanted_.size() == typed.size() ? 1 : 0);
        const QModelIndexList hits =
            model()->match(model()->index(from % std::max(count(), 1), 0), Qt::DisplayRole, wanted_,
                           1, Qt::MatchStartsWith | Qt::MatchWrap);
        if (hits.isEmpty()) return;
        selectionModel()->setCurrentIndex(hits.front(), QItemSelectionModel::NoUpdate);
    }

  private:
    QString wanted_;
    QElapsedTimer sinceKey_;
};

}  // namespace

ListView::ListView(ListBox& model, QWidget& parent, FormView& form)
    : ListView(model, new SearchedList(&parent), form) {}

ListView::ListView(ListBox& model, QListWidget* list, FormView& form)
    : ControlView(model, *list, form), model_(model), list_(*list) {
    list->setSelectionMode(model.MultiSelect ? QAbstractItemView::MultiSelection
                                             : QAbstractItemView::SingleSelection);
    list->setItemDelegate(new RoomyLines(list));
    list->setUniformItemSizes(true);
    // A line too long for the list loses its middle; the pointer shows all of it.
    list->setTextElideMode(Qt::ElideMiddle);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Watch(*list);
    Watch(*list->viewport());
    QObject::connect(list, &QListWidget::itemSelectionChanged, [this] { SelectionChanged(); });
}

int ListView::EntryUnder(const QPoint& place) const { return list_.row(list_.itemAt(place)); }

// A click on the entry that is chosen already changes no selection, and counts all the same.
bool ListView::eventFilter(QObject* watched, QEvent* event) {
    if (!TheForm().IsLive()) return false;
    if (watched != list_.viewport()) return ControlView::eventFilter(watched, event);
    if (event->type() != QEvent::MouseButtonPress) return false;
    const auto* const press = static_cast<QMouseEvent*>(event);
    const int entry = EntryUnder(press->pos());
    if (press->button() == Qt::LeftButton && !model_.MultiSelect && entry >= 0 &&
        entry == model_.ListIndex()) {
        Perform([this, entry] { model_.UserChoose(entry); });
        return true;
    }
    return ControlView::eventFilter(watched, event);
}

bool ListView::EntersFor(Qt::FocusReason reason) const {
    return reason != Qt::MouseFocusReason && ControlView::EntersFor(reason);
}

void ListView::SelectionChanged() {
    if (model_.MultiSelect) {
        TakeMarks();
    } else {
        TakeChoice();
    }
}

// Each change is one of the user's; what an event of the first does to the list counts for the
// next.
void ListView::TakeMarks() {
    std::vector<bool> marks;
    marks.reserve(static_cast<std::size_t>(list_.count()));
    for (int i = 0; i < list_.count(); ++i)
        marks.push_back(list_.item(i)->isSelected());
    Perform([this, &marks] {
        for (int i = 0; i < std::min(model_.ListCount(), static_cast<int>(marks.size())); ++i)
            model_.UserMark(i, marks[static_cast<std::size_t>(i)]);
    });
}

void ListView::TakeChoice() {
    const QList<QListWidgetItem*> selected = list_.selectedItems();
    if (selected.isEmpty()) return;
    const int entry = list_.row(selected.front());
    if (entry != model_.ListIndex()) Perform([this, entry] { model_.UserChoose(entry); });
}

void ListView::SyncContent() {
    const QSignalBlocker quiet(list_);
    if (items_ != model_.Items()) {
        items_ = model_.Items();
        list_.clear();
        for (const std::string& item : items_) {
            auto* const entry = new QListWidgetItem(ToQt(item), &list_);
            entry->setToolTip(ToolTipText(entry->text()));
        }
        shownIndex_ = -1;
    }
    for (int i = 0; i < list_.count(); ++i) {
        const bool marked = model_.Selected(i);
        if (list_.item(i)->isSelected() != marked) list_.item(i)->setSelected(marked);
    }
    if (model_.ListIndex() == shownIndex_) return;
    shownIndex_ = model_.ListIndex();
    if (shownIndex_ < 0) return;
    list_.setCurrentItem(list_.item(shownIndex_), QItemSelectionModel::NoUpdate);
    list_.scrollToItem(list_.item(shownIndex_));
}

}  // namespace tav
