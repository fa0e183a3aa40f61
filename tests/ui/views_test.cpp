// Spectrum and scope: what is drawn where, what moves, and what an empty view says.
#include "painted_test.h"

#include "ui/instrument_panel.h"
#include "ui/scope_view.h"
#include "ui/segment_meter.h"
#include "ui/spectrum_view.h"

#include <QLabel>
#include <QTest>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

const std::vector<double> silent(8, -96.);

std::vector<double> levels(std::size_t count, double db)
{
    return std::vector<double>(count, db);
}

} // namespace

class SpectrumPaint : public PaintedTest
{
protected:
    SpectrumPaint() { m_view.resize(160, 72); }
    void show(const std::vector<double> &left, const std::vector<double> &right, int bands)
    {
        m_view.showFrame(left, right, bands);
    }
    SpectrumView m_view;
};

TEST_F(SpectrumPaint, TheLeftChannelGrowsUpAndTheRightOneDown)
{
    // 8 bands of 20 pixels: bars of 19, half a pixel in. -48 dB is half of 36.
    show(levels(8, -48.), levels(8, 0.), 8);
    for (const bool light : {false, true}) {
        theme::setLightTheme(light);
        for (const double scale : scales) {
            const QImage picture = pictureOf(m_view, scale);
            EXPECT_EQ(at(picture, 10., 19.), theme::accentColor);
            EXPECT_EQ(at(picture, 10., 35.), theme::accentColor);
            EXPECT_EQ(at(picture, 10., 17.), ground());
            EXPECT_EQ(at(picture, 10., 71.), theme::accentColor);
            EXPECT_EQ(at(picture, 10., 36.2), QColor(44, 44, 53)) << "the centre line lies on the bars";
            EXPECT_EQ(at(picture, 150., 71.), theme::accentColor) << "the last band";
            EXPECT_EQ(coloursOf(picture).size(), 3) << "an edge lies within a pixel at " << scale;
        }
    }
}

TEST_F(SpectrumPaint, BarsOfAWholePitchHaveLikeGaps)
{
    m_view.resize(384, 72);
    show(levels(64, 0.), levels(64, 0.), 64);
    for (const double scale : {1., 1.5, 2.}) {
        const QImage picture = pictureOf(m_view, scale);
        QSet<int> bars;
        int run = 0;
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, picture.height() / 4) == theme::accentColor)
                ++run;
            else if (run > 0)
                bars.insert(std::exchange(run, 0));
        }
        EXPECT_EQ(bars.size(), 1) << scale;
    }
}

TEST_F(SpectrumPaint, ZonesHaveTheirColours)
{
    m_view.resize(160, 72);
    show(levels(8, 0.), levels(8, 0.), 8);
    const auto colourOfBand = [this](int band) { return at(pictureOf(m_view), band * 20. + 10., 20.); };
    m_view.setZones(2, 5, 7);
    EXPECT_EQ(colourOfBand(1), theme::accentBright);
    EXPECT_EQ(colourOfBand(2), theme::accentColor);
    EXPECT_EQ(colourOfBand(4), theme::accentColor);
    EXPECT_EQ(colourOfBand(5), QColor(150, 128, 86)) << "above 20 kHz";
    EXPECT_EQ(colourOfBand(6), QColor(150, 128, 86));
    EXPECT_EQ(colourOfBand(7), QColor(74, 72, 66)) << "above 22.05 kHz";
    m_view.setZones(2, 5, 0);
    EXPECT_EQ(colourOfBand(5), theme::accentColor) << "no bound, no dimmer step";
    EXPECT_EQ(colourOfBand(7), theme::accentColor);
    m_view.setZones(0, 0, 0);
    EXPECT_EQ(colourOfBand(0), theme::accentColor);
}

TEST_F(SpectrumPaint, BandsThatAFrameLacksHaveNoBar)
{
    show(levels(3, 0.), levels(2, 0.), 8);
    const QImage picture = pictureOf(m_view);
    EXPECT_EQ(at(picture, 50., 20.), theme::accentColor);
    EXPECT_EQ(at(picture, 50., 60.), ground()) << "the right channel has two bands only";
    EXPECT_EQ(at(picture, 70., 20.), ground());
    EXPECT_EQ(m_view.shownLeft(7), -96.);
}

TEST_F(SpectrumPaint, FramesThatDoNotFitChangeNothing)
{
    show(levels(8, 0.), levels(8, 0.), 0);
    show(levels(200, 0.), levels(200, 0.), 129);
    EXPECT_EQ(m_view.bandCount(), 0);
}

