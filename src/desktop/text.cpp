#include "desktop/text.h"

#include "core/display_text.h"

#include <QFile>
#include <QTextDocument>

namespace tav {

QString ToQt(std::string_view text) {
    QString shown = QString::fromStdString(DisplayText(text));
    shown.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    shown.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return shown;
}

std::string FromQt(const QString& text) {
    QString entered = text;
    entered.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
    return entered.toStdString();
}

QString WithoutAccessKey(std::string_view caption) {
    QString text = ToQt(caption);
    text.remove(QLatin1Char('&'));
    return text;
}

// Qt reads what looks like it as rich text, and anything else letter by letter.
QString ToolTipText(const QString& text) {
    if (!Qt::mightBeRichText(text)) return text;
    QString shown = text.toHtmlEscaped();
    shown.replace(QLatin1Char('\n'), QLatin1String("<br>"));
    return QStringLiteral("<qt>%1</qt>").arg(shown);
}

QString TitleText(QString text) {
    return text.replace(QLatin1String("[*]"), QLatin1String("[*][*]"));
}

QString PathToQt(std::string_view path) {
    return QFile::decodeName(QByteArray(path.data(), static_cast<qsizetype>(path.size())));
}

std::string PathFromQt(const QString& path) { return QFile::encodeName(path).toStdString(); }

}  // namespace tav
