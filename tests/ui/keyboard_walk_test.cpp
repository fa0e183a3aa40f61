// The window without a mouse: where the Tab key leads, what shows it, and what each control is called.
#include "playback_fixture.h"

#include "ui/dock_bar.h"
#include "ui/keyboard_focus.h"
#include "ui/library_panel.h"
#include "ui/log_pane.h"
#include "ui/progress_row.h"
#include "ui/setup_dialog.h"
#include "ui/theme.h"
#include "ui/title_bar.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QToolButton>

using namespace Qt::StringLiterals;

class KeyboardWalk : public PlaybackTest
{
protected:
    void SetUp() override
    {
        PlaybackTest::SetUp();
        open();
    }
    void show()
    {
        m_window->resize(1280, 860);
        m_window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(m_window.get()));
        QApplication::setActiveWindow(m_window.get());
        settle();
    }
    /// What the key leads to, from where the focus is until it comes back to something.
    QList<QWidget *> walk(Qt::Key key, QWidget *window)
    {
        QList<QWidget *> found;
        constexpr int mostSteps = 200;
        for (int step = 0; step < mostSteps; ++step) {
            QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : window, key);
            QWidget *reached = QApplication::focusWidget();
            if (!reached || found.contains(reached))
                break;
            found.append(reached);
        }
        return found;
    }
    static std::string nameOf(const QWidget *widget)
    {
        return std::string(widget->metaObject()->className()) + " " + widget->objectName().toStdString();
    }
    /// Names of what a screen reader can be asked to press, to choose from or to read, in a window.
    static void expectNames(const QWidget *window)
    {
        for (QWidget *widget : window->findChildren<QWidget *>()) {
            if (!widget->isVisible() || widget->window() != window || widget->size().isEmpty())
                continue;
            QAccessibleInterface *told = QAccessible::queryAccessibleInterface(widget);
            if (!told)
                continue;
            // Parts of a control speak through it.
            const QWidget *parent = widget->parentWidget();
            if (qobject_cast<const QAbstractSpinBox *>(parent) || qobject_cast<const QComboBox *>(parent) ||
                parent->inherits("QAbstractScrollArea") || widget->inherits("QScrollBar"))
                continue;
            switch (told->role()) {
            case QAccessible::Button:
            case QAccessible::ButtonMenu:
            case QAccessible::CheckBox:
            case QAccessible::RadioButton:
            case QAccessible::ComboBox:
            case QAccessible::SpinBox:
            case QAccessible::Slider:
            case QAccessible::EditableText:
            case QAccessible::List:
            case QAccessible::Table:
            case QAccessible::Tree:
            case QAccessible::ProgressBar:
                EXPECT_FALSE(told->text(QAccessible::Name).trimmed().isEmpty()) << nameOf(widget);
                break;
            default:
                break;
            }
        }
    }
};

