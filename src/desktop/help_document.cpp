#include "desktop/help_document.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextFrame>
#include <QTextTable>
#include <cmath>

namespace tav {
namespace {

constexpr double kReadable = 4.5;  // contrast of small letters with what is behind them
constexpr int kCellPadding = 4;
constexpr int kPageMargin = 14;
constexpr int kLineHeight = 120;  // percent

double Luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double Contrast(const QColor& a, const QColor& b) {
    const double one = Luminance(a) + 0.05;
    const double other = Luminance(b) + 0.05;
    return one > other ? one / other : other / one;
}

QColor Mixed(const QColor& a, const QColor& b, double shareOfB) {
    const auto mix = [shareOfB](double x, double y) { return x + (y - x) * shareOfB; };
    return QColor::fromRgbF(static_cast<float>(mix(a.redF(), b.redF())),
                            static_cast<float>(mix(a.greenF(), b.greenF())),
                            static_cast<float>(mix(a.blueF(), b.blueF())));
}

void NameHeading(const QTextBlock& block) {
    if (block.blockFormat().headingLevel() < 2) return;
    QTextCursor cursor(block);
    cursor.setPosition(block.position() + 1, QTextCursor::KeepAnchor);
    QTextCharFormat format;
    format.setAnchor(true);
    format.setAnchorNames({SectionName(block.text())});
    cursor.mergeCharFormat(format);
}

void SpaceBlock(const QTextBlock& block, bool inTable) {
    QTextBlockFormat format;
    format.setLineHeight(kLineHeight, QTextBlockFormat::ProportionalHeight);
    if (inTable) {
        format.setTopMargin(0);
        format.setBottomMargin(0);
    }
    QTextCursor(block).mergeBlockFormat(format);
}

void ColourLinks(const QTextBlock& block, const QColor& colour) {
    QList<QTextLayout::FormatRange> links = block.textFormats();
    for (const QTextLayout::FormatRange& range : links) {
        if (range.format.anchorHref().isEmpty()) continue;
        QTextCursor cursor(block);
        cursor.setPosition(block.position() + range.start);
        cursor.setPosition(block.position() + range.start + range.length, QTextCursor::KeepAnchor);
        QTextCharFormat format;
        format.setForeground(colour);
        format.setFontUnderline(true);
        cursor.mergeCharFormat(format);
    }
}

void StyleTable(QTextTable& table, const QPalette& palette) {
    QTextTableFormat format = table.format();
    format.setBorder(1);
    format.setBorderCollapse(true);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderBrush(
        Mixed(palette.color(QPalette::Base), palette.color(QPalette::Text), 0.25));
    format.setCellPadding(kCellPadding);
    format.setCellSpacing(0);
    format.setTopMargin(4);
    format.setBottomMargin(10);
    table.setFormat(format);
    for (int column = 0; column < table.columns(); ++column) {
        QTextTableCell cell = table.cellAt(0, column);
        QTextCharFormat head = cell.format();
        head.setBackground(
            Mixed(palette.color(QPalette::Base), palette.color(QPalette::Text), 0.08));
        cell.setFormat(head);
    }
}

void StyleTables(QTextFrame& frame, const QPalette& palette) {
    for (QTextFrame* const child : frame.childFrames()) {
        if (auto* const table = qobject_cast<QTextTable*>(child)) StyleTable(*table, palette);
        StyleTables(*child, palette);
    }
}

}  // namespace

QColor ReadableLink(const QPalette& palette, const QColor& background, const QColor& text) {
    const QColor link = palette.color(QPalette::Link);
    constexpr int kSteps = 10;
    for (int step = 0; step < kSteps; ++step) {
        const QColor colour = Mixed(link, text, static_cast<double>(step) / kSteps);
        if (Contrast(colour, background) >= kReadable) return colour;
    }
    return text;
}

void RenderHelpPage(const HelpPage& page, const QPalette& palette, QTextDocument& document) {
    document.setMarkdown(page.Markdown, QTextDocument::MarkdownDialectGitHub);
    document.setDocumentMargin(kPageMargin);
    const QColor link =
        ReadableLink(palette, palette.color(QPalette::Base), palette.color(QPalette::Text));
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        SpaceBlock(block, QTextCursor(block).currentTable() != nullptr);
        NameHeading(block);
        ColourLinks(block, link);
    }
    StyleTables(*document.rootFrame(), palette);
}

}  // namespace tav
