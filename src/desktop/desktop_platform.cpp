#include "desktop/desktop_platform.h"

#include "core/runtime_error.h"
#include "desktop/arrow_pointer.h"
#include "desktop/desktop.h"
#include "desktop/file_dialog.h"
#include "desktop/help.h"
#include "desktop/pixels.h"
#include "desktop/printing.h"
#include "desktop/text.h"

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QGridLayout>
#include <QMessageBox>
#include <QProcess>
#include <QScreen>
#include <QSpacerItem>
#include <utility>

namespace tav {
namespace {

QMessageBox::Icon IconOf(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::None: return QMessageBox::NoIcon;
        case MessageIcon::Critical: return QMessageBox::Critical;
        case MessageIcon::Question: return QMessageBox::Question;
        case MessageIcon::Exclamation: return QMessageBox::Warning;
        case MessageIcon::Information: return QMessageBox::Information;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ButtonsOf(MessageButtons buttons) {
    switch (buttons) {
        case MessageButtons::OK: return QMessageBox::Ok;
        case MessageButtons::OKCancel: return QMessageBox::Ok | QMessageBox::Cancel;
        case MessageButtons::YesNo: return QMessageBox::Yes | QMessageBox::No;
        case MessageButtons::YesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    }
    return QMessageBox::Ok;
}

MessageAnswer AnswerOf(int button) {
    switch (button) {
        case QMessageBox::Yes: return MessageAnswer::Yes;
        case QMessageBox::No: return MessageAnswer::No;
        case QMessageBox::Cancel: return MessageAnswer::Cancel;
        default: return MessageAnswer::OK;
    }
}

// Wide enough for its title, and for the lines of its text as they stand.
void FitWidth(const QMessageBox& box) {
    constexpr int kTitleButtons = 160;
    constexpr int kIconAndMargins = 90;
    constexpr int kMost = 680;
    auto* const grid = qobject_cast<QGridLayout*>(box.layout());
    if (grid == nullptr) return;
    const QFontMetrics metrics(box.font());
    const int title = metrics.horizontalAdvance(box.windowTitle()) + kTitleButtons;
    const int text = metrics.size(0, box.text()).width() + kIconAndMargins;
    const int width = std::min(std::max(title, text), kMost);
    grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
}

}  // namespace

// What the program has done before it asks is on the screen while it waits.
MessageAnswer DesktopPlatform::ShowMessage(const Message& message) {
    if (collecting_ && message.Buttons == MessageButtons::OK) {
        collected_.push_back(message);
        return MessageAnswer::OK;
    }
    TheDesktop().Refresh();
    const ArrowPointer arrow;
    QMessageBox box(IconOf(message.Icon), ToQt(message.Title), QString(),
                    ButtonsOf(message.Buttons), TheDesktop().FrontWindow());
    box.setTextFormat(Qt::PlainText);
    box.setText(ToQt(message.Text));
    FitWidth(box);
    return AnswerOf(box.exec());
}

std::vector<Message> DesktopPlatform::CollectMessages(bool on) {
    collecting_ = on;
    return std::exchange(collected_, {});
}

bool DesktopPlatform::ShowOpenDialog(CommonDialog& dialog) {
    TheDesktop().Refresh();
    return ChooseFileToOpen(dialog, TheDesktop().FrontWindow());
}

bool DesktopPlatform::ShowSaveDialog(CommonDialog& dialog) {
    TheDesktop().Refresh();
    return ChoosePlaceToSave(dialog, TheDesktop().FrontWindow());
}

void DesktopPlatform::ShowHelp(const CommonDialog& dialog) { OpenHelp(dialog); }

int DesktopPlatform::ShowPrinterSetup(int orientation) {
    TheDesktop().Refresh();
    return tav::ShowPrinterSetup(orientation, TheDesktop().FrontWindow());
}

void DesktopPlatform::ShowHourglass(bool on) {
    if (on == (QApplication::overrideCursor() != nullptr)) return;
    if (on) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

std::chrono::local_seconds DesktopPlatform::Now() {
    const QDateTime now = QDateTime::currentDateTime();
    return std::chrono::local_seconds(
        std::chrono::seconds(now.toSecsSinceEpoch() + now.offsetFromUtc()));
}

ScreenSize DesktopPlatform::Screen() {
    const QSize size = QGuiApplication::primaryScreen()->geometry().size();
    return {size.width() * kUnitsPerPixel, size.height() * kUnitsPerPixel, kUnitsPerPixel,
            kUnitsPerPixel};
}

std::string DesktopPlatform::ProgramFolder() {
    if (!programFolder_.empty()) return programFolder_;
    return PathFromQt(QCoreApplication::applicationDirPath());
}

std::string DesktopPlatform::CurrentFolder() { return PathFromQt(QDir::currentPath()); }

void DesktopPlatform::StartProcess(const std::string& program) {
    if (!QProcess::startDetached(PathToQt(program), {})) Raise(kFileNotFound);
}

void DesktopPlatform::ReportFatalError(int number, const std::string& description) {
    ReportFatalFault("Run-time error " + std::to_string(number) + ": " + description);
}

void DesktopPlatform::ReportFatalFault(const std::string& description) {
    const ArrowPointer arrow;
    QMessageBox box(QMessageBox::Critical, QStringLiteral("TAV Dairy Cattle Program"), QString(),
                    QMessageBox::Ok, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setText(ToQt(description));
    box.setInformativeText(QStringLiteral(
        "The program has to end. Files that were saved before stand as they were saved; what was "
        "entered since is lost."));
    box.exec();
}

}  // namespace tav
