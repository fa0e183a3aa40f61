// Nothing is clipped and nothing overlaps, in four languages and three sizes.
#include "playback_fixture.h"

#include "app/language_install.h"
#include "ui/dock_bar.h"
#include "ui/elided_label.h"
#include "ui/fitted_title.h"
#include "ui/icon_button.h"
#include "ui/library_panel.h"
#include "ui/look_controls.h"
#include "ui/setup_dialog.h"
#include "ui/style_sheet.h"
#include "ui/title_bar.h"

#include "tests/support/patience.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QStyle>
#include <QStyleOption>
#include <QToolButton>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

struct Shape
{
    const char *language;
    QSize size;
    bool playing;
};

std::string shapeName(const testing::TestParamInfo<Shape> &info)
{
    const Shape &shape = info.param;
    return std::string(shape.language) + std::to_string(shape.size.width()) +
           (shape.playing ? "Playing" : "Idle");
}

QString nameOf(const QWidget *widget)
{
    return QString::fromLatin1(widget->metaObject()->className()) + u'#' + widget->objectName();
}

/// The place that a widget's text has; null where the widget cares for it itself.
int roomOf(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return label->contentsRect().width() - 2 * label->margin();
    if (const auto *button = qobject_cast<const QPushButton *>(widget)) {
        QStyleOptionButton option;
        option.initFrom(button);
        option.text = button->text();
        option.icon = button->icon();
        option.iconSize = button->iconSize();
        const int icon = button->icon().isNull() ? 0 : button->iconSize().width() + 4;
        return button->style()->subElementRect(QStyle::SE_PushButtonContents, &option, button).width() - icon;
    }
    if (const auto *check = qobject_cast<const QCheckBox *>(widget)) {
        QStyleOptionButton option;
        option.initFrom(check);
        option.text = check->text();
        return check->style()->subElementRect(QStyle::SE_CheckBoxContents, &option, check).width();
    }
    if (const auto *combo = qobject_cast<const QComboBox *>(widget)) {
        QStyleOptionComboBox option;
        option.initFrom(combo);
        return combo->style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, combo)
            .width();
    }
    if (const auto *button = qobject_cast<const QToolButton *>(widget))
        return button->width() - 18 - (button->icon().isNull() ? 0 : button->iconSize().width() + 4);
    return widget->width();
}

QString textOf(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return label->wordWrap() || label->textFormat() == Qt::RichText ? QString() : label->text();
    if (qobject_cast<const IconButton *>(widget))
        return {};
    // The sign in the search field: its text is its name alone.
    const auto *sign = qobject_cast<const QToolButton *>(widget);
    if (sign && sign->toolButtonStyle() == Qt::ToolButtonIconOnly && !sign->icon().isNull())
        return {};
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        return button->text();
    if (const auto *combo = qobject_cast<const QComboBox *>(widget))
        return combo->currentText();
    return {};
}

/// A combo box elides by itself and has no room to wrap.
bool elidesWithTip(const QWidget *widget, const QString &text)
{
    return qobject_cast<const QComboBox *>(widget) && widget->toolTip().contains(text);
}

} // namespace

