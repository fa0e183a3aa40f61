#include "ui/dock_bar.h"

#include "ui/elided_label.h"
#include "ui/glyph_icons.h"
#include "ui/mini_cover.h"
#include "ui/style_sheet.h"

#include <QGridLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int figurePixels = 12;
constexpr int buttonGap = 6;
constexpr int leastNow = 200;

} // namespace

DockBar::DockBar(QWidget *parent)
    : QFrame(parent)
{
    setObjectName("vesperDock"_L1);
    setFixedHeight(areas::dock);
    auto *columns = new QGridLayout(this);
    columns->setContentsMargins(16, 0, 16, 0);
    columns->setHorizontalSpacing(12);
    columns->addWidget(area("vesperNow"_L1, buildNow()), 0, 0);
    columns->addWidget(buildTransport(), 0, 1);
    columns->addWidget(area("vesperDockRight"_L1, buildRight()), 0, 2);
    // Equal outer columns, whatever stands in them, keep the middle in the middle.
    for (const int outer : {0, 2}) {
        columns->setColumnStretch(outer, 1);
        columns->setColumnMinimumWidth(outer, leastNow);
    }
    showStartAs(false, tr("播放"));
    showModes(0, 0);
    showTrack(u"NO DISC"_s, tr("选择曲目或导入音频"));
    showVolume(100);
}

QWidget *DockBar::area(QLatin1StringView name, QLayout *content)
{
    auto *made = new QWidget(this);
    made->setObjectName(name);
    // It never asks for more than its column: what stands in it elides.
    made->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    content->setContentsMargins(0, 0, 0, 0);
    made->setLayout(content);
    return made;
}

QLayout *DockBar::buildNow()
{
    auto *now = new QHBoxLayout;
    now->setSpacing(12);
    miniCover = new MiniCover(this);
    now->addWidget(miniCover);
    auto *lines = new QVBoxLayout;
    lines->setSpacing(1);
    m_title = new ElidedLabel(this);
    m_title->setObjectName("vesperNowTitle"_L1);
    m_second = new ElidedLabel(this);
    m_second->setObjectName("vesperNowArtist"_L1);
    lines->addStretch();
    lines->addWidget(m_title);
    lines->addWidget(m_second);
    lines->addStretch();
    now->addLayout(lines, 1);
    return now;
}

QWidget *DockBar::buildTransport()
{
    auto *transport = new QWidget(this);
    transport->setLayoutDirection(Qt::LeftToRight);
    const auto add = [&](Glyph glyph, const QString &name, const QString &tip) {
        return addButton(transport, glyph, name, tip);
    };
    order = add(Glyph::OrderSequential, tr("播放顺序"), {});
    stop = add(Glyph::Stop, tr("停止"), tr("停止播放"));
    previous = add(Glyph::Previous, tr("上一首"), tr("播放上一首"));
    start = add(Glyph::Play, tr("播放"), tr("播放选中的曲目"));
    start->setObjectName("vesperPlay"_L1);
    next = add(Glyph::Next, tr("下一首"), tr("播放下一首"));
    repeat = add(Glyph::RepeatOff, tr("循环"), {});
    lyrics = add(Glyph::Lyrics, tr("歌词"), tr("歌词还没有做好，这个按钮以后才能用"));
    lyrics->setEnabled(false);
    auto *row = new QHBoxLayout(transport);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(buttonGap);
    for (QWidget *button :
         std::initializer_list<QWidget *>{order, stop, previous, start, next, repeat, lyrics})
        row->addWidget(button);
    return transport;
}

