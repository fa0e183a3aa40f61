#include "ui/display_panel.h"

#include "ui/style_sheet.h"

#include <QHBoxLayout>
#include <QStyle>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int captionPixels = 11;
constexpr int timePixels = 30;
constexpr int titlePixels = 26;

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

} // namespace

DisplayPanel::DisplayPanel(QWidget *parent)
    : QFrame(parent)
    , m_meta(label(this, "vesperVfdMeta"_L1))
    , m_format(label(this, "vesperVfdFormat"_L1))
    , m_title(label(this, "vesperVfdTitle"_L1))
    , m_second(label(this, "vesperVfdArtist"_L1))
    , m_signal(label(this, "vesperVfdSignal"_L1))
    , m_levels(label(this, "vesperVfdLevels"_L1))
    , m_time(label(this, "vesperVfdTime"_L1))
    , m_status(label(this, "vesperVfdStatus"_L1))
{
    setObjectName("vesperVfd"_L1);
    for (QLabel *caption : {m_meta, m_format, m_signal, m_levels, m_status})
        caption->setFont(figureFont(captionPixels));
    m_time->setFont(figureFont(timePixels));
    m_title->setAccessibleName(tr("曲名"));
    m_time->setAccessibleName(tr("位置"));
    m_title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    for (QLabel *elastic : {m_second, m_signal})
        elastic->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);

    auto *top = new QHBoxLayout;
    top->addWidget(m_meta);
    top->addStretch();
    top->addWidget(m_format);
    auto *line = new QFrame(this);
    line->setObjectName("vesperVfdLine"_L1);
    line->setFixedHeight(1);
    auto *facts = new QHBoxLayout;
    facts->addWidget(m_signal, 1);
    facts->addWidget(m_levels);
    auto *bottom = new QHBoxLayout;
    bottom->addWidget(m_time);
    bottom->addStretch();
    bottom->addWidget(m_status, 0, Qt::AlignBottom);

    auto *box = new QVBoxLayout(this);
    box->setContentsMargins(20, 16, 20, 16);
    box->setSpacing(12);
    box->addLayout(top);
    box->addWidget(m_title);
    box->addWidget(m_second);
    box->addStretch();
    box->addLayout(facts);
    box->addWidget(line);
    box->addLayout(bottom);
    showTrack(-1, {}, {}, {});
    showTime(u"0:00 / 0:00"_s);
    showStatus(u"■ STOP"_s, false);
}

void DisplayPanel::showTrack(int row, const QString &title, const QString &secondLine, const QString &format)
{
    const bool idle = row < 0;
    m_meta->setText(idle ? u"TRACK --"_s : u"TRACK %1"_s.arg(row + 1, 2, 10, QChar(u'0')));
    m_titleText = idle ? u"NO DISC"_s : title;
    m_title->setToolTip(m_titleText);
    m_second->setText(idle ? tr("选择曲目或导入音频") : secondLine);
    m_second->setToolTip(secondLine);
    showFormat(idle || format.isEmpty() ? u"AUDIO"_s : format);
    fitTitle();
}

void DisplayPanel::showFormat(const QString &format)
{
    m_format->setText(format);
}

void DisplayPanel::showTime(const QString &text, const QString &tip)
{
    m_time->setText(text);
    m_time->setToolTip(tip);
}

void DisplayPanel::showStatus(const QString &word, bool sounding)
{
    m_status->setText(word);
    for (QWidget *lit :
         {static_cast<QWidget *>(m_status), static_cast<QWidget *>(m_time), static_cast<QWidget *>(m_meta)})
        setSounding(lit, sounding);
}

void DisplayPanel::showLevels(double leftDb, double rightDb)
{
    m_levels->setText(u"L %1  R %2 dB"_s.arg(leftDb, 6, 'f', 1).arg(rightDb, 6, 'f', 1));
}

void DisplayPanel::showSignal(const QString &words, const QString &tip, bool warns)
{
    m_signal->setText(words);
    m_signal->setToolTip(tip);
    if (m_signal->property("chainWarn").toBool() == warns)
        return;
    m_signal->setProperty("chainWarn", warns);
    m_signal->style()->unpolish(m_signal);
    m_signal->style()->polish(m_signal);
}

void DisplayPanel::showChainFacts(const QString &lines)
{
    m_format->setToolTip(lines);
}

void DisplayPanel::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    fitTitle();
}

void DisplayPanel::fitTitle()
{
    QFont font = m_title->font();
    font.setPixelSize(titlePixels);
    const QMargins margins = layout()->contentsMargins();
    const int room = width() - margins.left() - margins.right();
    m_title->setText(QFontMetrics(font).elidedText(m_titleText, Qt::ElideRight, std::max(room, 40)));
}
