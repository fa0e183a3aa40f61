#include "painted_test.h"

#include "ui/edge_grips.h"

#include <QList>

namespace {

class Grips : public PaintedTest
{
};

constexpr QSize windowSize(400, 300);

} // namespace

TEST_F(Grips, EveryPlaceOnTheBorderIsHeldByOneOfThem)
{
    const auto held = [](QPoint place) {
        QList<int> grips;
        for (int i = 0; i < gripCount; ++i) {
            if (placeOfGrip(i, windowSize).contains(place))
                grips.append(i);
        }
        EXPECT_FALSE(grips.isEmpty()) << place.x() << "," << place.y();
        return grips.isEmpty() ? Qt::Edges() : edgesOfGrip(grips.last());
    };
    for (int x = 0; x < windowSize.width(); ++x) {
        EXPECT_TRUE(held({x, 0}) & Qt::TopEdge);
        EXPECT_TRUE(held({x, windowSize.height() - 1}) & Qt::BottomEdge);
    }
    for (int y = 0; y < windowSize.height(); ++y) {
        EXPECT_TRUE(held({0, y}) & Qt::LeftEdge);
        EXPECT_TRUE(held({windowSize.width() - 1, y}) & Qt::RightEdge);
    }
    EXPECT_EQ(held({0, 10}), Qt::TopEdge | Qt::LeftEdge) << "a corner reaches as far down as along";
    EXPECT_EQ(held({10, 0}), Qt::TopEdge | Qt::LeftEdge);
    EXPECT_EQ(held({windowSize.width() - 1, windowSize.height() - 10}), Qt::BottomEdge | Qt::RightEdge);
}

TEST_F(Grips, DrawTheWindowsOutlineAndNothingElse)
{
    for (const double scale : {1., 1.25, 1.5, 2.}) {
        QWidget window;
        window.resize(windowSize);
        const EdgeGrips grips(&window);
        QImage picture(windowSize * scale, QImage::Format_ARGB32_Premultiplied);
        picture.setDevicePixelRatio(scale);
        window.render(&picture);
        const auto pixel = [&](int x, int y) { return picture.pixelColor(x, y); };
        const int right = picture.width() - 1;
        const int lower = picture.height() - 1;
        for (int x = 0; x <= right; ++x) {
            ASSERT_EQ(pixel(x, 0), theme::edge()) << x << " at " << scale;
            ASSERT_EQ(pixel(x, lower), theme::edge()) << x << " at " << scale;
        }
        for (int y = 0; y <= lower; ++y) {
            ASSERT_EQ(pixel(0, y), theme::edge()) << y << " at " << scale;
            ASSERT_EQ(pixel(right, y), theme::edge()) << y << " at " << scale;
        }
        const int inside = qRound(2 * scale);
        for (const QPoint place : {QPoint(inside, inside), QPoint(right - inside, lower - inside)})
            EXPECT_NE(pixel(place.x(), place.y()), theme::edge()) << scale;
    }
}
