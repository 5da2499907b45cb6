// A page of the help as a document that can be shown.
#pragma once

#include "desktop/help_file.h"

#include <QColor>
#include <QPalette>
#include <QTextDocument>

namespace tav {

// Fills the document with the page. Its headings are anchors with the names of their sections, its
// tables and links have colours of the palette.
void RenderHelpPage(const HelpPage& page, const QPalette& palette, QTextDocument& document);

// The palette's colour of links, drawn towards that of text until it can be read on the background.
QColor ReadableLink(const QPalette& palette, const QColor& background, const QColor& text);

}  // namespace tav