TEST_F(KeyboardWalk, TheTabKeyLeadsFromTheStartToEverythingAndBack)
{
    show();
    m_window->startPlayback(1);
    settle();
    const QList<QWidget *> forward = walk(Qt::Key_Tab, m_window.get());
    for (QWidget *widget : m_window->findChildren<QWidget *>()) {
        if ((widget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && widget->isVisible() &&
            widget->isEnabled() && widget->window() == m_window.get() && !widget->focusProxy()) {
            EXPECT_TRUE(forward.contains(widget)) << "never reached: " << nameOf(widget);
        }
    }
    ASSERT_FALSE(forward.isEmpty());
    EXPECT_EQ(forward.first(), ui().playlist) << "search and filters cannot be used yet";
    QList<QWidget *> back = walk(Qt::Key_Backtab, m_window.get());
    EXPECT_EQ(back.size(), forward.size());
}

TEST_F(KeyboardWalk, EveryStepCanBeSeen)
{
    show();
    m_window->startPlayback(1);
    settle();
    for (QWidget *widget : walk(Qt::Key_Tab, m_window.get())) {
        ASSERT_TRUE(m_window->centralWidget());
        m_window->centralWidget()->setFocus(Qt::OtherFocusReason);
        const QImage without = widget->grab().toImage();
        widget->setFocus(Qt::TabFocusReason);
        EXPECT_TRUE(KeyboardFocus::isOn(widget)) << nameOf(widget);
        EXPECT_NE(widget->grab().toImage(), without) << nameOf(widget);
    }
}

TEST_F(KeyboardWalk, EveryControlHasAName)
{
    show();
    ui().logSwitch->click();
    m_window->startPlayback(1);
    m_window->openSetup();
    m_window->startBitPerfectCheck();
    m_window->openChainReport();
    settle();
    int windows = 0;
    for (const QWidget *window : QApplication::topLevelWidgets()) {
        if (!window->isVisible() || window->inherits("QTipLabel"))
            continue;
        expectNames(window);
        ++windows;
    }
    EXPECT_GE(windows, 4);
}

TEST_F(KeyboardWalk, TheReportsButtonGetsItsFocusBack)
{
    show();
    m_window->startPlayback(0);
    settle();
    ui().report->setFocus(Qt::TabFocusReason);
    m_window->offerReport(false);
    EXPECT_NE(m_window->focusWidget(), ui().report);
    m_window->offerReport(true);
    EXPECT_EQ(m_window->focusWidget(), ui().report) << "the next key is meant for it, not for its neighbour";
    m_window->offerReport(false);
    ui().playlist->setFocus();
    m_window->offerReport(true);
    EXPECT_EQ(m_window->focusWidget(), ui().playlist) << "whoever has gone elsewhere stays there";
}

TEST_F(KeyboardWalk, WhatCannotBeUsedLooksLikeIt)
{
    show();
    for (QPushButton *chip : ui().library->chips) {
        ASSERT_FALSE(chip->isEnabled());
        const QImage picture = chip->grab().toImage();
        int lightest = 0;
        for (int x = 8; x < picture.width() - 8; ++x) {
            for (int y = 6; y < picture.height() - 6; ++y)
                lightest = std::max(lightest, qGray(picture.pixel(x, y)));
        }
        EXPECT_LE(lightest, qGray(theme::off().rgb())) << chip->text().toStdString();
    }
}

TEST_F(KeyboardWalk, OneRowIsChosenWhenAFileIsOpened)
{
    show();
    ui().playlist->setCurrentRow(0);
    m_window->appendFile(fileAt(1));
    ui().playlist->showRow(2);
    EXPECT_EQ(ui().playlist->selectedItems().size(), 1);
}

TEST_F(KeyboardWalk, TheLogBeginsAtTheColumnsEdge)
{
    show();
    ui().logSwitch->click();
    m_window->logLine(u"one"_s);
    QTRY_VERIFY_WITH_TIMEOUT(!ui().log->toPlainText().isEmpty(), 5000);
    settle();
    const QWidget *view = ui().log->viewport();
    const int text =
        view->mapTo(m_window.get(), ui().log->cursorRect(QTextCursor(ui().log->document())).topLeft()).x();
    EXPECT_EQ(text, 16);
}

TEST_F(KeyboardWalk, TimeAndStateStandOnOneLine)
{
    for (const QSize size : {QSize(1000, 640), QSize(1280, 860), QSize(1920, 1080)}) {
        show();
        m_window->resize(size);
        settle();
        QList<int> lines;
        for (const QString &name : {u"vesperVfdTime"_s, u"vesperVfdTotal"_s, u"vesperVfdStatus"_s}) {
            const auto *label = m_window->findChild<QLabel *>(name);
            const QRect inside = label->contentsRect();
            const int text = label->fontMetrics().height();
            // Centred in what the margins leave.
            const int bottom = inside.top() + (inside.height() + text) / 2;
            lines.append(label->mapTo(m_window.get(), QPoint(0, bottom)).y() -
                         label->fontMetrics().descent());
        }
        EXPECT_NEAR(lines[1], lines[0], 1) << size.width();
        EXPECT_NEAR(lines[2], lines[0], 1) << size.width();
    }
}
