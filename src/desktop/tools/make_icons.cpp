// Draws the program's icon as PNG files: make_icons SVG FOLDER NAME SIZE...
// A file stands in FOLDER/SIZExSIZE/apps/NAME.png, where icon themes want it.
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

namespace {

bool Draw(QSvgRenderer& picture, int size, const QString& folder, const QString& name) {
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    picture.render(&painter);
    painter.end();
    const QDir apps(QStringLiteral("%1/%2x%2/apps").arg(folder).arg(size));
    return apps.mkpath(QStringLiteral(".")) && image.save(apps.filePath(name + ".png"));
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 5) {
        std::fputs("Usage: make_icons SVG FOLDER NAME SIZE...\n", stderr);
        return 2;
    }
    QSvgRenderer picture(QString::fromLocal8Bit(argv[1]));
    for (int i = 4; i < argc; ++i) {
        const int size = QByteArray(argv[i]).toInt();
        if (!picture.isValid() || size <= 0 ||
            !Draw(picture, size, QString::fromLocal8Bit(argv[2]), argv[3])) {
            std::fprintf(stderr, "make_icons: %s cannot be drawn in size %s\n", argv[1], argv[i]);
            return 1;
        }
    }
    return 0;
}
