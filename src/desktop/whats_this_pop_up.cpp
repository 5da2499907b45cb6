#include "desktop/whats_this_pop_up.h"

#include "desktop/help_document.h"

#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QToolTip>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

namespace tav {
namespace {

constexpr int kTextWidth = 46;  // letters of average width
constexpr int kGap = 6;         // pixels between the point and the window
constexpr int kEdge = 4;        // and between the window and the edges of the screen

QString LinkText(const QString& caption, const QColor& colour) {
    return QString(R"(<a href="more" style="color:%1">%2</a>)").arg(colour.name(), caption);
}

}  // namespace

WhatsThisPopUp::WhatsThisPopUp(QWidget* parent)
    : QFrame(parent, Qt::Popup),
      name_(new QLabel(this)),
      text_(new QLabel(this)),
      more_(new QLabel(this)) {
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setAccessibleName("What's This?");
    auto* const layout = new QVBoxLayout(this);
    for (QLabel* const label : {name_, text_, more_})
        layout->addWidget(label);
    QFont bold = name_->font();
    bold.setBold(true);
    name_->setFont(bold);
    for (QLabel* const label : {name_, text_}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    more_->setTextFormat(Qt::RichText);
    connect(more_, &QLabel::linkActivated, this, [this] { Jump(); });
    TakeColours();
}

// It looks like a tool tip, which it is at length.
void WhatsThisPopUp::TakeColours() {
    QPalette colours = QToolTip::palette();
    const QColor background = colours.color(QPalette::ToolTipBase);
    const QColor text = colours.color(QPalette::ToolTipText);
    colours.setColor(QPalette::Window, background);
    colours.setColor(QPalette::WindowText, text);
    colours.setColor(QPalette::Link, ReadableLink(colours, background, text));
    setPalette(colours);
}

void WhatsThisPopUp::ShowWhatsThis(const HelpFile& help, const QString& controlName,
                                   const QString& shownName, QPoint at, std::function<void()> jump,
                                   std::function<void(QPoint)> contextMenu) {
    jump_ = std::move(jump);
    contextMenu_ = std::move(contextMenu);
    const HelpNote* const note = help.Note(controlName);
    name_->setText(shownName);
    name_->setVisible(!shownName.isEmpty());
    text_->setText(note != nullptr ? note->Text : "There is no help on this by itself.");
    more_->setText(LinkText(note != nullptr ? "More..." : "Open the contents of the help",
                            palette().color(QPalette::Link)));
    const int width = fontMetrics().averageCharWidth() * kTextWidth;
    for (QLabel* const label : {name_, text_})
        label->setFixedWidth(width);
    adjustSize();
    PlaceNear(at);
    show();
    setFocus(Qt::PopupFocusReason);
}

// Below the point, or above it where the screen ends; never beyond the screen's edges.
void WhatsThisPopUp::PlaceNear(QPoint at) {
    const QScreen* screen = QGuiApplication::screenAt(at);
    if (screen == nullptr) screen = QGuiApplication::primaryScreen();
    const QRect room = screen->availableGeometry().marginsRemoved({kEdge, kEdge, kEdge, kEdge});
    int top = at.y() + kGap;
    if (top + height() > room.bottom()) top = at.y() - kGap - height();
    const int left = std::min(at.x() + kGap, room.right() - width());
    move(std::max(left, room.left()), std::max(top, room.top()));
}

// Closing may delete the window when control comes back to the event loop, and what is called may
// get there.
void WhatsThisPopUp::Jump() {
    const std::function<void()> jump = jump_;
    close();
    if (jump) jump();
}

void WhatsThisPopUp::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Escape: close(); break;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
        case Qt::Key_F1: Jump(); break;
        default: QFrame::keyPressEvent(event);
    }
}

void WhatsThisPopUp::contextMenuEvent(QContextMenuEvent* event) {
    const QPoint at = event->globalPos();
    const std::function<void(QPoint)> contextMenu = contextMenu_;
    close();
    if (contextMenu) contextMenu(at);
}

void WhatsThisPopUp::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange) TakeColours();
}

void ShowWhatsThis(const HelpFile& help, const QString& controlName, const QString& shownName,
                   QPoint at, std::function<void()> jump, std::function<void(QPoint)> contextMenu) {
    auto* const popUp = new WhatsThisPopUp;
    popUp->setAttribute(Qt::WA_DeleteOnClose);
    popUp->ShowWhatsThis(help, controlName, shownName, at, std::move(jump), std::move(contextMenu));
}

}  // namespace tav
