#include "ui/dock_bar.h"

#include "ui/glyph_icons.h"
#include "ui/style_sheet.h"

#include <QGridLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int dockHeight = 72;
constexpr int buttonSize = 38;
constexpr int iconSize = 20;
constexpr int volumeWidth = 112;
constexpr int figurePixels = 12;

} // namespace

DockBar::DockBar(QWidget *parent)
    : QFrame(parent)
{
    setObjectName("vesperDock"_L1);
    setFixedHeight(dockHeight);

    auto *now = new QVBoxLayout;
    now->setSpacing(2);
    m_title = new QLabel(this);
    m_title->setObjectName("vesperNowTitle"_L1);
    m_second = new QLabel(this);
    m_second->setObjectName("vesperNowArtist"_L1);
    for (QLabel *line : {m_title, m_second}) {
        line->setTextFormat(Qt::PlainText);
        line->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    }
    now->addStretch();
    now->addWidget(m_title);
    now->addWidget(m_second);
    now->addStretch();

    stop = addButton(tr("停止"), tr("停止播放"));
    stop->setIcon(glyphIcon(Glyph::Stop));
    previous = addButton(tr("上一首"), tr("播放上一首"));
    previous->setIcon(glyphIcon(Glyph::Previous));
    start = addButton(tr("播放"), tr("播放选中的曲目"));
    start->setObjectName("vesperPlay"_L1);
    next = addButton(tr("下一首"), tr("播放下一首"));
    next->setIcon(glyphIcon(Glyph::Next));
    auto *transport = new QHBoxLayout;
    transport->setSpacing(8);
    // Play stands in the middle of an odd number of places: the place behind "next" stays free.
    for (QToolButton *button : {stop, previous, start, next})
        transport->addWidget(button);
    transport->addSpacing(buttonSize + 8);

    auto *speaker = new QLabel(this);
    speaker->setPixmap(glyphIcon(Glyph::Speaker).pixmap(iconSize, iconSize));
    volume = new QSlider(Qt::Horizontal, this);
    volume->setRange(0, 100);
    volume->setValue(100);
    volume->setFixedWidth(volumeWidth);
    volume->setAccessibleName(tr("音量"));
    volume->setToolTip(tr("音量；100% 不改变样本"));
    m_volumeText = new QLabel(this);
    m_volumeText->setObjectName("vesperVolume"_L1);
    m_volumeText->setFont(figureFont(figurePixels));
    m_volumeText->setFixedWidth(QFontMetrics(m_volumeText->font()).horizontalAdvance(u"100%"_s) + 4);
    m_volumeText->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    connect(volume, &QSlider::valueChanged, m_volumeText,
            [this](int value) { m_volumeText->setText(u"%1%"_s.arg(value)); });
    m_volumeText->setText(u"100%"_s);
    auto *right = new QHBoxLayout;
    right->setSpacing(8);
    right->addStretch();
    right->addWidget(speaker);
    right->addWidget(volume);
    right->addWidget(m_volumeText);

    auto *columns = new QGridLayout(this);
    columns->setContentsMargins(16, 0, 16, 0);
    columns->setHorizontalSpacing(12);
    columns->addLayout(now, 0, 0);
    columns->addLayout(transport, 0, 1);
    columns->addLayout(right, 0, 2);
    columns->setColumnStretch(0, 1);
    columns->setColumnStretch(2, 1);
    // Equal outer columns, whatever stands in them, keep the middle in the middle.
    columns->setColumnMinimumWidth(0, 200);
    columns->setColumnMinimumWidth(2, 200);
    showStartAs(false, tr("播放"));
    showTrack(u"NO DISC"_s, tr("选择曲目或导入音频"));
}

QToolButton *DockBar::addButton(const QString &name, const QString &tip)
{
    auto *button = new QToolButton(this);
    button->setText(name);
    button->setAccessibleName(name);
    button->setToolTip(tip);
    button->setFixedSize(buttonSize, buttonSize);
    button->setIconSize({iconSize, iconSize});
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

void DockBar::showTrack(const QString &title, const QString &secondLine)
{
    m_titleText = title;
    m_secondText = secondLine;
    elideTitle();
}

void DockBar::showVolume(int percent)
{
    const QSignalBlocker quiet(volume);
    volume->setValue(percent);
    m_volumeText->setText(u"%1%"_s.arg(volume->value()));
}

void DockBar::showStartAs(bool pauses, const QString &caption)
{
    start->setIcon(glyphIcon(pauses ? Glyph::Pause : Glyph::Play));
    start->setText(caption);
    start->setAccessibleName(caption);
    start->setToolTip(caption);
}

void DockBar::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    elideTitle();
}

void DockBar::elideTitle()
{
    const auto fit = [](QLabel *line, const QString &text) {
        const int room = std::max(line->width(), 40);
        const QString shown = line->fontMetrics().elidedText(text, Qt::ElideRight, room);
        line->setText(shown);
        line->setToolTip(shown == text ? QString() : text);
    };
    fit(m_title, m_titleText);
    fit(m_second, m_secondText);
}
