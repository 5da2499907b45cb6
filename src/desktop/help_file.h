// The help file: pages, their index, and the short texts on the controls of the screens.
//
// It is one plain text in UTF-8 with line feeds, made of the texts in data/help when the program is
// built. Lines that begin with two at signs divide it:
//
//   TAV Dairy Cattle Program Help 1
//   @@ contents        titles of chapters, and under each, indented, the names of its pages
//   @@ page NAME       for every page: "# Title", "keywords: ...", then its Markdown
//   @@ what's this     "[control, control]", "page: NAME#section", then a text, and the next
//   @@ end SHA-256     of all the bytes before this line
//
// A link in a page reads "name.md", "name.md#section" or "#section"; a section is named after its
// heading, in small letters, a hyphen for each blank. A keyword may have "#section" behind it.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

namespace tav {

// A place in the help. An empty section is the top of the page.
struct HelpTarget {
    QString Page;
    QString Section;

    bool operator==(const HelpTarget&) const = default;
};

struct HelpKeyword {
    QString Text;
    HelpTarget Target;
};

struct HelpPage {
    QString Name;
    QString Title;
    QString Markdown;  // with the title, without the keywords
    QList<HelpKeyword> Keywords;
};

struct HelpChapter {
    QString Title;
    QStringList Pages;
};

// The short text on a control and where there is more.
struct HelpNote {
    QString Text;
    HelpTarget Target;
};

class HelpFile {
  public:
    // Reads the file of that path, whose name may differ in upper and lower case. Throws
    // std::runtime_error with a text for the user when there is none, when it can't be read, or
    // when it is damaged.
    static HelpFile Read(const QString& path);

    const QList<HelpChapter>& Chapters() const { return chapters_; }
    // The page of that name, null if there is none. It stays as long as this object.
    const HelpPage* Page(const QString& name) const;
    // The first page of the contents.
    QString FirstPage() const { return chapters_.front().Pages.front(); }
    // All pages in the order of the contents.
    QList<const HelpPage*> Pages() const;
    // The keywords of all pages in alphabetical order.
    QList<HelpKeyword> Index() const;

    // The text on a control, null if there is none: of "frmFeeds.cmdAddFeed", otherwise of
    // "cmdAddFeed". The place in a control array doesn't matter.
    const HelpNote* Note(const QString& controlName) const;
    const QHash<QString, HelpNote>& Notes() const { return notes_; }

  private:
    friend class HelpFileReader;

    QList<HelpChapter> chapters_;
    QHash<QString, HelpPage> pages_;
    QHash<QString, HelpNote> notes_;
};

// The name of the section under a heading.
QString SectionName(const QString& heading);

// Where a link of a page leads; the page is empty for a link within the page.
HelpTarget TargetOfLink(const QString& link);

// A heading and what stands under it, up to the next heading. The first has the page's title and
// no name.
struct HelpSection {
    QString Heading;
    QString Name;
    QString Text;
};
QList<HelpSection> SectionsOf(const HelpPage& page);

}  // namespace tav
