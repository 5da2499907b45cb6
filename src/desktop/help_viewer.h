// The window in which the help is read: contents, index and search on the left, a page on the
// right.
#pragma once

#include "desktop/help_file.h"
#include "desktop/help_panel.h"
#include "desktop/help_search.h"

#include <QTabWidget>
#include <QTextBrowser>
#include <QToolButton>
#include <QTreeWidget>
#include <QWidget>

namespace tav {

class HelpViewer : public QWidget {
  public:
    explicit HelpViewer(HelpFile file, QWidget* parent = nullptr);

    // Brings the window to the front with the contents, at the page that was open last.
    void ShowContents();

    // Brings the window to the front at the page on a control. Returns false, with nothing done,
    // when there is none.
    bool ShowTopic(const QString& controlName);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    // A page that has been looked at, and how far it was scrolled.
    struct Visit {
        HelpTarget Target;
        int Scroll = 0;
    };

    void MakeButtons();
    void MakeContents();
    void MakeIndex();
    void MakeSearch();
    void TieKeys();
    QWidget* LeftSide() const;
    void Present();

    // Opens a place, in whose page the words are marked.
    void Open(const HelpTarget& target, const QString& words = {});
    void OpenLink(const QUrl& link);
    void GoBack();
    void GoForward();
    void ShowVisit();
    void Render(const HelpTarget& target);
    void ShowPage(const HelpPage& page);
    void SelectInContents(const QString& page);
    void MarkWords();

    void Search(const QString& text);

    const HelpFile file_;
    const HelpSearch search_;
    QList<Visit> visits_;
    qsizetype visit_ = -1;
    QString words_;  // marked in the page

    QToolButton* const back_;
    QToolButton* const forward_;
    QToolButton* const home_;
    QTabWidget* const tabs_;
    QTreeWidget* const contents_;
    HelpPanel* const index_;
    HelpPanel* const hits_;
    QTextBrowser* const page_;
};

}  // namespace tav
