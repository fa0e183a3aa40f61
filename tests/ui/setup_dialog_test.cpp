// The settings dialog under a wheel.
#include "ui/setup_dialog.h"

#include <QApplication>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QtTest/qtestspontaneevent.h>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class SetupWheel : public testing::Test
{
protected:
    SetupWheel()
    {
        auto *section = new QWidget;
        auto *rows = new QVBoxLayout(section);
        m_combo->addItems({u"a"_s, u"b"_s, u"c"_s});
        m_combo->setCurrentIndex(1);
        m_slider->setRange(0, 100);
        m_slider->setValue(50);
        m_spin->setValue(5.);
        rows->addWidget(m_combo);
        rows->addWidget(m_spin);
        rows->addWidget(m_slider);
        rows->addSpacing(2000);
        m_dialog.addSection({}, section);
        m_dialog.show();
        m_dialog.activateWindow();
        QApplication::processEvents();
    }
    static void turn(QWidget *widget, int eighths = -120)
    {
        const QPointF middle = widget->rect().center();
        QWheelEvent event(middle, widget->mapToGlobal(middle), {}, {0, eighths}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        // Only what comes from outside is passed on from a control to what it stands in.
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(widget, &event);
    }
    int scrolled() { return m_dialog.findChild<QScrollArea *>()->verticalScrollBar()->value(); }

    SetupDialog m_dialog;
    QComboBox *m_combo = new QComboBox;
    QDoubleSpinBox *m_spin = new QDoubleSpinBox;
    QSlider *m_slider = new QSlider(Qt::Horizontal);
};

TEST_F(SetupWheel, ScrollingPastAControlChangesNothingButThePage)
{
    for (QWidget *control : {static_cast<QWidget *>(m_combo), static_cast<QWidget *>(m_spin),
                             static_cast<QWidget *>(m_slider)}) {
        const int before = scrolled();
        turn(control);
        EXPECT_GT(scrolled(), before) << control->metaObject()->className();
        EXPECT_FALSE(control->hasFocus());
    }
    EXPECT_EQ(m_combo->currentIndex(), 1);
    EXPECT_EQ(m_spin->value(), 5.);
    EXPECT_EQ(m_slider->value(), 50);
}

TEST_F(SetupWheel, AControlWithTheFocusTurns)
{
    m_spin->setFocus();
    ASSERT_TRUE(m_spin->hasFocus());
    turn(m_spin);
    EXPECT_EQ(m_spin->value(), 4.);
    EXPECT_EQ(scrolled(), 0);
}

} // namespace