class Fitting : public PlaybackTest, public testing::WithParamInterface<Shape>
{
protected:
    void SetUp() override
    {
        PlaybackTest::SetUp();
        m_deviceList =
            u"[default] One\n[2] A device with a name that is longer than any column, with its port"_s;
        const QString code = QString::fromLatin1(GetParam().language);
        if (code != "zh"_L1) {
            ASSERT_TRUE(m_translator.load(u":/i18n/%1.qm"_s.arg(code)));
            ASSERT_TRUE(QCoreApplication::installTranslator(&m_translator));
        }
        if (code == "ar"_L1)
            QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        setFontLanguage(code);
        QApplication::setFont(interfaceFont());
    }
    void TearDown() override
    {
        m_window.reset();
        QCoreApplication::removeTranslator(&m_translator);
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        setFontLanguage(u"zh"_s);
        PlaybackTest::TearDown();
    }
    void show()
    {
        open();
        m_window->resize(GetParam().size);
        m_window->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(m_window.get(), kelp_test::patienceMs));
        if (GetParam().playing)
            play();
        for (int round = 0; round < 3; ++round) {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        }
    }
    void play()
    {
        m_window->startPlayback(2);
        for (const QString &line :
             {u"source: PCM 96000 Hz, 24 bit, 2 ch"_s,
              u"volume: unity on a 24 bit device, samples untouched"_s, u"LVL -8.42 -11.73"_s,
              u"PG 12.5 1307 2112"_s, u"chain: backend=ALSA hw:2,0, exclusive"_s, u"chain: verdict=YES"_s})
            say(line);
    }
    void expectNothingClipped(const QWidget *root)
    {
        for (const QWidget *widget : root->findChildren<QWidget *>()) {
            const QString text = textOf(widget);
            if (!widget->isVisible() || text.isEmpty() || widget->window() != root->window())
                continue;
            const int wanted = widget->fontMetrics().horizontalAdvance(text);
            if (wanted > roomOf(widget) + 1 && !elidesWithTip(widget, text))
                ADD_FAILURE() << nameOf(widget).toStdString() << " \"" << text.toStdString() << "\" wants "
                              << wanted << " and has " << roomOf(widget);
            if (widget->height() + 2 < widget->fontMetrics().height())
                ADD_FAILURE() << nameOf(widget).toStdString() << " \"" << text.toStdString() << "\" is "
                              << widget->height() << " high";
            // What is elided is told whole.
            if (text.contains(u'…') && qobject_cast<const ElidedLabel *>(widget) &&
                qobject_cast<const ElidedLabel *>(widget)->whole() != text) {
                EXPECT_FALSE(widget->toolTip().isEmpty()) << nameOf(widget).toStdString();
            }
        }
    }
    /// The widgets of each area lie inside it, beside each other.
    void expectNothingOverlaps(const QWidget *root)
    {
        for (const QWidget *parent : root->findChildren<QWidget *>()) {
            if (!parent->isVisible() || !parent->layout() || parent->window() != root->window())
                continue;
            QList<const QWidget *> children;
            for (const QObject *child : parent->children()) {
                const auto *widget = qobject_cast<const QWidget *>(child);
                if (widget && widget->isVisible() && !widget->isWindow())
                    children.append(widget);
            }
            for (qsizetype i = 0; i < children.size(); ++i) {
                const QRect place = children[i]->geometry();
                const bool scrolled =
                    qobject_cast<const QAbstractScrollArea *>(parent) || parent->inherits("QScrollArea");
                if (!scrolled && !parent->rect().adjusted(-1, -1, 1, 1).contains(place) && !place.isEmpty() &&
                    !nameOf(children[i]).startsWith("Grip"_L1))
                    ADD_FAILURE() << nameOf(children[i]).toStdString() << " leaves "
                                  << nameOf(parent).toStdString() << ": " << place.x() << "," << place.y()
                                  << " " << place.width() << "×" << place.height() << " in "
                                  << parent->width() << "×" << parent->height();
                for (qsizetype k = i + 1; k < children.size(); ++k) {
                    const QRect common = place.intersected(children[k]->geometry());
                    if (common.width() > 1 && common.height() > 1 &&
                        !nameOf(children[k]).startsWith("Grip"_L1) &&
                        !nameOf(children[i]).startsWith("Grip"_L1))
                        ADD_FAILURE() << nameOf(children[i]).toStdString() << " overlaps "
                                      << nameOf(children[k]).toStdString() << " by " << common.width() << "×"
                                      << common.height() << " in " << nameOf(parent).toStdString();
                }
            }
        }
    }
    QTranslator m_translator;
};

TEST_P(Fitting, NothingIsClippedOrOverlaps)
{
    show();
    EXPECT_EQ(m_window->size(), GetParam().size) << "the areas ask for more than the window has";
    expectNothingClipped(m_window.get());
    expectNothingOverlaps(m_window.get());
    // The narrowest side column, and the log open below.
    m_window->setSideWidth(200, false);
    ui().logSwitch->click();
    for (int round = 0; round < 3; ++round)
        QCoreApplication::processEvents();
    EXPECT_EQ(m_window->size(), GetParam().size);
    expectNothingClipped(m_window.get());
    expectNothingOverlaps(m_window.get());
}

TEST_P(Fitting, TheSettingsFitToo)
{
    show();
    m_window->openSetup();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(ui().setup, kelp_test::patienceMs));
    QCoreApplication::processEvents();
    expectNothingClipped(ui().setup);
    expectNothingOverlaps(ui().setup);
}

namespace {

QList<Shape> everyShape()
{
    QList<Shape> shapes;
    for (const char *language : {"zh", "en", "de", "ar"}) {
        for (const QSize size : {QSize(1000, 640), QSize(1280, 860), QSize(3840, 2160)}) {
            for (const bool playing : {true, false})
                shapes.append({language, size, playing});
        }
    }
    return shapes;
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Window, Fitting, testing::ValuesIn(everyShape()), shapeName);
