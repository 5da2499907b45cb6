#include "desktop/help_file.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <algorithm>
#include <stdexcept>

namespace tav {
namespace {

constexpr auto kFirstLine = "TAV Dairy Cattle Program Help 1";
constexpr auto kMark = "@@ ";
constexpr auto kEnd = "\n@@ end ";
constexpr auto kKeywords = "keywords:";

[[noreturn]] void Refuse(const QString& text) { throw std::runtime_error(text.toStdString()); }

// The file's own name in its folder: the one asked for, or else one that differs in case only.
QString NameInFolder(const QString& path) {
    const QFileInfo wanted(path);
    if (wanted.exists()) return path;
    const QDir folder = wanted.dir();
    for (const QString& name : folder.entryList(QDir::Files)) {
        if (name.compare(wanted.fileName(), Qt::CaseInsensitive) == 0) {
            return folder.filePath(name);
        }
    }
    return {};
}

QByteArray BytesOf(const QString& path) {
    const QString found = NameInFolder(path);
    if (found.isEmpty()) {
        Refuse("The help file is not there:\n" + QDir::toNativeSeparators(path) +
               "\n\nIf it has been moved, move it back. If it has been lost, install the program "
               "again to get a new copy.");
    }
    QFile file(found);
    if (!file.open(QIODevice::ReadOnly)) {
        Refuse("The help file cannot be opened:\n" + QDir::toNativeSeparators(found) + "\n" +
               file.errorString() +
               "\n\nAllow the reading of this file, or ask whoever installed "
               "the program.");
    }
    return file.readAll();
}

HelpTarget TargetOf(const QString& text) {
    const qsizetype hash = text.indexOf('#');
    if (hash < 0) return {text.trimmed(), {}};
    return {text.left(hash).trimmed(), text.mid(hash + 1).trimmed()};
}

}  // namespace

class HelpFileReader {
  public:
    HelpFileReader(QString path, HelpFile& file) : path_(std::move(path)), file_(file) {}

    void Read(const QByteArray& bytes);

  private:
    [[noreturn]] void Damaged(const QString& what) const;
    QStringList CheckedLines(const QByteArray& bytes) const;
    // The lines up to the next mark. Afterwards place_ is at that mark.
    QStringList Block();
    void ReadContents(const QStringList& lines);
    void ReadPage(const QString& name, QStringList lines);
    void ReadNotes(const QStringList& lines);
    void CheckContents() const;

