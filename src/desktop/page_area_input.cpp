// What keys, wheel and mouse do on the surface of the pages.
#include "desktop/page_area.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <cstdlib>

namespace tav {

bool PageArea::TurnByKey(const QKeyEvent& key) {
    switch (key.key()) {
        case Qt::Key_PageUp: TurnBy(-1); return true;
        case Qt::Key_PageDown: TurnBy(1); return true;
        case Qt::Key_Home: TurnTo(1); return true;
        case Qt::Key_End: TurnTo(PageCount()); return true;
        default: return false;
    }
}

bool PageArea::ScrollByKey(const QKeyEvent& key) {
    const auto scroll = [](QScrollBar& bar, QAbstractSlider::SliderAction action) {
        bar.triggerAction(action);
        return true;
    };
    switch (key.key()) {
        case Qt::Key_Up: return scroll(*verticalScrollBar(), QAbstractSlider::SliderSingleStepSub);
        case Qt::Key_Down:
            return scroll(*verticalScrollBar(), QAbstractSlider::SliderSingleStepAdd);
        case Qt::Key_Left:
            return scroll(*horizontalScrollBar(), QAbstractSlider::SliderSingleStepSub);
        case Qt::Key_Right:
            return scroll(*horizontalScrollBar(), QAbstractSlider::SliderSingleStepAdd);
        default: return false;
    }
}

bool PageArea::ZoomByKey(const QKeyEvent& key) {
    if (!key.modifiers().testFlag(Qt::ControlModifier)) return false;
    switch (key.key()) {
        case Qt::Key_Plus:
        case Qt::Key_Equal: ZoomBy(1); return true;
        case Qt::Key_Minus: ZoomBy(-1); return true;
        case Qt::Key_0: ZoomAsSet(); return true;
        default: return false;
    }
}

void PageArea::keyPressEvent(QKeyEvent* event) {
    const bool used = ZoomByKey(*event) || TurnByKey(*event) || ScrollByKey(*event);
    event->setAccepted(used);
}

// The wheel scrolls as far as there is something to scroll, and turns the page from there on.
void PageArea::wheelEvent(QWheelEvent* event) {
    const int turned = event->angleDelta().y();
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        wheelTurned_ += turned;
        ZoomBy(wheelTurned_ / QWheelEvent::DefaultDeltasPerStep);
        wheelTurned_ %= QWheelEvent::DefaultDeltasPerStep;
        event->accept();
        return;
    }
    const QScrollBar& bar = *verticalScrollBar();
    const bool atEdge = turned < 0 ? bar.value() == bar.maximum() : bar.value() == bar.minimum();
    if (turned != 0 && atEdge && Zoom().Mode != ZoomMode::Thumbnail) {
        TurnByWheel(turned);
        event->accept();
        return;
    }
    wheelTurned_ = 0;
    QAbstractScrollArea::wheelEvent(event);
}

void PageArea::TurnByWheel(int turned) {
    if ((turned < 0) != (wheelTurned_ < 0)) wheelTurned_ = 0;
    wheelTurned_ += turned;
    if (std::abs(wheelTurned_) < QWheelEvent::DefaultDeltasPerStep) return;
    wheelTurned_ = 0;
    arriveAtFoot_ = turned > 0;
    TurnBy(turned > 0 ? -1 : 1);
    arriveAtFoot_ = false;
}

void PageArea::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || Zoom().Mode != ZoomMode::Thumbnail) return;
    if (const PagePlace* const place = PlaceUnder(event->pos())) TurnTo(place->Page);
}

// A thumbnail is opened so that it can be read.
void PageArea::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || Zoom().Mode != ZoomMode::Thumbnail) return;
    if (PlaceUnder(event->pos()) == nullptr) return;
    SetOwnZoom(PageZoom{ZoomMode::PageWidth, 100});
    ScrollToPage();
}

}  // namespace tav
