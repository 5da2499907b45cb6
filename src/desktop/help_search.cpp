#include "desktop/help_search.h"

#include <QRegularExpression>
#include <algorithm>
#include <utility>

namespace tav {
namespace {

constexpr int kInHeading = 20;  // a word in a heading tells more than one in the text
constexpr int kMostCounted = 8;
constexpr int kWholeSection = 10;

// What a reader sees of a page: without the targets of links and the marks of tables and stress.
QString Plain(QString markdown) {
    static const QRegularExpression kLinkTarget(R"(\]\([^)]*\))");
    static const QRegularExpression kMarks(R"([|*`\[\]#]+|-{3,})");
    return markdown.remove(kLinkTarget).replace(kMarks, " ").toLower();
}

// How often a word, or one that begins with it, stands in a text.
int Count(const QString& text, const QString& word) {
    int count = 0;
    qsizetype at = text.indexOf(word);
    for (; at >= 0 && count < kMostCounted; at = text.indexOf(word, at + word.size())) {
        if (at == 0 || !text[at - 1].isLetterOrNumber()) ++count;
    }
    return count;
}

// 0 when one of the words is missing.
template <class Passage>
int Score(const Passage& passage, const QStringList& words) {
    int score = 0;
    for (const QString& word : words) {
        const int inHeading = Count(passage.Heading, word) > 0 ? kInHeading : 0;
        const int found = inHeading + Count(passage.Text, word);
        if (found == 0) return 0;
        score += found;
    }
    return score;
}

}  // namespace

HelpSearch::HelpSearch(const HelpFile& file) {
    for (const HelpPage* const page : file.Pages()) {
        PageText text;
        text.Whole = {{page->Name, {}}, page->Title, page->Title.toLower(), Plain(page->Markdown)};
        for (const HelpSection& section : SectionsOf(*page)) {
            const HelpTarget target{page->Name, section.Name};
            QString heading = section.Heading.toLower();
            for (const HelpKeyword& keyword : page->Keywords) {
                if (keyword.Target == target) heading += " " + keyword.Text.toLower();
            }
            const QString title =
                section.Name.isEmpty() ? page->Title : page->Title + ": " + section.Heading;
            text.Sections.append({target, title, heading, Plain(section.Text)});
        }
        pages_.append(text);
    }
}

QStringList HelpSearch::WordsOf(const QString& query) {
    static const QRegularExpression kBetween("[^\\w\\-/.]+",
                                             QRegularExpression::UseUnicodePropertiesOption);
    return query.toLower().split(kBetween, Qt::SkipEmptyParts);
}

QList<HelpHit> HelpSearch::Find(const QString& query) const {
    const QStringList words = WordsOf(query);
    if (words.isEmpty()) return {};
    QList<std::pair<int, HelpHit>> found;
    for (const PageText& page : pages_) {
        const qsizetype before = found.size();
        for (const Passage& section : page.Sections) {
            const int score = Score(section, words);
            if (score > 0) found.append({score + kWholeSection, {section.Target, section.Title}});
        }
        const int score = found.size() == before ? Score(page.Whole, words) : 0;
        if (score > 0) found.append({score, {page.Whole.Target, page.Whole.Title}});
    }
    std::stable_sort(found.begin(), found.end(),
                     [](const auto& a, const auto& b) { return a.first > b.first; });
    QList<HelpHit> hits;
    for (const auto& [score, hit] : found)
        hits.append(hit);
    return hits;
}

}  // namespace tav
