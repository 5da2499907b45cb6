#include "desktop/own_folder.h"

#include "desktop/own_folder_copy.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QSettings>

namespace tav {
namespace {

const QString kFolderName = QStringLiteral("TAV Dairy Cattle Program");
const QString kRemembered = QStringLiteral("Folder");

enum class Choice { MakeCopy, ChooseFolder, GoOn, Exit };

// Where the user's own copy was made the last time; it can't be kept in the program folder.
QSettings Memory() { return QSettings(QStringLiteral("tav-dairy"), QStringLiteral("own-folder")); }

QString UsualFolder() { return QDir::home().filePath(kFolderName); }

bool IsOwnCopy(const QString& folder, const QString& here) {
    return HoldsProgram(folder) && QDir(folder) != QDir(here) && CanWriteIn(folder);
}

// Empty if there is none.
QString OwnCopy(const QString& here) {
    const QString remembered = Memory().value(kRemembered).toString();
    for (const QString& folder : {remembered, UsualFolder()}) {
        if (!folder.isEmpty() && IsOwnCopy(folder, here)) return folder;
    }
    return {};
}

// In one plain text: folders may have any name.
void ShowPlain(QMessageBox& box, const QString& text, const QString& more) {
    box.setTextFormat(Qt::PlainText);
    box.setText(text + QStringLiteral("\n\n") + more);
}

void Tell(const QString& text, const QString& more) {
    QMessageBox box(QMessageBox::Critical, kFolderName, QString(), QMessageBox::Ok);
    ShowPlain(box, text, more);
    box.exec();
}

// False after a message about what failed.
bool CopyTo(const QString& here, const QString& folder) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    QString fault;
    try {
        CopyProgram(here, folder);
    } catch (const CopyFault& error) {
        fault = QString::fromUtf8(error.what());
    }
    QApplication::restoreOverrideCursor();
    if (fault.isEmpty()) return true;
    Tell(fault, QStringLiteral("Your copy of the program is not complete. What you had saved in it "
                               "is unchanged. See that there is room on the disk and that you may "
                               "write to the folder, or choose another folder, and try again."));
    return false;
}

// The current folder stays as it is: it is where files are saved first.
bool StartIn(const QString& folder) {
    const QString program = ProgramIn(folder);
    if (QProcess::startDetached(program, {})) {
        Memory().setValue(kRemembered, folder);
        return true;
    }
    Tell(QStringLiteral("Your own copy of the program could not be started:\n") +
             QDir::toNativeSeparators(program),
         QStringLiteral("Programs may not be allowed to run from that disk. Choose another folder, "
                        "or ask whoever looks after this computer."));
    return false;
}

// An update that fails is tried again the next time; the copy works as it was until then.
bool StartOwnCopy(const QString& here, const QString& folder) {
    if (IsLater(here, folder)) CopyTo(here, folder);
    return StartIn(folder);
}

QString WhatCannotBeSaved(const QString& here) {
    return QStringLiteral(
               "The program cannot save anything in its own folder, because you may not "
               "write there:\n") +
           QDir::toNativeSeparators(here) +
           QStringLiteral(
               "\n\nThese are kept in it, and would be lost when the program ends:\n"
               "  -  the default simulation, with which the program begins the next time\n"
               "  -  the program settings\n"
               "  -  feeds that you add to the feed library or change in it\n\n"
               "Simulations that you save by name, in a folder of yours, are not concerned.");
}

QString WhatHappenedToTheCopy() {
    const QString folder = Memory().value(kRemembered).toString();
    if (folder.isEmpty()) return {};
    return QStringLiteral("Your own copy of the program cannot be used now; it was in\n") +
           QDir::toNativeSeparators(folder) + QStringLiteral("\n\n");
}

QString WhatCanBeDone() {
    return QStringLiteral("\"Make My Own Copy\" copies the program to\n") +
           QDir::toNativeSeparators(UsualFolder()) +
           QStringLiteral(
               "\nand starts it there. From then on your own copy is started at once, with all "
               "that "
               "you have saved in it.\n\n"
               "If you go on without saving, expect an error message when the program ends: it "
               "cannot write its settings.");
}

Choice Ask(const QString& here) {
    QMessageBox box(QMessageBox::Warning, kFolderName, QString());
    ShowPlain(box, WhatCannotBeSaved(here), WhatHappenedToTheCopy() + WhatCanBeDone());
    const auto* const copy =
        box.addButton(QStringLiteral("&Make My Own Copy"), QMessageBox::AcceptRole);
    const auto* const other =
        box.addButton(QStringLiteral("Copy to &Another Folder..."), QMessageBox::AcceptRole);
    const auto* const goOn =
        box.addButton(QStringLiteral("&Go On Without Saving"), QMessageBox::DestructiveRole);
    auto* const exit = box.addButton(QStringLiteral("E&xit"), QMessageBox::RejectRole);
    box.setEscapeButton(exit);
    box.exec();
    if (box.clickedButton() == copy) return Choice::MakeCopy;
    if (box.clickedButton() == other) return Choice::ChooseFolder;
    return box.clickedButton() == goOn ? Choice::GoOn : Choice::Exit;
}

// A folder of the program's name in the chosen one, unless that is a copy already. Empty if the
// user has cancelled.
QString ChosenFolder() {
    QString chosen = QFileDialog::getExistingDirectory(
        nullptr, QStringLiteral("Choose a Folder for Your Own Copy"), QDir::homePath());
    if (chosen.isEmpty() || HoldsProgram(chosen) || QFileInfo(chosen).fileName() == kFolderName) {
        return chosen;
    }
    return QDir(chosen).filePath(kFolderName);
}

bool MakeCopyIn(const QString& here, const QString& folder) {
    if (folder.isEmpty()) return false;
    const bool complete = IsOwnCopy(folder, here) && !IsLater(here, folder);
    return (complete || CopyTo(here, folder)) && StartIn(folder);
}

}  // namespace

bool OfferOwnFolder() {
    const QString here = QCoreApplication::applicationDirPath();
    if (CanWriteIn(here)) return false;
    const QString own = OwnCopy(here);
    if (!own.isEmpty() && StartOwnCopy(here, own)) return true;
    for (;;) {
        switch (Ask(here)) {
            case Choice::MakeCopy:
                if (MakeCopyIn(here, UsualFolder())) return true;
                break;
            case Choice::ChooseFolder:
                if (MakeCopyIn(here, ChosenFolder())) return true;
                break;
            case Choice::GoOn: return false;
            case Choice::Exit: return true;
        }
    }
}

}  // namespace tav
