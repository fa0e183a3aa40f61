// Levels: the reading, the segments, the bits.
#include "painted_test.h"

#include "ui/bits_led.h"
#include "ui/meter_reading.h"
#include "ui/segment_meter.h"

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

TEST(MeterReading, SegmentsFollowTheLevel)
{
    struct Case
    {
        double dbfs;
        int lit;
    };
    const Case cases[] = {
        {-120., 0},
        {-60., 0},
        {-59.2, 0},
        {-59.1, 1},
        {-30., 18},
        {-15.05, 27},
        {-0.9, 35},
        {-0.05, 36},
        {0., 36},
        {6., 36},
        {std::numeric_limits<double>::quiet_NaN(), 0},
    };
    for (const Case &each : cases)
        EXPECT_EQ(litSegments(each.dbfs), each.lit) << each.dbfs;
}

TEST(MeterReading, MinusSixtyLightsNothingAndMinusFiveHundredthsAllAndStartsTheHold)
{
    EXPECT_EQ(litSegments(-60.), 0);
    EXPECT_EQ(litSegments(-0.05), 36);
    qint64 clipUntil = 0;
    EXPECT_FALSE(readMeter(-60., 100, clipUntil).clip);
    EXPECT_EQ(clipUntil, 0);
    EXPECT_TRUE(readMeter(-0.05, 100, clipUntil).clip);
    EXPECT_EQ(clipUntil, 1600);
}

TEST(MeterReading, AClipHoldsForOneAndAHalfSecondsOnBothChannels)
{
    qint64 clipUntil = 0;
    EXPECT_FALSE(readMeter(-0.06, 1000, clipUntil).clip);
    EXPECT_TRUE(readMeter(-0.05, 1000, clipUntil).clip);
    EXPECT_EQ(clipUntil, 2500);
    EXPECT_EQ(litSegments(-0.05), meterSegments);
    EXPECT_TRUE(readMeter(-40., 2499, clipUntil).clip) << "the other channel shares the time";
    EXPECT_FALSE(readMeter(-40., 2500, clipUntil).clip);
    EXPECT_TRUE(readMeter(0.2, 3000, clipUntil).clip);
    EXPECT_EQ(clipUntil, 4500);
}

TEST(MeterReading, TheTextNamesSilenceAndUsesATypographicMinus)
{
    qint64 clipUntil = 0;
    EXPECT_EQ(readMeter(-8.42, 0, clipUntil).text, u"−8.42 dB"_s);
    EXPECT_EQ(readMeter(-119.99, 0, clipUntil).text, u"−119.99 dB"_s);
    EXPECT_EQ(readMeter(0.5, 0, clipUntil).text, u"0.50 dB"_s);
    for (const double silence :
         {-120., -300., -std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        const MeterReading reading = readMeter(silence, 9000, clipUntil);
        EXPECT_EQ(reading.text, u"−∞ dB"_s) << silence;
        EXPECT_EQ(reading.dbfs, -120.) << silence;
    }
}

class SegmentMeterPaint : public PaintedTest
{
protected:
    static MeterReading reading(double dbfs, bool clip = false) { return {dbfs, clip, {}}; }
    /// The middle of segment i.
    static double middle(const SegmentMeter &meter, int i) { return (i + 0.5) * meter.width() / 36.; }
};

TEST_F(SegmentMeterPaint, ColoursStandWhereTheyBelongInBothLooksAndAtEveryScale)
{
    SegmentMeter meter;
    meter.resize(432, 12);
    for (const bool light : {false, true}) {
        theme::setLightTheme(light);
        const QColor unlit = light ? QColor(0xDC, 0xD9, 0xD2) : QColor(0x20, 0x20, 0x28);
        for (const double scale : scales) {
            meter.showReading(reading(-30.));
            QImage picture = pictureOf(meter, scale);
            EXPECT_EQ(at(picture, middle(meter, 0), 6.), theme::accentColor);
            EXPECT_EQ(at(picture, middle(meter, 17), 6.), theme::accentColor);
            EXPECT_EQ(at(picture, middle(meter, 18), 6.), unlit);
            EXPECT_EQ(at(picture, middle(meter, 35), 6.), unlit);
            EXPECT_EQ(at(picture, 0.2, 6.), theme::well()) << "between the segments";
            EXPECT_EQ(at(picture, 6., 0.5), theme::well()) << "above them";

            meter.showReading(reading(0.));
            picture = pictureOf(meter, scale);
            EXPECT_EQ(at(picture, middle(meter, 26), 6.), theme::accentColor);
            EXPECT_EQ(at(picture, middle(meter, 27), 6.), QColor(0xD4, 0xA8, 0x43));
            EXPECT_EQ(at(picture, middle(meter, 33), 6.), QColor(0xD4, 0xA8, 0x43));
            EXPECT_EQ(at(picture, middle(meter, 34), 6.), QColor(0xC7, 0x5C, 0x4A));
            EXPECT_EQ(coloursOf(picture).size(), 4) << "an edge lies within a pixel at " << scale;

            meter.showReading(reading(-30., true));
            picture = pictureOf(meter, scale);
            EXPECT_EQ(at(picture, middle(meter, 34), 6.), QColor(0xE8, 0x5C, 0x4A));
            EXPECT_EQ(at(picture, middle(meter, 35), 6.), QColor(0xE8, 0x5C, 0x4A));
            EXPECT_EQ(at(picture, middle(meter, 33), 6.), unlit);
        }
    }
}

TEST_F(SegmentMeterPaint, AllSegmentsAreEquallyWide)
{
    SegmentMeter meter;
    meter.resize(479, 12); // no multiple of 36
    meter.showReading(reading(-120.));
    for (const double scale : scales) {
        const QImage picture = pictureOf(meter, scale);
        QSet<int> widths;
        int run = 0;
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixelColor(x, picture.height() / 2) == QColor(0x20, 0x20, 0x28)) {
                ++run;
            } else if (run > 0) {
                widths.insert(std::exchange(run, 0));
            }
        }
        EXPECT_EQ(widths.size(), 1) << scale;
    }
}