TEST_F(SpectrumPaint, BarsGoFiftyFiveHundredthsOfTheirWayATick)
{
    show(silent, silent, 8);
    show(levels(8, 0.), levels(8, -48.), 8);
    EXPECT_EQ(m_view.shownLeft(0), -96.);
    m_view.show();
    m_view.advance();
    EXPECT_DOUBLE_EQ(m_view.shownLeft(0), -96. + 0.55 * 96.);
    EXPECT_DOUBLE_EQ(m_view.shownRight(0), -96. + 0.55 * 48.);
    m_view.advance();
    EXPECT_DOUBLE_EQ(m_view.shownLeft(0), -96. * 0.45 * 0.45);
}

TEST_F(SpectrumPaint, WithReducedMotionOneTickIsEnough)
{
    theme::reduceMotion = true;
    m_view.show();
    show(silent, silent, 8);
    show(levels(8, -10.), levels(8, -20.), 8);
    m_view.advance();
    EXPECT_EQ(m_view.shownLeft(3), -10.);
    EXPECT_EQ(m_view.shownRight(3), -20.);
    EXPECT_FALSE(m_view.isMoving());
}

TEST_F(SpectrumPaint, TheTimerStopsWhenTheBarsHaveArrived)
{
    m_view.show();
    show(silent, silent, 8);
    show(levels(8, 0.), levels(8, 0.), 8);
    EXPECT_TRUE(m_view.isMoving());
    for (int i = 0; i < 60 && m_view.isMoving(); ++i)
        m_view.advance();
    EXPECT_FALSE(m_view.isMoving());
    EXPECT_EQ(m_view.shownLeft(0), 0.);
}

TEST_F(SpectrumPaint, NobodyMovesWhatNobodySees)
{
    show(silent, silent, 8);
    show(levels(8, 0.), levels(8, 0.), 8);
    EXPECT_FALSE(m_view.isMoving()) << "not shown yet";
    m_view.show();
    EXPECT_TRUE(m_view.isMoving()) << "shown, with a way to go";
    m_view.hide();
    EXPECT_FALSE(m_view.isMoving());
    m_view.showMinimized();
    QCoreApplication::processEvents();
    show(levels(8, -10.), levels(8, -10.), 8);
    m_view.advance();
    EXPECT_FALSE(m_view.isMoving()) << "minimised";
    m_view.showNormal();
    QCoreApplication::processEvents();
    show(levels(8, -20.), levels(8, -10.), 8);
    EXPECT_TRUE(m_view.isMoving());
    m_view.clear();
    EXPECT_FALSE(m_view.isMoving());
    m_view.advance();
    EXPECT_FALSE(m_view.isMoving()) << "there are no bands";
}

TEST_F(SpectrumPaint, AnotherNumberOfBandsIsTakenAtOnce)
{
    show(levels(8, 0.), levels(8, 0.), 8);
    show(levels(16, -30.), levels(16, -40.), 16);
    EXPECT_EQ(m_view.bandCount(), 16);
    EXPECT_EQ(m_view.shownLeft(0), -30.) << "what stood there was another band";
    EXPECT_EQ(m_view.shownRight(15), -40.);
}

TEST_F(SpectrumPaint, AnEmptyViewSaysWhyOrNothing)
{
    m_view.clear();
    EXPECT_EQ(coloursOf(pictureOf(m_view)), QSet<QRgb>{ground().rgba()}) << "idle is blank";
    const auto text = u"no PCM"_s;
    show(levels(8, 0.), levels(8, 0.), 8);
    m_view.showNoPcm(text);
    EXPECT_EQ(m_view.bandCount(), 0);
    EXPECT_GT(coloursOf(pictureOf(m_view)).size(), 1);
    EXPECT_EQ(m_view.toolTip(), text);
    EXPECT_EQ(m_view.accessibleDescription(), text);
    EXPECT_EQ(m_view.spokenValue(), text);
    show(levels(8, 0.), levels(8, 0.), 8);
    EXPECT_TRUE(m_view.toolTip().isEmpty()) << "now there is something to see";
    m_view.showNoPcm({});
    EXPECT_EQ(coloursOf(pictureOf(m_view)), QSet<QRgb>{ground().rgba()});
}

TEST_F(SpectrumPaint, TheWordsOfAnEmptyViewHaveTheirInk)
{
    QFont large = m_view.font();
    large.setPixelSize(40);
    m_view.setFont(large);
    m_view.showNoPcm(u"██"_s); // solid, so that its ink stands unmixed in the picture
    for (const bool light : {false, true}) {
        theme::setLightTheme(light);
        EXPECT_TRUE(coloursOf(pictureOf(m_view)).contains(qRgb(138, 133, 124)));
    }
}

