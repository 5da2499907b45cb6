// The slim bar of a preview: turning pages, which page is on show, and how large.
#pragma once

#include <QLabel>
#include <QToolButton>
#include <QWidget>
#include <functional>

namespace tav {

class PageBar : public QWidget {
  public:
    explicit PageBar(QWidget* parent);

    // What the user asks for with the buttons.
    std::function<void()> First, Previous, Next, Last;
    std::function<void()> ZoomOut, ZoomAsSet, ZoomIn;

    // The pages on show, the first and the last where there are two, and how large they are; 0
    // pages: there is nothing to turn or to zoom.
    void ShowPages(int first, int last, int count, const QString& zoom);

  private:
    QToolButton* first_;
    QToolButton* previous_;
    QLabel* pages_;
    QToolButton* next_;
    QToolButton* last_;
    QToolButton* zoomOut_;
    QToolButton* zoom_;
    QToolButton* zoomIn_;
};

// "Page 2 of 7", "Pages 3 and 4 of 7", "No pages".
QString PagesText(int first, int last, int count);

}  // namespace tav
