#include "desktop/file_dialog.h"

#include "desktop/text.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QTreeView>

namespace tav {
namespace {

constexpr int kDialogWidth = 760;
constexpr int kDialogHeight = 480;

// "Captions (*.tav)|*.tav" as Qt wants it. A pattern of all files names them without a point.
QStringList FiltersOf(const std::string& filter) {
    const QStringList parts = ToQt(filter).split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString caption = parts[i].section(QLatin1Char('('), 0, 0).trimmed();
        QString pattern = parts[i + 1];
        pattern.replace(QLatin1Char(';'), QLatin1Char(' '));
        if (pattern == QLatin1String("*.*")) pattern = QStringLiteral("*");
        filters += QStringLiteral("%1 (%2)").arg(caption, pattern);
    }
    return filters;
}

void SetUp(QFileDialog& box, const CommonDialog& dialog) {
    if (!dialog.DialogTitle.empty()) box.setWindowTitle(ToQt(dialog.DialogTitle));
    const QStringList filters = FiltersOf(dialog.Filter);
    if (!filters.isEmpty()) {
        box.setNameFilters(filters);
        box.selectNameFilter(filters.value(dialog.FilterIndex - 1, filters.front()));
    }
    const QString folder = PathToQt(dialog.InitDir);
    if (!folder.isEmpty() && QDir(folder).exists()) box.setDirectory(folder);
    const QString proposal = PathToQt(dialog.FileName);
    if (!proposal.isEmpty()) box.selectFile(QFileInfo(proposal).fileName());
}

// The ending that a name without one gets: that of the files which the dialog proposes.
QString SuffixOf(const CommonDialog& dialog) {
    const QString pattern =
        ToQt(dialog.Filter).split(QLatin1Char('|')).value(2 * dialog.FilterIndex - 1);
    const QString suffix = pattern.section(QLatin1Char('.'), 1);
    return suffix.contains(QLatin1Char('*')) || suffix.contains(QLatin1Char(';')) ? QString()
                                                                                  : suffix;
}

// Names whole, the rest as wide as it needs.
void FitColumns(const QFileDialog& box) {
    auto* const table = box.findChild<QTreeView*>();
    if (table == nullptr) return;
    table->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->header()->setSectionResizeMode(0, QHeaderView::Stretch);
}

bool Choose(QFileDialog& box, CommonDialog& dialog) {
    box.resize(kDialogWidth, kDialogHeight);
    FitColumns(box);
    if (box.exec() != QDialog::Accepted || box.selectedFiles().isEmpty()) return false;
    const QString file = QDir::toNativeSeparators(box.selectedFiles().constFirst());
    dialog.FileName = PathFromQt(file);
    dialog.FileTitle = PathFromQt(QFileInfo(file).fileName());
    return true;
}

}  // namespace

bool ChooseFileToOpen(CommonDialog& dialog, QWidget* over) {
    QFileDialog box(over);
    box.setAcceptMode(QFileDialog::AcceptOpen);
    box.setFileMode((dialog.Flags & CommonDialog::kFileMustExist) != 0 ? QFileDialog::ExistingFile
                                                                       : QFileDialog::AnyFile);
    SetUp(box, dialog);
    return Choose(box, dialog);
}

bool ChoosePlaceToSave(CommonDialog& dialog, QWidget* over) {
    QFileDialog box(over);
    box.setAcceptMode(QFileDialog::AcceptSave);
    box.setFileMode(QFileDialog::AnyFile);
    box.setLabelText(QFileDialog::LookIn, QStringLiteral("Save in:"));
    box.setDefaultSuffix(SuffixOf(dialog));
    if ((dialog.Flags & CommonDialog::kOverwritePrompt) == 0) {
        box.setOption(QFileDialog::DontConfirmOverwrite);
    }
    SetUp(box, dialog);
    return Choose(box, dialog);
}

}  // namespace tav
