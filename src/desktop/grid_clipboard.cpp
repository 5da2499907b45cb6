#include "desktop/grid_clipboard.h"

#include "core/number_text.h"
#include "desktop/desktop.h"
#include "desktop/text.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QRect>
#include <QRegularExpression>
#include <QStringList>
#include <algorithm>

namespace tav {
namespace {

constexpr int kMostRefusalsListed = 15;

QRect Bounds(const QItemSelection& selection) {
    QRect bounds;
    for (const QItemSelectionRange& range : selection)
        bounds |= QRect(range.left(), range.top(), range.width(), range.height());
    return bounds;
}

// A text with a tab, a line end or a quote in it stands in quotes, as spreadsheets have it.
QString ForClipboard(QString text) {
    if (!text.contains(QLatin1Char('\t')) && !text.contains(QLatin1Char('\n')) &&
        !text.startsWith(QLatin1Char('"'))) {
        return text;
    }
    text.replace(QLatin1Char('"'), QLatin1String("\"\""));
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QString CopiedText(const GridCells& cells, const QItemSelection& selection, bool withHeaders) {
    const QRect block = Bounds(selection);
    QStringList lines;
    if (withHeaders) {
        QStringList heads(QString{});
        for (int col = block.left(); col <= block.right(); ++col)
            heads +=
                ForClipboard(cells.headerData(col, Qt::Horizontal, Qt::DisplayRole).toString());
        lines += heads.join(QLatin1Char('\t'));
    }
    for (int row = block.top(); row <= block.bottom(); ++row) {
        QStringList texts;
        if (withHeaders) {
            texts += ForClipboard(cells.headerData(row, Qt::Vertical, Qt::DisplayRole).toString());
        }
        for (int col = block.left(); col <= block.right(); ++col) {
            const QModelIndex at = cells.index(row, col);
            const bool selected = selection.contains(at);
            texts += selected ? ForClipboard(at.data().toString()) : QString();
        }
        lines += texts.join(QLatin1Char('\t'));
    }
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

// Where the cell that begins there ends. One that begins with a quote ends behind its last quote
// that no other one follows; without such a one it is no quoted cell.
qsizetype EndOfCell(const QString& text, qsizetype begin) {
    static const QRegularExpression quoted(QStringLiteral("\\G\"(?:[^\"]|\"\")*\"(?=[\\t\\n]|$)"));
    static const QRegularExpression plain(QStringLiteral("\\G[^\\t\\n]*"));
    const QRegularExpressionMatch match = quoted.match(text, begin);
    return (match.hasMatch() ? match : plain.match(text, begin)).capturedEnd();
}

QString WithoutQuotes(QString cell) {
    const bool quoted =
        cell.size() > 1 && cell.startsWith(QLatin1Char('"')) && cell.endsWith(QLatin1Char('"'));
    if (!quoted) return cell;
    cell = cell.mid(1, cell.size() - 2);
    return cell.replace(QLatin1String("\"\""), QLatin1String("\""));
}

std::vector<QStringList> CopiedCells(QString text) {
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    if (text.endsWith(QLatin1Char('\n'))) text.chop(1);
    std::vector<QStringList> rows(1);
    for (qsizetype begin = 0; begin <= text.size();) {
        const qsizetype end = EndOfCell(text, begin);
        rows.back() += WithoutQuotes(text.mid(begin, end - begin));
        if (end < text.size() && text.at(end) == QLatin1Char('\n')) rows.emplace_back();
        begin = end + 1;
    }
    return rows;
}

// Keeps what the program has to say for as long as it lives.
class Quiet {
  public:
    Quiet() { TheDesktop().Platform().CollectMessages(true); }
    Quiet(const Quiet&) = delete;
    Quiet& operator=(const Quiet&) = delete;
    ~Quiet() { End(); }

    // What has been said.
    std::vector<Message> End() { return TheDesktop().Platform().CollectMessages(false); }
};

// As a user would type it: without blanks around it, and a share without its sign.
std::string Typed(const QString& cell) {
    QString text = cell.trimmed();
    if (text.endsWith(QLatin1Char('%'))) {
        const QString number = text.chopped(1).trimmed();
        if (IsNumeric(FromQt(number))) text = number;
    }
    return FromQt(text);
}

// Enters one cell as if it had been typed. False if it wasn't taken.
bool Enter(Grid& grid, int row, int col, const std::string& text) {
    if (row >= grid.Rows() || col >= grid.Cols()) return false;
    grid.UserMoveCursor(row, col);
    if (!grid.UserOpenEdit()) return false;
    if (grid.UserCloseEdit(text)) return true;
    grid.UserCancelEdit();
    return false;
}

QString PlaceName(const Grid& grid, int row, int col) {
    if (row >= grid.Rows() || col >= grid.Cols()) return QStringLiteral("Beyond the grid");
    QStringList parts;
    if (grid.FixedCols > 0) parts += ToQt(grid.TextMatrix(row, 0)).simplified();
    if (grid.FixedRows > 0) parts += ToQt(grid.TextMatrix(0, col)).simplified();
    parts.removeAll(QString());
    return parts.isEmpty() ? QStringLiteral("Row %1").arg(row + 1)
                           : parts.join(QStringLiteral(", "));
}

QString Refusal(const Grid& grid, int row, int col, const QString& text,
                const std::vector<Message>& said) {
    QString line = QStringLiteral("%1: \"%2\"").arg(PlaceName(grid, row, col), text);
    if (said.empty()) line += QStringLiteral(" - this cell can't be entered");
    for (const Message& message : said)
        line += QStringLiteral(" - ") + ToQt(message.Text).simplified();
    return line;
}

void ListRefused(const QStringList& refused) {
    if (refused.isEmpty()) return;
    QStringList shown = refused.mid(0, kMostRefusalsListed);
    if (refused.size() > kMostRefusalsListed) {
        shown += QStringLiteral("and %1 more").arg(refused.size() - kMostRefusalsListed);
    }
    const QString head = refused.size() == 1
                             ? QStringLiteral("One cell was not taken:")
                             : QStringLiteral("%1 cells were not taken:").arg(refused.size());
    TheDesktop().Platform().ShowMessage(
        {FromQt(head + QStringLiteral("\n\n") + shown.join(QLatin1Char('\n'))), "Paste",
         MessageIcon::Exclamation});
}

}  // namespace

void CopyCells(const GridCells& cells, const QItemSelection& selection, bool withHeaders) {
    if (selection.isEmpty()) return;
    QGuiApplication::clipboard()->setText(CopiedText(cells, selection, withHeaders));
}

void PasteCells(Grid& grid, int row, int col,
                const std::function<void(const std::function<void()>&)>& perform) {
    const std::vector<QStringList> rows = CopiedCells(QGuiApplication::clipboard()->text());
    QStringList refused;
    perform([&] {
        for (std::size_t i = 0; i < rows.size(); ++i) {
            for (qsizetype j = 0; j < rows[i].size(); ++j) {
                const int atRow = row + static_cast<int>(i);
                const int atCol = col + static_cast<int>(j);
                const QString& text = rows[i][j];
                Quiet quiet;
                const bool taken = Enter(grid, atRow, atCol, Typed(text));
                if (!taken) refused += Refusal(grid, atRow, atCol, text, quiet.End());
            }
        }
    });
    ListRefused(refused);
}

}  // namespace tav
