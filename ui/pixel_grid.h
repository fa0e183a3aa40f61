/// \file
/// Where the device's pixels lie under a painter, so that edges fall between them at every scale.
#pragma once

#include <QPainter>
#include <algorithm>
#include <cmath>

/// Of the painter's transform at the time it is made; for painters that only move and scale.
/// Takes and gives the painter's own coordinates.
class PixelGrid
{
public:
    explicit PixelGrid(const QPainter &painter)
        : m_scaleX(painter.deviceTransform().m11())
        , m_scaleY(painter.deviceTransform().m22())
        , m_left(painter.deviceTransform().dx())
        , m_top(painter.deviceTransform().dy())
    {
    }

    double x(double at) const { return (std::round(at * m_scaleX + m_left) - m_left) / m_scaleX; }
    double y(double at) const { return (std::round(at * m_scaleY + m_top) - m_top) / m_scaleY; }

    /// The same length wherever it stands: a whole number of pixels, at least one.
    double width(double length) const { return std::max(1., std::round(length * m_scaleX)) / m_scaleX; }
    double height(double length) const { return std::max(1., std::round(length * m_scaleY)) / m_scaleY; }

    double pixelWidth() const { return 1. / m_scaleX; }

private:
    double m_scaleX;
    double m_scaleY;
    double m_left;
    double m_top;
};
