#include "desktop/grid_view.h"

#include "desktop/form_view.h"
#include "desktop/grid_clipboard.h"
#include "desktop/pixels.h"
#include "desktop/text.h"

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollBar>

namespace tav {
namespace {

constexpr int kCellPadding = 14;  // pixels on both sides together
constexpr int kRowPadding = 6;    // above and below together
constexpr int kCornerMargin = 2;
constexpr int kHeaderPadding = 6;  // what a header needs more than a cell

bool BeginsEntry(const QKeyEvent& key) {
    const QString text = key.text();
    return !text.isEmpty() && text.front().isPrint() &&
           !(key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
}

}  // namespace

GridView::GridView(Grid& model, QWidget& parent, FormView& form)
    : GridView(model, new QTableView(&parent), form) {}

GridView::GridView(Grid& model, QTableView* table, FormView& form)
    : ControlView(model, *table, form),
      model_(model),
      table_(*table),
      cells_(model),
      corner_(new QLabel(table)) {
    SetUpTable();
    AddActions();
    Watch(*table);
    Watch(*table->viewport());
    QObject::connect(table->selectionModel(), &QItemSelectionModel::currentChanged,
                     [this](const QModelIndex& to) { CursorMoved(to); });
    for (const QScrollBar* const bar : {table->verticalScrollBar(), table->horizontalScrollBar()}) {
        QObject::connect(bar, &QScrollBar::valueChanged, [this] {
            if (editor_) editor_->setGeometry(table_.visualRect(table_.currentIndex()));
        });
    }
}

void GridView::SetUpTable() {
    corner_->setTextFormat(Qt::PlainText);
    corner_->setAttribute(Qt::WA_TransparentForMouseEvents);
    corner_->setMargin(kCornerMargin);
    table_.setModel(&cells_);
    table_.setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_.setSelectionMode(QAbstractItemView::ExtendedSelection);
    table_.setTabKeyNavigation(false);
    table_.setWordWrap(false);
    table_.setAlternatingRowColors(true);
    table_.setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    table_.setCornerButtonEnabled(false);
    for (QHeaderView* const header : {table_.horizontalHeader(), table_.verticalHeader()}) {
        header->setHighlightSections(false);
        header->setSectionResizeMode(QHeaderView::Fixed);
        header->setTextElideMode(Qt::ElideRight);
        // Behind the last header the grid's empty ground goes on.
        QPalette palette = header->palette();
        palette.setColor(QPalette::Window, palette.color(QPalette::Base));
        header->setPalette(palette);
    }
    table_.horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
}

void GridView::AddActions() {
    const auto add = [this](const QString& text, const QKeySequence& keys, auto run) {
        auto* const action = new QAction(text, &table_);
        action->setShortcut(keys);
        action->setShortcutContext(Qt::WidgetShortcut);
        QObject::connect(action, &QAction::triggered, run);
        table_.addAction(action);
        actions_.append(action);
    };
    add(QStringLiteral("Copy"), QKeySequence::Copy, [this] { Copy(false); });
    add(QStringLiteral("Copy with Headers"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C),
        [this] { Copy(true); });
    // Where the control has no pop-up menu of its own in which they stand.
    table_.setContextMenuPolicy(Qt::ActionsContextMenu);
    if (model_.Editable) {
        add(QStringLiteral("Paste"), QKeySequence::Paste, [this] { Paste(); });
    }
}

void GridView::SyncContent() {
    syncing_ = true;
    for (QHeaderView* const header : {table_.horizontalHeader(), table_.verticalHeader()})
        header->setFont(table_.font());
    if (cells_.Refresh()) {
        table_.horizontalHeader()->setVisible(model_.FixedRows > 0);
        table_.verticalHeader()->setVisible(model_.FixedCols > 0);
        FitRows();
        FitColumns();
    }
    FitCorner();
    SyncCursor();
    syncing_ = false;
    if (!model_.IsEditing() && !closing_) RemoveEditor();
}

void GridView::SyncCursor() {
    if (model_.Row() < model_.FixedRows || model_.Col() < model_.FixedCols) return;
    const QModelIndex cursor = cells_.IndexOf(model_.Row(), model_.Col());
    if (!cursor.isValid() || cursor == table_.currentIndex()) return;
    // A cursor that the program has set is seen when the user comes to the grid.
    const bool here = table_.hasFocus() || editor_;
    table_.selectionModel()->setCurrentIndex(
        cursor, here ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate);
}

void GridView::FitRows() {
    const int height =
        std::max(Pixels(model_.RowHeight), QFontMetrics(table_.font()).height() + kRowPadding);
    table_.verticalHeader()->setMinimumSectionSize(height);
    table_.verticalHeader()->setDefaultSectionSize(height);
}

void GridView::FitCorner() {
    const QHeaderView& rows = *table_.verticalHeader();
    const QHeaderView& cols = *table_.horizontalHeader();
    const bool both = model_.FixedRows > 0 && model_.FixedCols > 0 && model_.Cols() > 0;
    corner_->setVisible(both);
    if (!both) return;
    corner_->setFont(table_.font());
    corner_->setText(cells_.TextAt(0, 0));
    corner_->setGeometry(table_.frameWidth(), table_.frameWidth(), rows.width(), cols.height());
}

int GridView::ContentWidth(int gridCol) const {
    const QFontMetrics metrics(table_.font());
    int widest = 0;
    for (int row = 0; row < model_.Rows(); ++row)
        widest = std::max(widest, metrics.horizontalAdvance(cells_.TextAt(row, gridCol)));
    return widest + kCellPadding;
}

// Each column is as wide as the grid says, and wide enough for its texts. What is left goes to the
// names in the fixed column, or to the last column where there is none.
void GridView::FitColumns() {
    const int room =
        table_.width() - 2 * table_.frameWidth() - table_.verticalScrollBar()->sizeHint().width();
    int used = 0;
    for (int i = 0; i < cells_.columnCount(); ++i) {
        const int col = i + model_.FixedCols;
        const int width = std::max(Pixels(model_.ColWidth(col)), ContentWidth(col));
        table_.setColumnWidth(i, width);
        used += width;
    }
    const int last = cells_.columnCount() - 1;
    if (model_.FixedCols == 0 || model_.Cols() == 0) {
        if (last >= 0 && used < room) {
            table_.setColumnWidth(last, table_.columnWidth(last) + room - used);
        }
        return;
    }
    const int names = std::max(Pixels(model_.ColWidth(0)), ContentWidth(0) + kHeaderPadding);
    const int most = std::max(room - used, room / 2);
    table_.verticalHeader()->setFixedWidth(used < room ? most : std::min(names, most));
}

void GridView::CursorMoved(const QModelIndex& to) {
    if (syncing_ || !to.isValid()) return;
    const int row = cells_.GridRow(to);
    const int col = cells_.GridCol(to);
    Perform([this, row, col] { model_.UserMoveCursor(row, col); });
}

bool GridView::EntersFor(Qt::FocusReason reason) const {
    return reason != Qt::MouseFocusReason && ControlView::EntersFor(reason);
}

// A click turns to the cell under it instead.
void GridView::EnterFirstCell() {
    if (table_.currentIndex().isValid() || cells_.rowCount() == 0 || cells_.columnCount() == 0) {
        return;
    }
    table_.setCurrentIndex(cells_.index(0, 0));
}

bool GridView::eventFilter(QObject* watched, QEvent* event) {
    if (!TheForm().IsLive()) return false;
    if (editor_ && watched == editor_ && EditorEvent(*event)) return true;
    if (watched == editor_) return false;
    if ((watched == &table_ || watched == table_.viewport()) && TableEvent(*event)) return true;
    if (watched == table_.viewport() && event->type() != QEvent::MouseButtonPress &&
        event->type() != QEvent::ContextMenu) {
        return false;
    }
    return ControlView::eventFilter(watched, event);
}

bool GridView::TableEvent(QEvent& event) {
    switch (event.type()) {
        case QEvent::KeyPress: return KeyOnTable(static_cast<QKeyEvent&>(event));
        case QEvent::FocusIn:
            if (EntersFor(static_cast<QFocusEvent&>(event).reason())) EnterFirstCell();
            return false;
        // A refused entry keeps the cursor.
        case QEvent::MouseButtonPress: return editor_ && !Close();
        case QEvent::MouseButtonDblClick: Open(nullptr); return true;
        case QEvent::Resize:
            FitColumns();
            FitCorner();
            return false;
        default: return false;
    }
}

bool GridView::KeyOnTable(const QKeyEvent& key) {
    switch (key.key()) {
        case Qt::Key_Tab:
            if (key.modifiers().testFlag(Qt::ControlModifier)) return LeaveGrid(1);
            return MoveOn(1);
        case Qt::Key_Backtab:
            if (key.modifiers().testFlag(Qt::ControlModifier)) return LeaveGrid(-1);
            return MoveOn(-1);
        case Qt::Key_F2: Open(nullptr); return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (!model_.Editable) return false;
            MoveDown(key.modifiers().testFlag(Qt::ShiftModifier) ? -1 : 1);
            return true;
        case Qt::Key_Delete: {
            const QString nothing;
            Open(&nothing);
            return true;
        }
        default: break;
    }
    if (!model_.Editable || !BeginsEntry(key)) return false;
    const QString typed = key.text();
    Open(&typed);
    return true;
}

bool GridView::MoveOn(int steps) {
    const int columns = cells_.columnCount();
    if (columns == 0 || !table_.currentIndex().isValid()) return false;
    const QModelIndex at = table_.currentIndex();
    const int place = at.row() * columns + at.column() + steps;
    if (place < 0 || place >= columns * cells_.rowCount()) return false;
    table_.setCurrentIndex(cells_.index(place / columns, place % columns));
    return true;
}

bool GridView::LeaveGrid(int step) {
    const std::vector<Control*>& all = model_.Owner().Controls();
    const auto count = static_cast<int>(all.size());
    int place = static_cast<int>(std::find(all.begin(), all.end(), &model_) - all.begin());
    for (int i = 1; i < count; ++i) {
        place = (place + step + count) % count;
        const Control& next = *all[static_cast<std::size_t>(place)];
        ControlView* const view = TheForm().ViewOf(next);
        if (view == nullptr || !next.TakesFocus() || !next.IsUsable()) continue;
        view->FocusWidget()->setFocus(step > 0 ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        break;
    }
    return true;
}

void GridView::MoveDown(int rows) {
    const QModelIndex at = table_.currentIndex();
    const QModelIndex next = cells_.index(at.row() + rows, at.column());
    if (next.isValid()) table_.setCurrentIndex(next);
}

void GridView::Open(const QString* typed) {
    const QModelIndex at = table_.currentIndex();
    if (editor_ || !at.isValid()) return;
    bool open = false;
    const int row = cells_.GridRow(at);
    const int col = cells_.GridCol(at);
    Perform([this, row, col, &open] {
        model_.UserMoveCursor(row, col);
        open = model_.UserOpenEdit();
    });
    if (!open || !model_.IsEditing()) return;
    ShowEditor();
    auto* const edit = qobject_cast<QLineEdit*>(editor_.data());
    if (typed != nullptr && edit != nullptr) edit->setText(*typed);
}

void GridView::ShowEditor() {
    const std::vector<std::string> entries = model_.ComboEntries();
    const QString text = ToQt(model_.EditText);
    if (entries.empty()) {
        auto* const edit = new QLineEdit(text, table_.viewport());
        edit->setFrame(false);
        edit->setAlignment(static_cast<Qt::Alignment>(
            cells_.data(table_.currentIndex(), Qt::TextAlignmentRole).value<Qt::Alignment>()));
        edit->selectAll();
        editor_ = edit;
    } else {
        auto* const box = new QComboBox(table_.viewport());
        for (const std::string& entry : entries)
            box->addItem(ToQt(entry));
        box->setCurrentText(text);
        QObject::connect(box, &QComboBox::activated, [this] {
            if (Close()) table_.setFocus();
        });
        editor_ = box;
    }
    editor_->setFont(table_.font());
    editor_->setAccessibleName(table_.accessibleName());
    editor_->setGeometry(table_.visualRect(table_.currentIndex()));
    Watch(*editor_);
    editor_->show();
    editor_->setFocus();
    if (auto* const box = qobject_cast<QComboBox*>(editor_.data())) box->showPopup();
}

QString GridView::Typed() const {
    if (const auto* const box = qobject_cast<QComboBox*>(editor_.data())) return box->currentText();
    const auto* const edit = qobject_cast<QLineEdit*>(editor_.data());
    return edit == nullptr ? QString() : edit->text();
}

bool GridView::EditorEvent(QEvent& event) {
    if (event.type() == QEvent::KeyPress) return KeyInEditor(static_cast<QKeyEvent&>(event));
    if (event.type() != QEvent::FocusOut || closing_ || HasKeyboard()) return false;
    const Qt::FocusReason reason = static_cast<QFocusEvent&>(event).reason();
    if (ControlView::EntersFor(reason)) FinishTyping();
    return false;
}

// In the list of a drop-down, too. The grid itself sees to a click on another of its cells.
bool GridView::HasKeyboard() const {
    const QObject* at = QApplication::focusWidget();
    while (at != nullptr && at != &table_)
        at = at->parent();
    return at != nullptr;
}

bool GridView::KeyInEditor(const QKeyEvent& key) {
    switch (key.key()) {
        case Qt::Key_Escape:
            GiveUp();
            table_.setFocus();
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (!Close()) return true;
            table_.setFocus();
            MoveDown(key.modifiers().testFlag(Qt::ShiftModifier) ? -1 : 1);
            return true;
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            if (!Close()) return true;
            table_.setFocus();
            MoveOn(key.key() == Qt::Key_Tab ? 1 : -1);
            return true;
        default: return false;
    }
}

bool GridView::Close() {
    if (!editor_ || closing_) return true;
    const std::string text = FromQt(Typed());
    closing_ = true;
    Perform([this, &text] {
        if (model_.IsEditing()) model_.UserCloseEdit(text);
    });
    closing_ = false;
    if (!editor_) return true;
    if (!model_.IsEditing()) {
        RemoveEditor();
        return true;
    }
    editor_->setFocus();
    if (auto* const edit = qobject_cast<QLineEdit*>(editor_.data())) edit->selectAll();
    return false;
}

// The user has gone elsewhere: what is refused leaves the old text.
void GridView::FinishTyping() {
    if (editor_ && !Close()) GiveUp();
}

void GridView::GiveUp() {
    Perform([this] { model_.UserCancelEdit(); });
    RemoveEditor();
}

void GridView::RemoveEditor() {
    if (!editor_) return;
    QWidget* const editor = editor_;
    editor_ = nullptr;
    editor->removeEventFilter(this);
    editor->hide();
    editor->deleteLater();
}

void GridView::Copy(bool withHeaders) {
    CopyCells(cells_, table_.selectionModel()->selection(), withHeaders);
}

void GridView::Paste() {
    const QModelIndex at = table_.currentIndex();
    if (!at.isValid()) return;
    PasteCells(model_, cells_.GridRow(at), cells_.GridCol(at),
               [this](const std::function<void()>& action) { Perform(action); });
}

}  // namespace tav
