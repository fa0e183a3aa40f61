// Buttons that are painted: their signs, their states, and the ring of the keyboard's focus.
#include "painted_test.h"

#include "ui/dsp_tab.h"
#include "ui/glyph_icons.h"
#include "ui/icon_button.h"
#include "ui/keyboard_focus.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QTest>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace {

constexpr Glyph allGlyphs[] = {
    Glyph::Play,         Glyph::Pause,        Glyph::Stop,
    Glyph::Previous,     Glyph::Next,         Glyph::OrderSequential,
    Glyph::OrderRandom,  Glyph::RepeatOff,    Glyph::RepeatList,
    Glyph::RepeatTrack,  Glyph::Lyrics,       Glyph::VolumeMuted,
    Glyph::VolumeLow,    Glyph::VolumeMiddle, Glyph::VolumeHigh,
    Glyph::ChevronUp,    Glyph::ChevronDown,  Glyph::ChevronLeft,
    Glyph::ChevronRight, Glyph::Minimise,     Glyph::Maximise,
    Glyph::Restore,      Glyph::Close,        Glyph::Search,
    Glyph::Warning,      Glyph::Gear,         Glyph::Refresh,
    Glyph::Tick,         Glyph::Dash,
};

} // namespace

class IconButtonPaint : public PaintedTest
{
};

