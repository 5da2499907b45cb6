#include "desktop/file_list_views.h"

#include "desktop/text.h"

#include <QApplication>
#include <QSignalBlocker>
#include <QStyle>

namespace tav {
namespace {

constexpr int kFolderRole = Qt::UserRole;
constexpr int kIconPixels = 16;

QIcon StandardIcon(QStyle::StandardPixmap picture) {
    return QApplication::style()->standardIcon(picture);
}

}  // namespace

DriveListView::DriveListView(DriveList& model, QWidget& parent, FormView& form)
    : DriveListView(model, new QComboBox(&parent), form) {}

DriveListView::DriveListView(DriveList& model, QComboBox* box, FormView& form)
    : ControlView(model, *box, form), model_(model), box_(*box) {
    Watch(*box);
    box->setAccessibleName(QStringLiteral("Drive"));
    QObject::connect(box, &QComboBox::activated, [this](int index) {
        const std::string drive = PathFromQt(box_.itemText(index));
        Perform([this, &drive] { model_.UserChoose(drive); });
    });
}

// A medium may have come or gone since the list was last opened.
bool DriveListView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::FocusIn) ReadDrives();
    return ControlView::eventFilter(watched, event);
}

void DriveListView::ReadDrives() {
    const QSignalBlocker quiet(box_);
    box_.clear();
    for (const std::string& drive : DriveList::Drives())
        box_.addItem(StandardIcon(QStyle::SP_DriveHDIcon), PathToQt(drive));
    box_.setCurrentIndex(box_.findText(PathToQt(model_.Drive())));
}

void DriveListView::SyncContent() {
    if (box_.count() == 0) ReadDrives();
    const QSignalBlocker quiet(box_);
    box_.setCurrentIndex(box_.findText(PathToQt(model_.Drive())));
}

FolderListView::FolderListView(FolderList& model, QWidget& parent, FormView& form)
    : FolderListView(model, new QListWidget(&parent), form) {}

FolderListView::FolderListView(FolderList& model, QListWidget* list, FormView& form)
    : ControlView(model, *list, form), model_(model), list_(*list) {
    Watch(*list);
    list->setAccessibleName(QStringLiteral("Folder"));
    list->setIconSize({kIconPixels, kIconPixels});
    QObject::connect(list, &QListWidget::itemActivated,
                     [this](const QListWidgetItem* entry) { Open(entry); });
}

// The list itself opens the entry for Enter.
bool FolderListView::ConsumesKey(const QKeyEvent& key) const { return key.key() == Qt::Key_Escape; }

void FolderListView::Open(const QListWidgetItem* entry) {
    const std::string folder = entry->data(kFolderRole).toByteArray().toStdString();
    Perform([this, &folder] { model_.UserOpen(folder); });
}

void FolderListView::SyncContent() {
    std::vector<std::string> folders = model_.Folders();
    if (shownPath_ == model_.Path() && shownFolders_ == folders) return;
    shownPath_ = model_.Path();
    shownFolders_ = std::move(folders);
    list_.clear();
    list_.setToolTip(ToolTipText(PathToQt(shownPath_)));
    const auto add = [this](const std::string& folder, const QString& text,
                            QStyle::StandardPixmap picture) {
        auto* const entry = new QListWidgetItem(StandardIcon(picture), text, &list_);
        entry->setData(kFolderRole, QByteArray::fromStdString(folder));
    };
    add(shownPath_, PathToQt(shownPath_), QStyle::SP_DirOpenIcon);
    if (shownPath_ != DriveList::DefaultDrive()) {
        add("..", QStringLiteral(".."), QStyle::SP_FileDialogToParent);
    }
    for (const std::string& folder : shownFolders_)
        add(folder, PathToQt(folder), QStyle::SP_DirIcon);
}

}  // namespace tav
