// Pages as pictures, and whether two pictures show the same.
#pragma once

#include "desktop/page_painter.h"
#include "support/temporary_folder.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

namespace tav {

inline constexpr int kPicturePixelsPerInch = 144;
inline constexpr double kPictureScale = kPicturePixelsPerInch / 1440.0;

inline QImage PictureOf(const ReportPage& page) {
    QImage picture(QSizeF(page.Width * kPictureScale, page.Height * kPictureScale).toSize(),
                   QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&picture);
    painter.scale(kPictureScale, kPictureScale);
    PaintPage(painter, page);
    return picture;
}

// The page, from 1, of a PDF file as another program draws it.
inline QImage PictureOfPdf(const std::string& file, int page) {
    const TemporaryFolder folder;
    const std::string number = std::to_string(page);
    const std::string command = "pdftoppm -png -singlefile -r " +
                                std::to_string(kPicturePixelsPerInch) + " -f " + number + " -l " +
                                number + " '" + file + "' " + folder.Path("page");
    EXPECT_EQ(std::system(command.c_str()), 0) << command;
    return QImage(QString::fromStdString(folder.Path("page.png")));
}

inline bool HasInk(const QImage& picture, int x, int y, int darkest = 128) {
    return picture.valid(x, y) && qGray(picture.pixel(x, y)) < darkest;
}

// How many dark points of one picture have no ink of the other's within a pixel.
inline int Strays(const QImage& one, const QImage& other) {
    constexpr int kPale = 224;
    int strays = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            if (!HasInk(one, x, y)) continue;
            bool near = false;
            for (int dy = -1; dy <= 1 && !near; ++dy)
                for (int dx = -1; dx <= 1 && !near; ++dx)
                    near = HasInk(other, x + dx, y + dy, kPale);
            if (!near) ++strays;
        }
    }
    return strays;
}

inline void ExpectSamePicture(const QImage& one, const QImage& other) {
    EXPECT_EQ(one.size(), other.size());
    EXPECT_EQ(Strays(one, other), 0);
    EXPECT_EQ(Strays(other, one), 0);
}

}  // namespace tav
