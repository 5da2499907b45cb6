#include "desktop/page_bar.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QPainterPath>
#include <array>

namespace tav {
namespace {

enum class Sign { First, Previous, Next, Last, Minus, Plus };

constexpr int kButtonSize = 26;
constexpr double kHalf = 4;  // half the height of a sign

// The sign of a button around its middle: strokes, so that it has the colour of the text.
QPainterPath PathOf(Sign sign) {
    QPainterPath path;
    const auto chevron = [&path](double tip, double tail) {
        path.moveTo(tail, -kHalf);
        path.lineTo(tip, 0);
        path.lineTo(tail, kHalf);
    };
    const auto bar = [&path](double x) {
        path.moveTo(x, -kHalf);
        path.lineTo(x, kHalf);
    };
    switch (sign) {
        case Sign::First: chevron(-1, 3), bar(-4); break;
        case Sign::Previous: chevron(-2, 2); break;
        case Sign::Next: chevron(2, -2); break;
        case Sign::Last: chevron(1, -3), bar(4); break;
        case Sign::Plus: bar(0); [[fallthrough]];
        case Sign::Minus: path.moveTo(-kHalf, 0); path.lineTo(kHalf, 0);
    }
    return path;
}

class SignButton : public QToolButton {
  public:
    SignButton(Sign sign, QWidget* parent) : QToolButton(parent), sign_(sign) {
        setFixedSize(kButtonSize, kButtonSize);
    }

  protected:
    void paintEvent(QPaintEvent* event) override {
        QToolButton::paintEvent(event);
        const auto group = isEnabled() ? QPalette::Active : QPalette::Disabled;
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette().color(group, QPalette::ButtonText), 1.5, Qt::SolidLine,
                            Qt::RoundCap, Qt::RoundJoin));
        painter.translate(rect().center() + QPointF(0.5, 0.5));
        painter.drawPath(PathOf(sign_));
    }

  private:
    Sign sign_;
};

// The preview's own keys do what the buttons do, so that the keyboard stays with the pages.
template <class Button, class... Args>
Button* MakeButton(PageBar& bar, std::function<void()> PageBar::*action, const QString& name,
                   const QString& key, Args... args) {
    auto* const button = new Button(args..., &bar);
    button->setFocusPolicy(Qt::NoFocus);
    button->setAutoRaise(true);
    button->setAccessibleName(name);
    button->setToolTip(name + " (" + key + ")");
    QObject::connect(button, &QToolButton::clicked, [&bar, action] {
        if (bar.*action) (bar.*action)();
    });
    return button;
}

}  // namespace

QString PagesText(int first, int last, int count) {
    if (count == 0) return QStringLiteral("No pages");
    if (first == last) return QStringLiteral("Page %1 of %2").arg(first).arg(count);
    return QStringLiteral("Pages %1 and %2 of %3").arg(first).arg(last).arg(count);
}

PageBar::PageBar(QWidget* parent)
    : QWidget(parent),
      first_(MakeButton<SignButton>(*this, &PageBar::First, "First page", "Home", Sign::First)),
      previous_(MakeButton<SignButton>(*this, &PageBar::Previous, "Previous page", "Page Up",
                                       Sign::Previous)),
      pages_(new QLabel(this)),
      next_(MakeButton<SignButton>(*this, &PageBar::Next, "Next page", "Page Down", Sign::Next)),
      last_(MakeButton<SignButton>(*this, &PageBar::Last, "Last page", "End", Sign::Last)),
      zoomOut_(
          MakeButton<SignButton>(*this, &PageBar::ZoomOut, "Zoom out", "Ctrl+Minus", Sign::Minus)),
      zoom_(MakeButton<QToolButton>(*this, &PageBar::ZoomAsSet, "Zoom as set", "Ctrl+0")),
      zoomIn_(MakeButton<SignButton>(*this, &PageBar::ZoomIn, "Zoom in", "Ctrl+Plus", Sign::Plus)) {
    pages_->setAlignment(Qt::AlignCenter);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(4, 2, 4, 2);
    row->setSpacing(2);
    for (QWidget* const widget : std::array<QWidget*, 5>{first_, previous_, pages_, next_, last_})
        row->addWidget(widget);
    row->addStretch();
    for (QWidget* const widget : std::array<QWidget*, 3>{zoomOut_, zoom_, zoomIn_})
        row->addWidget(widget);
}

void PageBar::ShowPages(int first, int last, int count, const QString& zoom) {
    pages_->setText(PagesText(first, last, count));
    const QString widest = PagesText(count, first == last ? count : count + 1, count);
    pages_->setMinimumWidth(fontMetrics().horizontalAdvance(widest) + 16);
    first_->setEnabled(first > 1);
    previous_->setEnabled(first > 1);
    next_->setEnabled(last < count);
    last_->setEnabled(last < count);
    zoom_->setText(zoom);
    zoom_->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("Thumbnails")) + 12);
    for (QToolButton* const button : {zoomOut_, zoom_, zoomIn_})
        button->setEnabled(count > 0);
}

}  // namespace tav
