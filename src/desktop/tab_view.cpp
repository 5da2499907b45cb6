#include "desktop/tab_view.h"

#include "desktop/text.h"

#include <QSignalBlocker>
#include <QStyleOptionTabWidgetFrame>
#include <QStylePainter>

namespace tav {

// The frame under the tabs, as the style draws one.
class TabView::Pane : public QWidget {
  public:
    explicit Pane(QWidget& parent) : QWidget(&parent) {
        bar_.setExpanding(false);
        bar_.setDrawBase(false);
        TakeColours();
    }

    QTabBar& Bar() { return bar_; }

    void PlaceBar() {
        const QSize size(std::min(width(), bar_.sizeHint().width()), bar_.sizeHint().height());
        if (bar_.size() != size) bar_.resize(size);
    }

  protected:
    void changeEvent(QEvent* event) override {
        if (event->type() == QEvent::PaletteChange) TakeColours();
        QWidget::changeEvent(event);
    }

    void paintEvent(QPaintEvent* /*event*/) override {
        QStyleOptionTabWidgetFrame option;
        option.initFrom(this);
        option.palette = bar_.palette();
        option.lineWidth = 1;
        option.shape = QTabBar::RoundedNorth;
        option.tabBarSize = bar_.size();
        option.tabBarRect = bar_.geometry();
        option.selectedTabRect = bar_.tabRect(bar_.currentIndex());
        option.rect = rect().adjusted(0, bar_.height() - 1, 0, 0);
        QStylePainter(this).drawPrimitive(QStyle::PE_FrameTabWidget, option);
    }

  private:
    // The style lightens a button's colour for the page, which in the dark is too much.
    void TakeColours() {
        constexpr int kMiddle = 128;
        constexpr int kDarker = 122;  // percent
        QPalette colours = palette();
        const QColor ground = colours.color(QPalette::Window);
        if (ground.lightness() < kMiddle) {
            colours.setColor(QPalette::Button, ground.darker(kDarker));
        }
        bar_.setPalette(colours);
    }

    QTabBar bar_{this};
};

TabView::TabView(TabControl& model, QWidget& parent, FormView& form)
    : TabView(model, new Pane(parent), form) {}

TabView::TabView(TabControl& model, Pane* pane, FormView& form)
    : ControlView(model, *pane, form), model_(model), bar_(pane->Bar()) {
    pane->setFocusProxy(&bar_);
    for (const std::string& caption : model.TabCaptions)
        bar_.addTab(ToQt(caption));
    Watch(bar_);
    QObject::connect(&bar_, &QTabBar::currentChanged, [this](int page) {
        if (page >= 0) Perform([this, page] { model_.UserClickTab(page); });
    });
}

void TabView::SyncContent() {
    const QSignalBlocker quiet(bar_);
    bar_.setFont(Widget().font());
    for (int page = 0; page < bar_.count(); ++page)
        bar_.setTabText(page, ToQt(model_.TabCaptions.at(static_cast<std::size_t>(page))));
    bar_.setCurrentIndex(model_.Tab());
    static_cast<Pane&>(Widget()).PlaceBar();
}

}  // namespace tav
