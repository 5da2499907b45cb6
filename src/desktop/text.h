// The program's texts in Qt's form and back.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace tav {

// A text of the record or of a control as it is shown: what is valid UTF-8 is that, other bytes are
// Windows-1252. Line breaks (carriage return, with or without line feed) become line feeds.
QString ToQt(std::string_view text);

// What the user has entered, in UTF-8, its line breaks as carriage return and line feed.
std::string FromQt(const QString& text);

// A caption as plain text: without the ampersand of its access key.
QString WithoutAccessKey(std::string_view caption);

// A text as a tool tip shows it as it stands, whatever is in it.
QString ToolTipText(const QString& text);

// A text as the title of a window, which takes a star in brackets for a mark of its own.
QString TitleText(QString text);

// A path as the system's files have it, whatever bytes its name consists of.
QString PathToQt(std::string_view path);
std::string PathFromQt(const QString& path);

}  // namespace tav
