#include "ui/title_bar.h"

#include "ui/style_sheet.h"

#include <QGridLayout>
#include <QMouseEvent>
#include <QStyle>
#include <QTime>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

constexpr int captionPixels = 11;
constexpr int brandHeight = 28;
constexpr int brandPixels = 12;
constexpr int clockPixels = 12;
constexpr int secondMs = 1000;
constexpr QSize ruleSize(1, 24);

QLabel *label(QWidget *parent, QLatin1StringView objectName, const QString &text)
{
    auto *made = new QLabel(text, parent);
    made->setObjectName(objectName);
    return made;
}

} // namespace

TitleBar::TitleBar(QWidget *parent)
    : QFrame(parent)
    , brand(new QPushButton(u"PLAYER · DSD"_s, this))
    , m_model(label(this, "vesperModel"_L1, u"KP-1"_s))
    , m_title(label(this, "vesperWinTitle"_L1, u"Kelp Player"_s))
    , m_clock(label(this, "vesperClock"_L1, u"00:00:00"_s))
{
    setObjectName("vesperTitleBar"_L1);
    setFixedHeight(areas::titleBar);
    brand->setObjectName("vesperBrand"_L1);
    QFont brandFont = figureFont(brandPixels);
    brandFont.setWeight(QFont::DemiBold);
    brandFont.setLetterSpacing(QFont::AbsoluteSpacing, 1.4);
    brand->setFont(brandFont);
    brand->setFixedHeight(brandHeight);
    brand->setToolTip(tr("打开设置(Setup Menu)"));
    brand->setAccessibleName(tr("设置"));
    m_model->setFont(figureFont(captionPixels));
    m_clock->setFont(figureFont(clockPixels));
    m_power = addIndicator(u"POWER"_s);
    m_effects = addIndicator(u"DSP"_s);
    m_playing = addIndicator(u"PLAY"_s);
    setIndicator(m_power, u"POWER"_s, true);
    showIndicators(false, false);
    m_minimise = addWindowButton(Glyph::Minimise, tr("最小化"));
    m_maximise = addWindowButton(Glyph::Maximise, tr("最大化"));
    m_close = addWindowButton(Glyph::Close, tr("关闭窗口"));
    connect(m_minimise, &QPushButton::clicked, this, [this] { window()->showMinimized(); });
    connect(m_maximise, &QPushButton::clicked, this, &TitleBar::toggleMaximised);
    connect(m_close, &QPushButton::clicked, this, [this] { window()->close(); });
    parent->window()->installEventFilter(this);

    auto *left = new QHBoxLayout;
    left->setSpacing(16);
    // The buttons at the other end have air of their own around their signs.
    left->addSpacing(4);
    left->addWidget(brand);
    left->addWidget(m_model);
    left->addStretch();
    auto *rule = new QFrame(this);
    rule->setObjectName("vesperRule"_L1);
    rule->setFixedSize(ruleSize);
    auto *right = new QHBoxLayout;
    right->setSpacing(16);
    right->addStretch();
    for (QWidget *shown : std::initializer_list<QWidget *>{m_power, m_effects, m_playing, rule, m_clock})
        right->addWidget(shown);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(4);
    for (QWidget *button : windowButtons())
        buttons->addWidget(button);
    right->addLayout(buttons);
    // Equal outer columns keep the title on the middle of the window.
    auto *columns = new QGridLayout(this);
    columns->setContentsMargins(12, 0, 12, 0);
    columns->addLayout(left, 0, 0);
    columns->addWidget(m_title, 0, 1, Qt::AlignCenter);
    columns->addLayout(right, 0, 2);
    columns->setColumnStretch(0, 1);
    columns->setColumnStretch(2, 1);

    m_ticker.setTimerType(Qt::PreciseTimer);
    m_ticker.setSingleShot(true);
    connect(&m_ticker, &QTimer::timeout, this, &TitleBar::tick);
}

QLabel *TitleBar::addIndicator(const QString &word)
{
    QLabel *indicator = label(this, "vesperInd"_L1, u"● "_s + word);
    indicator->setFont(figureFont(captionPixels));
    return indicator;
}

void TitleBar::setIndicator(QLabel *indicator, const QString &word, bool on)
{
    const QLatin1StringView name = on ? "vesperIndOn"_L1 : "vesperInd"_L1;
    // A lamp has a word beside it, and whoever cannot see the lamp hears it.
    indicator->setAccessibleName(on ? tr("%1：亮").arg(word) : tr("%1：灭").arg(word));
    if (indicator->objectName() == name)
        return;
    indicator->setObjectName(name);
    indicator->style()->unpolish(indicator);
    indicator->style()->polish(indicator);
}

IconButton *TitleBar::addWindowButton(Glyph glyph, const QString &name)
{
    const bool closes = glyph == Glyph::Close;
    auto *button =
        new IconButton(glyph, name, this, closes ? IconButton::Look::Close : IconButton::Look::Plain);
    button->setObjectName(closes ? "vesperWinClose"_L1 : "vesperWinBtn"_L1);
    button->setFixedSize(IconButton::windowSize);
    return button;
}

QList<QWidget *> TitleBar::windowButtons() const
{
    return {m_minimise, m_maximise, m_close};
}

void TitleBar::showIndicators(bool effects, bool playing)
{
    setIndicator(m_effects, u"DSP"_s, effects);
    setIndicator(m_playing, u"PLAY"_s, playing);
}

void TitleBar::applyPlan(const AreaPlan &plan)
{
    m_model->setVisible(plan.showsModel);
    m_title->setVisible(plan.showsModel);
}

void TitleBar::tick()
{
    const QTime now = QTime::currentTime();
    m_clock->setText(now.toString(u"HH:mm:ss"_s));
    m_ticker.start(secondMs - now.msec());
}

void TitleBar::toggleMaximised()
{
    if (window()->isMaximized())
        window()->showNormal();
    else
        window()->showMaximized();
}

void TitleBar::mousePressEvent(QMouseEvent *event)
{
    QWindow *handle = window()->windowHandle();
    if (event->button() == Qt::LeftButton && handle)
        handle->startSystemMove();
}

void TitleBar::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        toggleMaximised();
}

void TitleBar::showEvent(QShowEvent *event)
{
    QFrame::showEvent(event);
    tick();
}

void TitleBar::hideEvent(QHideEvent *event)
{
    QFrame::hideEvent(event);
    m_ticker.stop();
}

bool TitleBar::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::WindowStateChange) {
        const bool maximised = window()->isMaximized();
        m_maximise->setGlyph(maximised ? Glyph::Restore : Glyph::Maximise);
        m_maximise->setName(maximised ? tr("还原") : tr("最大化"));
    }
    return QFrame::eventFilter(watched, event);
}