QLayout *DockBar::buildRight()
{
    // Loud is at the right in every language, as it is on the front of an amplifier.
    auto *level = new QWidget(this);
    level->setLayoutDirection(Qt::LeftToRight);
    mute = addButton(level, Glyph::VolumeHigh, tr("静音"), tr("静音；再按一次回到原来的音量"));
    volume = new QSlider(Qt::Horizontal, level);
    volume->setRange(0, 100);
    volume->setAccessibleName(tr("音量"));
    volume->setToolTip(tr("音量；100% 不改变样本"));
    m_volumeText = new QLabel(level);
    m_volumeText->setObjectName("vesperVolume"_L1);
    m_volumeText->setFont(figureFont(figurePixels));
    m_volumeText->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    connect(volume, &QSlider::valueChanged, this, &DockBar::refreshVolume);
    tools = new QPushButton(tr("工具"), this);
    tools->setObjectName("vesperToolsBtn"_L1);
    tools->setIcon(glyphIcon(Glyph::ChevronUp));
    // The sign opens upward, at the end of the word.
    tools->setLayoutDirection(tools->layoutDirection() == Qt::RightToLeft ? Qt::LeftToRight
                                                                          : Qt::RightToLeft);
    tools->setToolTip(tr("曲库、标签、网络等工具"));
    auto *levelRow = new QHBoxLayout(level);
    levelRow->setContentsMargins(0, 0, 0, 0);
    levelRow->setSpacing(8);
    levelRow->addWidget(mute);
    levelRow->addWidget(volume);
    levelRow->addWidget(m_volumeText);
    // What a wide window leaves over stands before it, not inside it.
    level->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    auto *right = new QHBoxLayout;
    right->setSpacing(8);
    right->addStretch();
    right->addWidget(level);
    right->addSpacing(8);
    right->addWidget(tools);
    return right;
}

IconButton *DockBar::addButton(QWidget *parent, Glyph glyph, const QString &name, const QString &tip)
{
    auto *button = new IconButton(glyph, name, parent,
                                  glyph == Glyph::Play ? IconButton::Look::Play : IconButton::Look::Plain);
    if (!tip.isEmpty())
        button->setToolTip(tip);
    return button;
}

void DockBar::showTrack(const QString &title, const QString &secondLine)
{
    m_title->setWhole(title);
    m_second->setWhole(secondLine);
}

void DockBar::showCover(const QImage &cover)
{
    miniCover->showCover(cover);
}

void DockBar::showVolume(int percent)
{
    const QSignalBlocker quiet(volume);
    volume->setValue(percent);
    refreshVolume(volume->value());
}

void DockBar::refreshVolume(int percent)
{
    m_volumeText->setText(u"%1%"_s.arg(percent));
    mute->setGlyph(volumeGlyph(percent));
}

void DockBar::showStartAs(bool pauses, const QString &caption)
{
    start->setGlyph(pauses ? Glyph::Pause : Glyph::Play);
    start->setName(caption);
}

void DockBar::showModes(int orderAxis, int repeatAxis)
{
    const bool random = orderAxis == 1;
    order->setGlyph(random ? Glyph::OrderRandom : Glyph::OrderSequential);
    order->setLit(random);
    order->setName(random ? tr("播放顺序：随机") : tr("播放顺序：按列表"));
    repeat->setGlyph(repeatAxis == 2   ? Glyph::RepeatTrack
                     : repeatAxis == 1 ? Glyph::RepeatList
                                       : Glyph::RepeatOff);
    repeat->setLit(repeatAxis != 0);
    repeat->setName(repeatAxis == 2   ? tr("循环：单曲")
                    : repeatAxis == 1 ? tr("循环：整个列表")
                                      : tr("循环：关闭"));
}

void DockBar::applyPlan(const AreaPlan &plan)
{
    volume->setFixedWidth(plan.volumeWidth);
    // Measured here and not while the widgets are built: then the fonts are still being listed.
    m_volumeText->setFixedWidth(QFontMetrics(m_volumeText->font()).horizontalAdvance(u"100%"_s) + 4);
}

QList<QWidget *> DockBar::controls() const
{
    return {order, stop, previous, start, next, repeat, lyrics, mute, volume, tools};
}
