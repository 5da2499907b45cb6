#include "desktop/help_panel.h"

#include "desktop/text.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace tav {
namespace {

constexpr int kPageRole = Qt::UserRole;
constexpr int kSectionRole = Qt::UserRole + 1;

}  // namespace

HelpPanel::HelpPanel(const QString& caption, QWidget* parent)
    : QWidget(parent), entry_(new QLineEdit), list_(new QListWidget) {
    auto* const layout = new QVBoxLayout(this);
    auto* const label = new QLabel(caption);
    label->setBuddy(entry_);
    entry_->setAccessibleName(caption);
    entry_->setClearButtonEnabled(true);
    entry_->installEventFilter(this);
    list_->setAccessibleName(caption);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);  // the tool tips have it whole
    layout->addWidget(label);
    layout->addWidget(entry_);
    layout->addWidget(list_, 1);
    const auto choose = [this](const QListWidgetItem* item) { Choose(item); };
    connect(list_, &QListWidget::itemActivated, this, choose);
    connect(list_, &QListWidget::itemClicked, this, choose);
    connect(entry_, &QLineEdit::returnPressed, this, [this] { Choose(list_->currentItem()); });
    connect(entry_, &QLineEdit::textChanged, this, [this](const QString& text) {
        if (Changed) Changed(text);
    });
}

void HelpPanel::Offer(const QString& text, const HelpTarget& target) {
    auto* const item = new QListWidgetItem(text, list_);
    item->setToolTip(ToolTipText(text));
    item->setData(kPageRole, target.Page);
    item->setData(kSectionRole, target.Section);
    if (list_->currentItem() == nullptr) list_->setCurrentItem(item);
}

void HelpPanel::Tell(const QString& text) {
    (new QListWidgetItem(text, list_))->setFlags(Qt::NoItemFlags);
}

void HelpPanel::Filter(const QString& text) {
    const QString wanted = text.trimmed();
    QListWidgetItem* best = nullptr;
    bool begins = false;
    for (int row = 0; row < list_->count(); ++row) {
        QListWidgetItem* const item = list_->item(row);
        item->setHidden(!item->text().contains(wanted, Qt::CaseInsensitive));
        if (item->isHidden() || begins) continue;
        begins = item->text().startsWith(wanted, Qt::CaseInsensitive);
        if (begins || best == nullptr) best = item;
    }
    list_->setCurrentItem(best);
    if (best != nullptr) list_->scrollToItem(best);
}

void HelpPanel::Choose(const QListWidgetItem* item) const {
    if (item == nullptr || item->flags() == Qt::NoItemFlags || !Chosen) return;
    Chosen({item->data(kPageRole).toString(), item->data(kSectionRole).toString()});
}

bool HelpPanel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
            key == Qt::Key_PageDown) {
            QCoreApplication::sendEvent(list_, event);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

}  // namespace tav
