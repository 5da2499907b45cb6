#include "desktop/pdf_file.h"

#include "core/platform.h"
#include "core/program_state.h"
#include "desktop/text.h"
#include "pdf/pdf_document.h"
#include "reports/header_footer.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>
#include <exception>

namespace tav {
namespace {

const QString kSuffix = QStringLiteral(".pdf");
constexpr qsizetype kLongestName = 80;

QString WithSuffix(const QString& path) {
    return path.endsWith(kSuffix, Qt::CaseInsensitive) ? path : path + kSuffix;
}

// The dialog has asked about the name that was typed, which is not that of the file if the suffix
// was left out.
bool MayReplace(const QString& typed, const QString& path) {
    if (typed == path || !QFileInfo::exists(path)) return true;
    return ThePlatform().ShowMessage(
               {FromQt(path) + " already exists.\r\rDo you want to replace it?",
                "Save Report as PDF", MessageIcon::Question, MessageButtons::YesNo}) ==
           MessageAnswer::Yes;
}

}  // namespace

// A disk that fills up takes a part and tells why it took no more when it is given the rest.
QString WritePdf(const ReportDocument& document, const QString& path) {
    try {
        const std::string bytes = PdfOf(document);
        const auto size = static_cast<qint64>(bytes.size());
        QSaveFile file(path);
        if (!file.open(QIODevice::WriteOnly)) return file.errorString();
        for (qint64 done = 0; done < size;) {
            const qint64 written = file.write(bytes.data() + done, size - done);
            if (written <= 0) return file.errorString();
            done += written;
        }
        return file.commit() ? QString() : file.errorString();
    } catch (const std::exception& error) {
        return ToQt(error.what());
    }
}

void SavePdf(const ReportDocument& document, const QString& path) {
    const QString reason = WritePdf(document, path);
    if (reason.isEmpty()) return;
    ThePlatform().ShowMessage(
        {"The report could not be saved as a PDF file.\r\rFile:  " + FromQt(path) +
             "\rReason:  " + FromQt(reason) +
             "\r\rNothing has been written. Choose a folder that you may write to, on a disk with "
             "room left, and print the report again.",
         "Report Not Saved", MessageIcon::Critical});
}

void AskAndSavePdf(const ReportDocument& document) {
    static std::string lastFolder;
    CommonDialog dialog;
    dialog.DialogTitle = "Save Report as PDF";
    dialog.InitDir = lastFolder.empty() ? TheProgram().StartDir : lastFolder;
    dialog.FileName = ProposedPdfName(document);
    dialog.Filter = "PDF Files (*.pdf)|*.pdf";
    dialog.FilterIndex = 1;
    dialog.Flags = CommonDialog::kOverwritePrompt;
    if (!ThePlatform().ShowSaveDialog(dialog)) return;
    const QString typed = PathToQt(dialog.FileName);
    const QString path = WithSuffix(typed);
    lastFolder = PathFromQt(QFileInfo(path).absolutePath());
    if (MayReplace(typed, path)) SavePdf(document, path);
}

std::string ProposedPdfName(const ReportDocument& document) {
    static const QRegularExpression forbidden(QStringLiteral("[\\x00-\\x1f/\\\\:*?\"<>|]|^[ .]+"));
    QString name = ToQt(FileStem(TheProgram().SimulationFileName)).trimmed();
    name = name.isEmpty() ? ToQt(document.Title) : name + QStringLiteral(" - Report");
    name = name.replace(forbidden, QStringLiteral("_"));
    if (name.size() > kLongestName) name.truncate(kLongestName);
    return PathFromQt(name.trimmed() + kSuffix);
}

}  // namespace tav
