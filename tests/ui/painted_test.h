/// \file
/// Widgets drawn into pictures, at the scale and in the look that a test wants.
#pragma once

#include "ui/theme.h"

#include <QImage>
#include <QPainter>
#include <QSet>
#include <QWidget>
#include <gtest/gtest.h>

/// Leaves the process-wide look as it was.
class PaintedTest : public testing::Test
{
protected:
    void TearDown() override
    {
        theme::setLightTheme(false);
        theme::setAccent(QColor(theme::defaultAccent));
        theme::reduceMotion = false;
    }

    /// The widget at its size, on magenta, with `scale` pixels of the picture to one of its own.
    static QImage pictureOf(QWidget &widget, double scale = 1.)
    {
        const QSizeF size = QSizeF(widget.size()) * scale;
        QImage picture(qRound(size.width()), qRound(size.height()), QImage::Format_ARGB32_Premultiplied);
        picture.setDevicePixelRatio(scale);
        picture.fill(Qt::magenta);
        widget.render(&picture, {}, {}, QWidget::RenderFlags());
        return picture;
    }

    /// The colour at a point in the widget's own coordinates.
    static QColor at(const QImage &picture, double x, double y)
    {
        const double scale = picture.devicePixelRatio();
        return picture.pixelColor(static_cast<int>(x * scale), static_cast<int>(y * scale));
    }

    static QSet<QRgb> coloursOf(const QImage &picture)
    {
        QSet<QRgb> colours;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                colours.insert(picture.pixel(x, y));
        }
        return colours;
    }

    /// What lies under the views' drawings.
    static QColor ground()
    {
        QImage picture(1, 1, QImage::Format_ARGB32_Premultiplied);
        picture.fill(theme::well());
        QPainter painter(&picture);
        painter.fillRect(0, 0, 1, 1, QColor(0, 0, 0, theme::lightTheme ? 10 : 45));
        painter.end();
        return picture.pixelColor(0, 0);
    }

    static constexpr double scales[] = {1., 1.25, 1.5, 2.};
};
