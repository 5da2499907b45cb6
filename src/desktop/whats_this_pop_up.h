// The small window with the text on one control.
#pragma once

#include "desktop/help_file.h"

#include <QFrame>
#include <QLabel>
#include <QPoint>
#include <QString>
#include <functional>

namespace tav {

// A click elsewhere and Escape close it.
class WhatsThisPopUp : public QFrame {
  public:
    explicit WhatsThisPopUp(QWidget* parent = nullptr);

    // Shows the text on the control of that name near a point of the screen. shownName is what the
    // user knows the control by, empty if it has no such name. jump leads to the page of the help
    // with more, or to the contents where there is no text on the control; contextMenu is called
    // with the place of a right click. The window closes before either is called.
    void ShowWhatsThis(const HelpFile& help, const QString& controlName, const QString& shownName,
                       QPoint at, std::function<void()> jump,
                       std::function<void(QPoint)> contextMenu);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void TakeColours();
    void PlaceNear(QPoint at);
    void Jump();

    QLabel* const name_;
    QLabel* const text_;
    QLabel* const more_;
    std::function<void()> jump_;
    std::function<void(QPoint)> contextMenu_;
};

// The same in a window made for this text, which goes when it closes.
void ShowWhatsThis(const HelpFile& help, const QString& controlName, const QString& shownName,
                   QPoint at, std::function<void()> jump, std::function<void(QPoint)> contextMenu);

}  // namespace tav
