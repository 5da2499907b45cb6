#include "desktop/page_painter.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

namespace tav {
namespace {

// Has the widths of Times New Roman.
const QString kStandIn = QStringLiteral("Liberation Serif");
// Text that is no further off its width than this share stands as it is.
constexpr double kTolerance = 0.001;
// How far letters reach above and below their base line and out of their width, as a share of their
// size.
constexpr double kReach = 1.25;
// A rule thinner than a pixel is drawn a pixel thick and paler, but not so pale that it is lost.
constexpr double kPalest = 0.4;

QString TextOf(const TextRun& run) { return QString::fromStdString(run.Text); }

// Letters stand where their widths put them: no hinting, no kerning, no ligatures. The size is in
// twips, like everything else that the painter draws here.
QFont FontOf(const TextRun& run) {
    QFont font;
    font.setFamilies({QString::fromStdString(run.FontName), kStandIn});
    font.setPixelSize(
        static_cast<int>(std::lround(static_cast<double>(run.Style.Size) * kTwipsPerPoint)));
    font.setBold(run.Style.Bold);
    font.setItalic(run.Style.Italic);
    font.setKerning(false);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setStyleStrategy(static_cast<QFont::StyleStrategy>(
        static_cast<int>(QFont::PreferNoShaping) | static_cast<int>(QFont::PreferAntialias)));
    return font;
}

QRectF ReachOf(const TextRun& run) {
    const double reach = static_cast<double>(run.Style.Size) * kTwipsPerPoint * kReach;
    return {run.X - reach, run.Baseline - reach, run.Width + 2 * reach, 2 * reach};
}

class InkPainter {
  public:
    explicit InkPainter(QPainter& painter)
        : painter_(painter),
          toPixels_(painter.deviceTransform()),
          fromPixels_(toPixels_.inverted()),
          clipped_(painter.hasClipping()),
          clip_(painter.clipBoundingRect()) {}

    void Draw(const Rule& rule) {
        const double half = rule.Thickness / 2;
        const QRectF place = QRectF(QPointF(rule.X1, rule.Y1), QPointF(rule.X2, rule.Y2))
                                 .normalized()
                                 .adjusted(-half, -half, half, half);
        if (IsOutside(place)) return;
        const QRectF exact = toPixels_.mapRect(place);
        const double thinnest = std::min(exact.width(), exact.height());
        QColor ink(Qt::black);
        ink.setAlphaF(static_cast<float>(std::clamp(thinnest, kPalest, 1.0)));
        painter_.fillRect(fromPixels_.mapRect(OnPixels(exact)), ink);
    }

    void Draw(const TextRun& run) {
        if (IsOutside(ReachOf(run))) return;
        SetFont(run);
        const QString text = TextOf(run);
        const double natural = metrics_.horizontalAdvance(text);
        const QPointF start(run.X, run.Baseline);
        if (natural <= 0 || std::abs(run.Width / natural - 1) <= kTolerance) {
            painter_.drawText(start, text);
            return;
        }
        painter_.save();
        painter_.translate(start);
        painter_.scale(run.Width / natural, 1);
        painter_.drawText(QPointF(0, 0), text);
        painter_.restore();
    }

  private:
    bool IsOutside(const QRectF& place) const { return clipped_ && !clip_.intersects(place); }

    // The whole pixels nearest to a place, one at least each way, so that rules are sharp.
    static QRectF OnPixels(const QRectF& place) {
        return {std::round(place.left()), std::round(place.top()),
                std::max(1.0, std::round(place.width())),
                std::max(1.0, std::round(place.height()))};
    }

    // Many runs after each other have the same font.
    void SetFont(const TextRun& run) {
        if (run.Style == style_ && run.FontName == family_) return;
        style_ = run.Style;
        family_ = run.FontName;
        const QFont font = FontOf(run);
        metrics_ = QFontMetricsF(font);
        painter_.setFont(font);
    }

    QPainter& painter_;
    QTransform toPixels_;
    QTransform fromPixels_;
    bool clipped_;
    QRectF clip_;
    TextStyle style_{.Size = 0};
    std::string family_;
    QFontMetricsF metrics_{QFont()};
};

}  // namespace

void PaintInk(QPainter& painter, const ReportPage& page) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setPen(Qt::black);
    InkPainter ink(painter);
    for (const Rule& rule : page.Rules)
        ink.Draw(rule);
    for (const TextRun& run : page.Runs)
        ink.Draw(run);
    painter.restore();
}

void PaintPage(QPainter& painter, const ReportPage& page) {
    painter.fillRect(QRectF(0, 0, page.Width, page.Height), Qt::white);
    PaintInk(painter, page);
}

}  // namespace tav