TEST_F(SegmentMeterPaint, ANarrowMeterStillDrawsEverySegmentAPixelWide)
{
    SegmentMeter meter;
    meter.setMinimumSize(0, 0);
    meter.resize(35, 12);
    meter.showReading(reading(0.));
    const QImage picture = pictureOf(meter);
    int drawn = 0;
    for (int x = 0; x < 35; ++x)
        drawn += picture.pixelColor(x, 6) != theme::well() ? 1 : 0;
    EXPECT_GE(drawn, 33) << "neighbours touch, and none is missing";
    EXPECT_EQ(picture.pixelColor(34, 6), QColor(0xC7, 0x5C, 0x4A));
}

TEST_F(SegmentMeterPaint, SpeaksItsLevel)
{
    SegmentMeter meter;
    meter.showReading(reading(-8.42));
    EXPECT_EQ(meter.spokenValue(), u"−8.42 dB"_s);
    EXPECT_FALSE(meter.toolTip().isEmpty());
}

class BitsLedPaint : public PaintedTest
{
};

TEST_F(BitsLedPaint, TheLampTellsTheState)
{
    BitsLed led;
    EXPECT_EQ(led.size(), QSize(46, 18));
    const QColor lamps[] = {QColor(108, 102, 93), QColor(111, 192, 132), QColor(212, 168, 67),
                            QColor(199, 92, 74)};
    for (const bool light : {false, true}) {
        theme::setLightTheme(light);
        for (const double scale : scales) {
            for (int state = 0; state < 4; ++state) {
                led.showBits(24, state);
                // The lamp's middle: half of 7 right of what lies 8 from the frame's right edge.
                const QColor seen = at(pictureOf(led, scale), 45.5 - 8. + 3.5, 9.);
                EXPECT_EQ(seen, lamps[state]) << "state " << state << " at " << scale;
            }
        }
    }
    led.showBits(24, 7);
    EXPECT_EQ(led.state(), 0) << "what nobody defined is unknown";
    led.showBits(24, -1);
    EXPECT_EQ(led.state(), 0);
}

TEST_F(BitsLedPaint, TheNumberIsDrawnInTheInkOfTheLook)
{
    BitsLed led;
    led.showBits(24, 0);
    const auto darkest = [](const QImage &picture, const QColor &ink) {
        int least = 1000;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width() / 2; ++x) {
                const QColor c = picture.pixelColor(x, y);
                least = std::min(least, std::abs(c.red() - ink.red()) + std::abs(c.green() - ink.green()) +
                                            std::abs(c.blue() - ink.blue()));
            }
        }
        return least;
    };
    EXPECT_LT(darkest(pictureOf(led, 4.), QColor(185, 179, 168)), 6);
    theme::setLightTheme(true);
    EXPECT_LT(darkest(pictureOf(led, 4.), QColor(57, 54, 48)), 6);
}

TEST_F(BitsLedPaint, UnknownBitsAreADashAndAWord)
{
    BitsLed led;
    const QImage dash = pictureOf(led);
    led.showBits(-1, 0);
    EXPECT_EQ(pictureOf(led), dash);
    led.showBits(1, 0);
    EXPECT_NE(pictureOf(led), dash);
    led.showBits(24, 1);
    EXPECT_TRUE(led.spokenValue().contains(u"24"_s));
}
