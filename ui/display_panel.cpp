#include "ui/display_panel.h"

#include "ui/elided_label.h"
#include "ui/fitted_title.h"
#include "ui/style_sheet.h"

#include <QHBoxLayout>
#include <QStyle>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int captionPixels = 11;
constexpr int metaPixels = 12;
constexpr double totalPart = 0.6; ///< of the position's size

QLabel *label(QWidget *parent, QLatin1StringView objectName, const QString &text = {})
{
    auto *made = new QLabel(text, parent);
    made->setObjectName(objectName);
    made->setTextFormat(Qt::PlainText);
    return made;
}

void setSounding(QWidget *widget, bool sounding)
{
    if (widget->property("sounding").toBool() == sounding)
        return;
    widget->setProperty("sounding", sounding);
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

QFont trackedFont(int pixels)
{
    QFont font = figureFont(pixels);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 0.08 * pixels);
    return font;
}

} // namespace

DisplayPanel::DisplayPanel(QWidget *parent)
    : QFrame(parent)
    , m_screen(new QFrame(this))
    , m_meta(label(m_screen, "vesperVfdMeta"_L1))
    , m_format(label(m_screen, "vesperVfdFormat"_L1))
    , m_title(new FittedTitle(m_screen))
    , m_artist(new ElidedLabel(m_screen))
    , m_album(new ElidedLabel(m_screen))
    , m_time(label(m_screen, "vesperVfdTime"_L1))
    , m_total(label(m_screen, "vesperVfdTotal"_L1))
    , m_status(label(m_screen, "vesperVfdStatus"_L1))
{
    setObjectName("vesperVfd"_L1);
    m_screen->setObjectName("vesperVfdScreen"_L1);
    m_title->setObjectName("vesperVfdTitle"_L1);
    m_artist->setObjectName("vesperVfdArtist"_L1);
    m_album->setObjectName("vesperVfdAlbum"_L1);
    m_meta->setFont(trackedFont(metaPixels));
    m_format->setFont(figureFont(captionPixels));
    m_status->setFont(trackedFont(captionPixels));
    m_time->setAccessibleName(tr("位置"));
    m_total->setAccessibleName(tr("总长"));

    auto *top = new QHBoxLayout;
    top->addWidget(m_meta);
    top->addStretch();
    top->addWidget(m_format);
    auto *line = new QFrame(m_screen);
    line->setObjectName("vesperVfdLine"_L1);
    line->setFixedHeight(1);
    // Time runs from left to right in every language.
    auto *times = new QWidget(m_screen);
    times->setLayoutDirection(Qt::LeftToRight);
    auto *pair = new QHBoxLayout(times);
    pair->setContentsMargins(0, 0, 0, 0);
    pair->setSpacing(10);
    pair->addWidget(m_time, 0, Qt::AlignBottom);
    pair->addWidget(m_total, 0, Qt::AlignBottom);
    auto *bottom = new QHBoxLayout;
    bottom->addWidget(times, 0, Qt::AlignBottom);
    bottom->addStretch();
    bottom->addWidget(m_status, 0, Qt::AlignBottom);

    auto *outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(m_screen);
    auto *box = new QVBoxLayout(m_screen);
    box->addLayout(top);
    box->addWidget(m_title);
    box->addWidget(m_artist);
    box->addWidget(m_album);
    box->addStretch();
    box->addWidget(line);
    box->addLayout(bottom);
    applyPlan({});
    showTime(u"0:00 / 0:00"_s);
    showStatus(u"■ STOP"_s, false);
}

void DisplayPanel::showTrack(const DisplayedTrack &track)
{
    m_meta->setText(track.meta);
    m_title->setText(track.title);
    m_artist->setWhole(track.artist);
    m_album->setWhole(track.album);
    m_format->setText(track.format);
}

void DisplayPanel::showTime(const QString &position, const QString &tip)
{
    const QString separator = u" / "_s;
    m_time->setText(position.section(separator, 0, 0));
    const QString total = position.section(separator, 1);
    m_total->setText(total.isEmpty() ? QString() : u"/ "_s + total);
    m_time->setToolTip(tip);
    m_total->setToolTip(tip);
}

void DisplayPanel::showStatus(const QString &word, bool sounding)
{
    m_status->setText(word);
    for (QWidget *lit : {m_status, m_time, m_meta})
        setSounding(lit, sounding);
}

void DisplayPanel::applyPlan(const AreaPlan &plan)
{
    m_mostTitlePixels = plan.mostTitlePixels;
    m_album->setVisible(plan.showsAlbum);
    if (std::exchange(m_timePixels, plan.timePixels) != plan.timePixels) {
        QFont time = figureFont(plan.timePixels);
        time.setLetterSpacing(QFont::AbsoluteSpacing, -0.03 * plan.timePixels);
        m_time->setFont(time);
        m_total->setFont(figureFont(static_cast<int>(plan.timePixels * totalPart)));
        if (testAttribute(Qt::WA_WState_Polished))
            alignTimes();
    }
    const int side = plan.compact ? 14 : 20;
    const int ends = plan.compact ? 10 : 16;
    m_screen->layout()->setContentsMargins(side, ends, side, ends);
    m_screen->layout()->setSpacing(plan.compact ? 6 : 10);
    fitTitle();
}

void DisplayPanel::alignTimes()
{
    for (QLabel *smaller : {m_total, m_status})
        smaller->setContentsMargins(0, 0, 0,
                                    m_time->fontMetrics().descent() - smaller->fontMetrics().descent());
}

bool DisplayPanel::event(QEvent *event)
{
    const bool done = QFrame::event(event);
    if (event->type() == QEvent::Polish)
        alignTimes();
    return done;
}

void DisplayPanel::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    fitTitle();
}

void DisplayPanel::fitTitle()
{
    if (!testAttribute(Qt::WA_Resized)) {
        // Not measured: the height is not known yet, and the fonts may still be being listed.
        m_title->setRoom(m_mostTitlePixels, 0);
        return;
    }
    const QLayout &box = *m_screen->layout();
    const QMargins margins = box.contentsMargins();
    int others =
        margins.top() + margins.bottom() + m_format->sizeHint().height() + 1 + m_time->sizeHint().height();
    int gaps = 4;
    for (const QWidget *line : {static_cast<QWidget *>(m_artist), static_cast<QWidget *>(m_album)}) {
        if (!line->isVisibleTo(m_screen))
            continue;
        others += line->sizeHint().height();
        ++gaps;
    }
    m_title->setRoom(m_mostTitlePixels, height() - others - gaps * box.spacing());
}
