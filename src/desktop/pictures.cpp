#include "desktop/pictures.h"

#include "desktop/text.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

namespace tav {
namespace {

constexpr const char* kInk = "#37474f";  // what the drawings' lines are drawn in

class Drawing : public QIconEngine {
  public:
    explicit Drawing(QByteArray source) : source_(std::move(source)) {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode,
               QIcon::State /*state*/) override {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const QColor ink = QApplication::palette().color(group, QPalette::WindowText);
        QByteArray coloured = source_;
        coloured.replace(kInk, ink.name().toLatin1());
        QSvgRenderer drawing(coloured);
        drawing.setAspectRatioMode(Qt::KeepAspectRatio);
        drawing.render(painter, place);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, {QPoint(), size}, mode, state);
        return picture;
    }

    QIconEngine* clone() const override { return new Drawing(*this); }

  private:
    QByteArray source_;
};

}  // namespace

QIcon IconOf(std::string_view name) {
    QFile file(QStringLiteral(":/pictures/%1.svg").arg(ToQt(name)));
    if (name.empty() || !file.open(QIODevice::ReadOnly)) return {};
    return QIcon(new Drawing(file.readAll()));
}

}  // namespace tav
