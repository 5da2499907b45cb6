// Search for words in the pages of the help.
#pragma once

#include "desktop/help_file.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace tav {

struct HelpHit {
    HelpTarget Target;
    QString Title;  // "Animal description: Body weight"
};

class HelpSearch {
  public:
    explicit HelpSearch(const HelpFile& file);

    // The sections that have all the words or their beginnings, whatever the case, the best first;
    // where no section of a page has them all, the page that has them.
    QList<HelpHit> Find(const QString& query) const;

    static QStringList WordsOf(const QString& query);

  private:
    struct Passage {
        HelpTarget Target;
        QString Title;
        QString Heading;  // in small letters, with the keywords that lead here
        QString Text;     // in small letters
    };
    struct PageText {
        Passage Whole;
        QList<Passage> Sections;
    };

    QList<PageText> pages_;
};

}  // namespace tav
