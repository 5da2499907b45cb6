// An entry with a list of places in the help under it: the index, and what a search has found.
#pragma once

#include "desktop/help_file.h"

#include <QLineEdit>
#include <QListWidget>
#include <QWidget>
#include <functional>

namespace tav {

// Up, down and the page keys in the entry move in the list; Enter chooses the line that is
// selected, as a click does.
class HelpPanel : public QWidget {
  public:
    explicit HelpPanel(const QString& caption, QWidget* parent = nullptr);

    QString Text() const { return entry_->text(); }
    QWidget* Entry() const { return entry_; }

    void Offer(const QString& text, const HelpTarget& target);
    // A line that cannot be chosen.
    void Tell(const QString& text);
    void Clear() { list_->clear(); }
    // Shows the lines that contain the text, and selects the first that begins with it, otherwise
    // the first.
    void Filter(const QString& text);

    std::function<void(const HelpTarget&)> Chosen;
    std::function<void(const QString&)> Changed;  // the text of the entry

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Choose(const QListWidgetItem* item) const;

    QLineEdit* const entry_;
    QListWidget* const list_;
};

}  // namespace tav
