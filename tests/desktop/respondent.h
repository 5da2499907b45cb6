// Somebody who answers what the program asks while a test drives it.
#pragma once

#include <QMessageBox>
#include <QObject>
#include <deque>
#include <functional>
#include <string>
#include <vector>

class QFileDialog;

namespace tav {

// A message box as it stood on the screen.
struct Said {
    std::string Title, Text, Further;
    QMessageBox::Icon Icon = QMessageBox::NoIcon;
    Qt::TextFormat Format = Qt::AutoText;
    QMessageBox::StandardButtons Buttons = QMessageBox::NoButton;
};

// Each dialog that opens takes the next answer, and so does a menu, if that is for one. A message
// that only informs needs none; any other dialog without an answer is a failure, and is escaped
// from.
class Respondent : public QObject {
  public:
    Respondent();

    void Press(QMessageBox::StandardButton button);
    void ChooseFile(const std::string& path);
    // The entry of a pop-up menu whose text, without its access key, that is.
    void ChooseEntry(const std::string& text);
    // Anything else: looks at the dialog or at the menu and must close it.
    void Do(std::function<void(QWidget&)> answer);
    void DoInMenu(std::function<void(QWidget&)> answer);

    // Every dialog and menu from now on.
    void Always(std::function<void(QWidget&)> answer) { always_ = std::move(answer); }

    // What has been said since the last call.
    std::vector<Said> TakeSaid();
    // All answers have been asked for.
    bool IsDone() const { return answers_.empty(); }
    void Forget() { answers_.clear(); }

  private:
    void Look();
    void Answer(QWidget& dialog);
    void Note(const QMessageBox& box);

    struct Reply {
        std::function<void(QWidget&)> Give;
        bool ToMenu = false;
    };

    QWidget* Asking() const;

    std::deque<Reply> answers_;
    std::function<void(QWidget&)> always_;
    std::vector<Said> said_;
    std::vector<QWidget*> inHand_;  // a dialog may open another one
};

}  // namespace tav