    QString path_;
    HelpFile& file_;
    QStringList lines_;
    qsizetype place_ = 0;
};

void HelpFileReader::Damaged(const QString& what) const {
    Refuse("The help file is damaged:\n" + QDir::toNativeSeparators(path_) + "\n" + what +
           "\n\nInstall the program again to get a sound copy.");
}

QStringList HelpFileReader::CheckedLines(const QByteArray& bytes) const {
    if (!bytes.startsWith(QByteArray(kFirstLine) + '\n')) Damaged("This is no help file.");
    const qsizetype end = bytes.lastIndexOf(kEnd);
    if (end < 0) Damaged("Its end is missing.");
    const QByteArray content = bytes.left(end + 1);
    const QByteArray written = bytes.mid(end + static_cast<qsizetype>(qstrlen(kEnd))).trimmed();
    if (QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex() != written) {
        Damaged("Its content has been changed since it was made.");
    }
    return QString::fromUtf8(content).split('\n');
}

QStringList HelpFileReader::Block() {
    const qsizetype first = ++place_;
    while (place_ < lines_.size() && !lines_[place_].startsWith(kMark))
        ++place_;
    return lines_.mid(first, place_ - first);
}

void HelpFileReader::Read(const QByteArray& bytes) {
    lines_ = CheckedLines(bytes);
    Block();
    while (place_ < lines_.size()) {
        const QString mark = lines_[place_].mid(static_cast<qsizetype>(qstrlen(kMark)));
        if (mark == "contents") {
            ReadContents(Block());
        } else if (mark == "what's this") {
            ReadNotes(Block());
        } else if (mark.startsWith("page ")) {
            ReadPage(mark.mid(5), Block());
        } else {
            Damaged("Line " + QString::number(place_ + 1) + ": unknown part \"" + mark + "\".");
        }
    }
    CheckContents();
}

void HelpFileReader::ReadContents(const QStringList& lines) {
    for (const QString& line : lines) {
        if (line.trimmed().isEmpty()) continue;
        if (!line.startsWith(' ')) {
            file_.chapters_.append({line.trimmed(), {}});
        } else if (!file_.chapters_.isEmpty()) {
            file_.chapters_.back().Pages.append(line.trimmed());
        }
    }
}

void HelpFileReader::ReadPage(const QString& name, QStringList lines) {
    if (lines.size() < 2 || !lines[0].startsWith("# ") || !lines[1].startsWith(kKeywords)) {
        Damaged("The page \"" + name + "\" lacks its title or keywords.");
    }
    HelpPage page{name, lines[0].mid(2).trimmed(), {}, {}};
    const QString keywords = lines[1].mid(static_cast<qsizetype>(qstrlen(kKeywords)));
    for (const QString& keyword : keywords.split(',', Qt::SkipEmptyParts)) {
        const HelpTarget parts = TargetOf(keyword);
        page.Keywords.append({parts.Page, {name, parts.Section}});
    }
    lines.removeAt(1);
    page.Markdown = lines.join('\n');
    file_.pages_.insert(name, page);
}

void HelpFileReader::ReadNotes(const QStringList& lines) {
    QStringList controls;
    HelpNote note;
    const auto keep = [&] {
        note.Text = note.Text.trimmed();
        for (const QString& control : std::as_const(controls))
            file_.notes_.insert(control.trimmed(), note);
        note = {};
    };
    for (const QString& line : lines) {
        if (line.startsWith('[') && line.endsWith(']')) {
            keep();
            controls = line.mid(1, line.size() - 2).split(',', Qt::SkipEmptyParts);
        } else if (line.startsWith("page:") && note.Text.isEmpty()) {
            note.Target = TargetOf(line.mid(5));
        } else {
            note.Text += line + '\n';
        }
    }
    keep();
}

void HelpFileReader::CheckContents() const {
    qsizetype listed = 0;
    for (const HelpChapter& chapter : file_.chapters_) {
        if (chapter.Pages.isEmpty()) Damaged("The chapter \"" + chapter.Title + "\" is empty.");
        for (const QString& name : chapter.Pages) {
            if (!file_.pages_.contains(name)) Damaged("The page \"" + name + "\" is missing.");
            ++listed;
        }
    }
    if (listed == 0) Damaged("It has no contents.");
}

HelpFile HelpFile::Read(const QString& path) {
    HelpFile file;
    HelpFileReader(path, file).Read(BytesOf(path));
    return file;
}

const HelpPage* HelpFile::Page(const QString& name) const {
    const auto found = pages_.constFind(name);
    return found == pages_.constEnd() ? nullptr : &found.value();
}

QList<const HelpPage*> HelpFile::Pages() const {
    QList<const HelpPage*> pages;
    for (const HelpChapter& chapter : chapters_) {
        for (const QString& name : chapter.Pages)
            pages.append(Page(name));
    }
    return pages;
}

QList<HelpKeyword> HelpFile::Index() const {
    QList<HelpKeyword> index;
    for (const HelpPage* const page : Pages())
        index.append(page->Keywords);
    std::stable_sort(index.begin(), index.end(), [](const HelpKeyword& a, const HelpKeyword& b) {
        return a.Text.compare(b.Text, Qt::CaseInsensitive) < 0;
    });
    return index;
}

const HelpNote* HelpFile::Note(const QString& controlName) const {
    QString name = controlName;
    if (name.endsWith(')')) name.truncate(name.lastIndexOf('('));
    const auto find = [this](const QString& wanted) {
        const auto found = notes_.constFind(wanted);
        return found == notes_.constEnd() ? nullptr : &found.value();
    };
    if (const HelpNote* const own = find(name)) return own;
    return find(name.mid(name.lastIndexOf('.') + 1));
}

QString SectionName(const QString& heading) {
    static const QRegularExpression kDropped("[^\\w\\- ]",
                                             QRegularExpression::UseUnicodePropertiesOption);
    return heading.trimmed().toLower().remove(kDropped).replace(' ', '-');
}

HelpTarget TargetOfLink(const QString& link) {
    HelpTarget target = TargetOf(link);
    if (target.Page.endsWith(".md")) target.Page.chop(3);
    return target;
}

QList<HelpSection> SectionsOf(const HelpPage& page) {
    static const QRegularExpression kHeading("^(#{1,6}) +(.*)$");
    QList<HelpSection> sections;
    for (const QString& line : page.Markdown.split('\n')) {
        const QRegularExpressionMatch heading = kHeading.match(line);
        if (!heading.hasMatch()) {
            if (!sections.isEmpty()) sections.back().Text += line + '\n';
            continue;
        }
        const QString text = heading.captured(2).trimmed();
        const bool isTitle = heading.captured(1).size() == 1;
        sections.append({text, isTitle ? QString() : SectionName(text), {}});
    }
    return sections;
}

}  // namespace tav