TEST_F(IconButtonPaint, EveryGlyphIsDrawnInsideItsSquareAndUnlikeAllOthers)
{
    QList<QImage> seen;
    for (const Glyph glyph : allGlyphs) {
        QImage picture(40, 40, QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        drawGlyph(painter, glyph, QRectF(10., 10., 20., 20.), Qt::white);
        painter.end();
        for (int i = 0; i < 40; ++i) {
            for (const QPoint edge : {QPoint(i, 10), QPoint(i, 29), QPoint(10, i), QPoint(29, i)})
                EXPECT_EQ(picture.pixelColor(edge).alpha(), 0) << static_cast<int>(glyph);
        }
        EXPECT_GT(coloursOf(picture).size(), 1) << static_cast<int>(glyph);
        EXPECT_FALSE(seen.contains(picture)) << static_cast<int>(glyph);
        seen.append(picture);
    }
}

TEST_F(IconButtonPaint, SolidSignsAreCrispAtEveryScale)
{
    for (const double scale : scales) {
        const int side = qRound(20 * scale);
        QImage picture(side, side, QImage::Format_ARGB32_Premultiplied);
        picture.setDevicePixelRatio(scale);
        picture.fill(Qt::black);
        QPainter painter(&picture);
        drawGlyph(painter, Glyph::Stop, QRectF(0., 0., 20., 20.), Qt::white);
        painter.end();
        EXPECT_EQ(at(picture, 10., 10.), QColor(Qt::white));
        EXPECT_EQ(at(picture, 3., 10.), QColor(Qt::black));
    }
}

TEST_F(IconButtonPaint, StatesFollowTheTheme)
{
    IconButton button(Glyph::Stop, u"Stop"_s);
    EXPECT_EQ(button.size(), QSize(38, 38));
    EXPECT_EQ(button.accessibleName(), u"Stop"_s);
    EXPECT_EQ(button.toolTip(), u"Stop"_s);
    for (const bool light : {false, true}) {
        theme::setLightTheme(light);
        for (const double scale : scales) {
            const auto sign = [&] { return at(pictureOf(button, scale), 19., 19.); };
            EXPECT_EQ(sign(), theme::ink3());
            button.setLit(true);
            EXPECT_EQ(sign(), theme::accentInk());
            button.setLit(false);
            button.setDown(true);
            EXPECT_EQ(sign(), theme::ink1());
            EXPECT_EQ(at(pictureOf(button, scale), 19., 3.), theme::well());
            button.setDown(false);
            button.setEnabled(false);
            EXPECT_EQ(sign(), theme::off());
            button.setEnabled(true);
        }
    }
}

TEST_F(IconButtonPaint, PlayHasARingAndFillsWhenPressed)
{
    IconButton button(Glyph::Stop, u"Play"_s, nullptr, IconButton::Look::Play);
    const QImage picture = pictureOf(button, 2.);
    EXPECT_EQ(at(picture, 19., 0.5), theme::accentGraphic()) << "the ring";
    EXPECT_EQ(at(picture, 19., 19.), theme::accentInk()) << "the sign";
    button.setDown(true);
    EXPECT_EQ(at(pictureOf(button), 19., 4.), theme::accentInk()) << "filled";
    EXPECT_EQ(at(pictureOf(button), 19., 19.), theme::glass());
    button.setDown(false);
    button.setEnabled(false);
    EXPECT_EQ(at(pictureOf(button, 2.), 19., 0.5), theme::hairline());
}

TEST_F(IconButtonPaint, TheCloseButtonIsRedOnlyUnderThePointer)
{
    IconButton button(Glyph::Close, u"Close"_s, nullptr, IconButton::Look::Close);
    button.setFixedSize(IconButton::windowSize);
    EXPECT_EQ(at(pictureOf(button), 3., 13.).rgb(), QColor(Qt::magenta).rgb()) << "nothing but the sign";
    button.setDown(true);
    EXPECT_EQ(at(pictureOf(button), 3., 13.).rgb(), theme::failure().darker(125).rgb());
}

TEST_F(IconButtonPaint, TheWheelIsPassedOnToWhoeverListens)
{
    IconButton button(Glyph::VolumeHigh, u"Volume"_s);
    const auto turn = [&](int delta) {
        QWheelEvent event({5., 5.}, {5., 5.}, {}, {0, delta}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                          false);
        event.ignore();
        QCoreApplication::sendEvent(&button, &event);
        return event.isAccepted();
    };
    EXPECT_FALSE(turn(120)) << "the parent may want it";
    QList<int> heard;
    QObject::connect(&button, &IconButton::wheelTurned, [&](int delta) { heard.append(delta); });
    EXPECT_TRUE(turn(120));
    EXPECT_TRUE(turn(-240));
    EXPECT_EQ(heard, (QList<int>{120, -240}));
}

TEST_F(IconButtonPaint, VolumeHasThreeLevelsAndSilence)
{
    EXPECT_EQ(volumeGlyph(0), Glyph::VolumeMuted);
    EXPECT_EQ(volumeGlyph(1), Glyph::VolumeLow);
    EXPECT_EQ(volumeGlyph(50), Glyph::VolumeMiddle);
    EXPECT_EQ(volumeGlyph(100), Glyph::VolumeHigh);
}

TEST_F(IconButtonPaint, IconsFollowTheTheme)
{
    const QIcon icon = glyphIcon(Glyph::Stop);
    EXPECT_EQ(icon.pixmap(20, 20).toImage().pixelColor(10, 10), theme::ink3());
    theme::setLightTheme(true);
    EXPECT_EQ(icon.pixmap(20, 20, QIcon::Disabled).toImage().pixelColor(10, 10), theme::off());
}

class DspTabPaint : public PaintedTest
{
};

TEST_F(DspTabPaint, LampAndPlateAreTwoThings)
{
    DspTab tab(u"Reverb"_s);
    tab.resize(tab.sizeHint());
    const double middle = tab.height() * 0.5;
    for (const bool light : {false, true}) {
        theme::setLightTheme(light);
        tab.setLit(false);
        tab.setChecked(false);
        QImage picture = pictureOf(tab, 2.);
        EXPECT_EQ(at(picture, 9.5, middle), theme::off()) << "a flat dot";
        EXPECT_EQ(at(picture, 9.5, middle - 5.), QColor(Qt::magenta)) << "without a halo";
        tab.setLit(true);
        picture = pictureOf(tab, 2.);
        EXPECT_EQ(at(picture, 9.5, middle), theme::accentColor);
        EXPECT_NE(at(picture, 9.5, middle - 4.), QColor(Qt::magenta)) << "the halo";
        EXPECT_EQ(at(picture, 9.5, middle - 7.), QColor(Qt::magenta)) << "of radius 6";
        EXPECT_EQ(at(picture, tab.width() - 5., middle), QColor(Qt::magenta)) << "no plate";
        tab.setChecked(true);
        EXPECT_EQ(at(pictureOf(tab, 2.), tab.width() - 5., middle), theme::raisedHover());
    }
}

TEST_F(DspTabPaint, OpeningAPageMovesNothing)
{
    DspTab tab(u"Equalizer"_s);
    const QSize closed = tab.sizeHint();
    tab.setChecked(true);
    EXPECT_EQ(tab.sizeHint(), closed);
    EXPECT_NE(tab.accessibleDescription(), QString());
}

class KeyboardFocusRing : public PaintedTest
{
protected:
    void SetUp() override
    {
        KeyboardFocus::install();
        KeyboardFocus::install();
        auto *row = new QHBoxLayout(&m_window);
        row->addWidget(&m_first);
        row->addWidget(&m_second);
        m_window.show();
        QApplication::setActiveWindow(&m_window);
        QTest::keyClick(&m_window, Qt::Key_Shift);
    }
    void TearDown() override
    {
        m_first.setParent(nullptr);
        m_second.setParent(nullptr);
        PaintedTest::TearDown();
    }
    QWidget m_window;
    IconButton m_first{Glyph::Stop, u"Stop"_s};
    IconButton m_second{Glyph::Next, u"Next"_s};
};

TEST_F(KeyboardFocusRing, IsThereForTheKeyAndNotForTheMouse)
{
    m_first.setFocus(Qt::MouseFocusReason);
    EXPECT_FALSE(KeyboardFocus::isOn(&m_first));
    QTest::keyClick(&m_first, Qt::Key_Tab);
    ASSERT_TRUE(m_second.hasFocus());
    EXPECT_TRUE(KeyboardFocus::isOn(&m_second));
    EXPECT_EQ(at(pictureOf(m_second, 2.), 19., 1.), theme::accentBright);
    m_second.clearFocus();
    EXPECT_FALSE(KeyboardFocus::isOn(&m_second));
    m_first.setFocus(Qt::ShortcutFocusReason);
    EXPECT_TRUE(KeyboardFocus::isOn(&m_first));
}

TEST_F(KeyboardFocusRing, OutlivesAMenuThatBorrowsTheFocus)
{
    m_second.setFocus(Qt::OtherFocusReason);
    m_first.setFocus(Qt::TabFocusReason);
    for (const Qt::FocusReason reason : {Qt::PopupFocusReason, Qt::ActiveWindowFocusReason}) {
        QFocusEvent out(QEvent::FocusOut, reason);
        QCoreApplication::sendEvent(&m_first, &out);
        QFocusEvent in(QEvent::FocusIn, reason);
        QCoreApplication::sendEvent(&m_first, &in);
        EXPECT_TRUE(KeyboardFocus::isOn(&m_first));
    }
}

TEST_F(KeyboardFocusRing, IsNotThereWhereTheMouseMadeTheToolkitMoveTheFocus)
{
    m_first.setFocus(Qt::OtherFocusReason);
    QTest::mouseClick(&m_second, Qt::LeftButton);
    m_first.setFocus(Qt::OtherFocusReason);
    m_second.setFocus(Qt::TabFocusReason);
    EXPECT_FALSE(KeyboardFocus::isOn(&m_second));
    QTest::keyClick(&m_second, Qt::Key_Backtab);
    EXPECT_TRUE(KeyboardFocus::isOn(&m_first)) << "a key again";
}

TEST_F(KeyboardFocusRing, GoesWithAFocusThatWasMovedWhileTheWindowWasAway)
{
    m_second.setFocus(Qt::OtherFocusReason);
    m_first.setFocus(Qt::TabFocusReason);
    ASSERT_TRUE(KeyboardFocus::isOn(&m_first));
    QFocusEvent out(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(&m_first, &out);
    QFocusEvent in(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(&m_second, &in);
    EXPECT_TRUE(KeyboardFocus::isOn(&m_second));
    EXPECT_FALSE(KeyboardFocus::isOn(&m_first));
}

TEST_F(PaintedTest, NoTwoSignsAreAlike)
{
    QList<QImage> pictures;
    for (int i = 0; i <= static_cast<int>(Glyph::SliderCapLine); ++i) {
        QImage picture(40, 40, QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::black);
        QPainter painter(&picture);
        drawGlyph(painter, static_cast<Glyph>(i), QRectF(0., 0., 40., 40.), Qt::white);
        painter.end();
        EXPECT_FALSE(pictures.contains(picture)) << i;
        pictures.append(picture);
    }
}

TEST_F(KeyboardFocusRing, InTheLightLookIsDarkEnoughToBeSeen)
{
    theme::setLightTheme(true);
    m_second.setFocus(Qt::OtherFocusReason);
    m_first.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(at(pictureOf(m_first, 2.), 19., 1.), theme::accentInk());
}
