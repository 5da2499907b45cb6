#include "desktop/help.h"

#include "desktop/desktop.h"
#include "desktop/help_file.h"
#include "desktop/help_viewer.h"
#include "desktop/text.h"
#include "desktop/whats_this_pop_up.h"
#include "forms/context_help.h"
#include "forms/form_registry.h"

#include <QApplication>
#include <QCursor>
#include <QMessageBox>
#include <QPointer>
#include <optional>
#include <stdexcept>

namespace tav {
namespace {

// Read once; the viewer is kept so that it opens where it was left.
std::optional<HelpFile> helpFile;
QPointer<HelpViewer> viewer;

const HelpFile& TheHelpFile(const std::string& path) {
    if (!helpFile) helpFile = HelpFile::Read(PathToQt(path));
    return *helpFile;
}

HelpViewer& TheViewer(const std::string& path) {
    if (!viewer) viewer = new HelpViewer(TheHelpFile(path));
    return *viewer;
}

// The control of that name on a form that is loaded; null if there is none.
Control* FindControl(const std::string& name) {
    for (Form* const form : TheForms().Loaded()) {
        for (Control* const control : form->Controls()) {
            if (control->Name() == name) return control;
        }
    }
    return nullptr;
}

void BringUp(HelpViewer& window) {
    // A dialog that is open lets no other window be used: the help stands over it then.
    QWidget* const modal = QApplication::activeModalWidget();
    if (modal != nullptr && window.parentWidget() != modal) {
        window.setParent(modal, Qt::Window);
    }
    window.show();
    window.raise();
    window.activateWindow();
}

void ShowPageOf(const std::string& path, const QString& topic) {
    HelpViewer& window = TheViewer(path);
    if (topic.isEmpty() || !window.ShowTopic(topic)) window.ShowContents();
    BringUp(window);
}

void ShowShortText(const std::string& path, const std::string& name) {
    Control* const control = FindControl(name);
    const QString topic = control == nullptr ? ToQt(name) : ToQt(control->FullName());
    // Of controls that share a name it isn't known which one was meant.
    const auto* const captioned = control == nullptr || control->Index() >= 0
                                      ? nullptr
                                      : dynamic_cast<const CaptionedControl*>(control);
    const QString shownName =
        captioned == nullptr ? QString() : WithoutAccessKey(captioned->Caption);
    ShowWhatsThis(
        TheHelpFile(path), topic, shownName, QCursor::pos(),
        [path, topic] { ShowPageOf(path, topic); },
        [name](QPoint) {
            TheDesktop().Perform([&name] {
                if (Control* const asked = FindControl(name)) OpenJumpMenu(*asked);
            });
        });
}

}  // namespace

void OpenHelp(const CommonDialog& dialog) {
    try {
        if (dialog.HelpCommand == CommonDialog::kHelpTopicPopUp) {
            ShowShortText(dialog.HelpFile, dialog.HelpTopic);
        } else {
            const bool onTopic = dialog.HelpCommand == CommonDialog::kHelpTopic;
            ShowPageOf(dialog.HelpFile, onTopic ? ToQt(dialog.HelpTopic) : QString());
        }
    } catch (const std::runtime_error& error) {
        QMessageBox box(QMessageBox::Warning, QStringLiteral("Help"), QString(), QMessageBox::Ok,
                        TheDesktop().FrontWindow());
        box.setTextFormat(Qt::PlainText);
        box.setText(QString::fromUtf8(error.what()));
        box.exec();
    }
}

}  // namespace tav