TEST_F(SpectrumPaint, ItsSizeIsFixedInHeightAndHasALeastWidth)
{
    EXPECT_EQ(m_view.minimumHeight(), 72);
    EXPECT_EQ(m_view.maximumHeight(), 72);
    EXPECT_EQ(m_view.minimumWidth(), 160);
    EXPECT_EQ(m_view.sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
}

class ScopePaint : public PaintedTest
{
protected:
    ScopePaint() { m_view.resize(200, 72); }
    ScopeView m_view;
};

TEST_F(ScopePaint, BothChannelsAreDrawnAroundTheirZeroLines)
{
    // Ten buckets of 20 pixels: lines at 10, 30 … The quarter is 18 high, the scale 16.
    const std::vector<double> low(10, -0.5);
    const std::vector<double> high(10, 1.);
    const std::vector<double> zero(10, 0.);
    m_view.showFrame({low, high}, {low, zero}, 10);
    for (const bool light : {false, true}) {
        theme::setLightTheme(light);
        const QColor zeroLine = light ? QColor(190, 186, 178) : QColor(70, 66, 76);
        for (const double scale : scales) {
            const QImage picture = pictureOf(m_view, scale);
            EXPECT_EQ(at(picture, 5., 18.6), zeroLine) << scale;
            EXPECT_EQ(at(picture, 5., 54.6), zeroLine) << scale;
            EXPECT_EQ(at(picture, 10.6, 3.), theme::accentColor) << "up to 18 - 16";
            EXPECT_EQ(at(picture, 10.6, 25.), theme::accentColor) << "down to 18 + 8";
            EXPECT_EQ(at(picture, 10.6, 29.), ground());
            EXPECT_EQ(at(picture, 10.6, 1.), ground());
            EXPECT_EQ(at(picture, 190.6, 10.), theme::accentColor) << "the last bucket";
            // The right channel's lines are translucent.
            const QColor right = at(picture, 10.6, 58.);
            EXPECT_NE(right, theme::accentColor);
            EXPECT_NE(right, ground());
            EXPECT_EQ(at(picture, 10.6, 48.), ground()) << "nothing above its zero line";
            EXPECT_LE(coloursOf(picture).size(), 5) << "an edge lies within a pixel at " << scale;
        }
    }
}

TEST_F(ScopePaint, AnEmptyViewSaysWhy)
{
    EXPECT_EQ(m_view.toolTip(), m_view.idleText());
    EXPECT_FALSE(m_view.idleText().isEmpty());
    EXPECT_GT(coloursOf(pictureOf(m_view)).size(), 1);
    m_view.showNoPcm(u"straight through"_s);
    EXPECT_EQ(m_view.accessibleDescription(), u"straight through"_s);
    EXPECT_EQ(m_view.spokenValue(), u"straight through"_s);
    const std::vector<double> zero(4, 0.);
    m_view.showFrame({zero, zero}, {zero, zero}, 4);
    EXPECT_TRUE(m_view.toolTip().isEmpty());
    m_view.clear();
    EXPECT_EQ(m_view.bucketCount(), 0);
    EXPECT_EQ(m_view.toolTip(), m_view.idleText());
}

TEST_F(ScopePaint, TheWordsOfAnEmptyViewHaveTheInkOfTheLook)
{
    QFont large = m_view.font();
    large.setPixelSize(40);
    m_view.setFont(large);
    m_view.showNoPcm(u"██"_s);
    EXPECT_TRUE(coloursOf(pictureOf(m_view)).contains(qRgb(90, 86, 96)));
    theme::setLightTheme(true);
    EXPECT_TRUE(coloursOf(pictureOf(m_view)).contains(qRgb(120, 114, 104)));
}

TEST_F(ScopePaint, FramesThatDoNotFitChangeNothing)
{
    const std::vector<double> some(300, 0.);
    const std::vector<double> few(3, 0.);
    m_view.showFrame({some, some}, {some, some}, 257);
    m_view.showFrame({some, some}, {some, some}, 0);
    m_view.showFrame({some, some}, {some, few}, 4);
    m_view.showFrame({some, some}, {some, some}, -1);
    EXPECT_EQ(m_view.bucketCount(), 0);
    m_view.showFrame({some, some}, {some, some}, 256);
    EXPECT_EQ(m_view.bucketCount(), 256);
}

class InstrumentPanelLayout : public PaintedTest
{
protected:
    InstrumentPanelLayout()
    {
        m_panel.resize(686, InstrumentPanel::fullHeight);
        // Sizes are settled when the panel is shown or resized.
        m_panel.show();
    }
    InstrumentPanel m_panel;
};

TEST_F(InstrumentPanelLayout, TheSpectrumIsAWholeNumberOfPixelsABandWide)
{
    for (const int width : {449 + 24, 686, 900, 1201}) {
        m_panel.resize(width, InstrumentPanel::fullHeight);
        for (const int bands : {64, 31, 128}) {
            const std::vector<double> some(static_cast<std::size_t>(bands), -20.);
            m_panel.spectrum()->showFrame(some, some, bands);
            EXPECT_EQ(m_panel.spectrum()->width() % bands, 0) << width << " with " << bands;
            EXPECT_EQ(m_panel.scope()->x(), m_panel.spectrum()->geometry().right() + 1 + 12);
            EXPECT_EQ(m_panel.scope()->geometry().right() + 1, width - 16);
        }
    }
}

TEST_F(InstrumentPanelLayout, WithoutFramesNothingMoves)
{
    const std::vector<double> some(31, -20.);
    m_panel.spectrum()->showFrame(some, some, 31);
    const QRect place = m_panel.spectrum()->geometry();
    m_panel.clear();
    EXPECT_EQ(m_panel.spectrum()->geometry(), place);
}

TEST_F(InstrumentPanelLayout, CompactHidesScaleAndCaptions)
{
    const auto captions = [this] {
        int visible = 0;
        for (const QLabel *label : m_panel.findChildren<QLabel *>(u"vesperCaption"_s))
            visible += label->isVisible() ? 1 : 0;
        return visible;
    };
    EXPECT_EQ(m_panel.height(), InstrumentPanel::fullHeight);
    EXPECT_EQ(captions(), 4);
    m_panel.setCompact(true);
    EXPECT_EQ(m_panel.height(), InstrumentPanel::compactHeight);
    EXPECT_EQ(captions(), 2) << "the letters of the meters stay";
    EXPECT_EQ(m_panel.spectrum()->height(), 72);
    EXPECT_LE(m_panel.spectrum()->geometry().bottom() + 1, InstrumentPanel::compactHeight - 8);
    m_panel.setCompact(false);
    EXPECT_EQ(captions(), 4);
}

TEST_F(InstrumentPanelLayout, NothingIsMirroredRightToLeft)
{
    const auto places = [this] {
        QList<QRect> all;
        for (const QWidget *child : m_panel.findChildren<QWidget *>(Qt::FindDirectChildrenOnly))
            all.append(child->geometry());
        return all;
    };
    const std::vector<double> ramp = {0., -20., -40., -60., -80., -90., -96., -96.};
    m_panel.spectrum()->showFrame(ramp, ramp, 8);
    const QList<QRect> before = places();
    const QImage spectrum = pictureOf(*m_panel.spectrum());
    m_panel.setLayoutDirection(Qt::RightToLeft);
    m_panel.resize(687, InstrumentPanel::fullHeight);
    m_panel.resize(686, InstrumentPanel::fullHeight);
    EXPECT_EQ(places(), before);
    EXPECT_EQ(pictureOf(*m_panel.spectrum()), spectrum);
}

TEST_F(InstrumentPanelLayout, LabelsHoldTheLevel)
{
    qint64 clipUntil = 0;
    m_panel.showLevels(readMeter(-8.42, 0, clipUntil), readMeter(-200., 0, clipUntil));
    const auto labels = m_panel.findChildren<QLabel *>(u"vesperLevel"_s);
    ASSERT_EQ(labels.size(), 2);
    EXPECT_EQ(labels.at(0)->text(), u"−8.42 dB"_s);
    EXPECT_EQ(labels.at(0)->property("dbfs").toDouble(), -8.42);
    EXPECT_EQ(labels.at(1)->text(), u"−∞ dB"_s);
    EXPECT_EQ(labels.at(1)->property("dbfs").toDouble(), -200.) << "the property holds what was measured";
    m_panel.clear();
    EXPECT_EQ(labels.at(0)->text(), u"−∞ dB"_s);
}

TEST_F(InstrumentPanelLayout, TheRedOfAClipCanGoWithoutANewLevel)
{
    qint64 clipUntil = 0;
    const MeterReading left = readMeter(0., 0, clipUntil);
    m_panel.showLevels(left, readMeter(-9., 0, clipUntil));
    const auto meters = m_panel.findChildren<SegmentMeter *>();
    EXPECT_TRUE(meters.at(0)->clip() && meters.at(1)->clip());
    m_panel.endClip();
    EXPECT_FALSE(meters.at(0)->clip() || meters.at(1)->clip());
    EXPECT_EQ(meters.at(0)->dbfs(), 0.) << "the level stays what was measured";
}
