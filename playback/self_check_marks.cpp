#include "playback/self_check_marks.h"

#include <QGridLayout>
#include <QPainter>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace {

constexpr int markSize = 32;
constexpr int ringOpacity = 30;

QLabel *addLabel(QFrame *parent, QLatin1StringView objectName)
{
    auto *label = new QLabel(parent);
    label->setObjectName(objectName);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    // With the interface, not with the script of each text.
    label->setAlignment((parent->isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute |
                        Qt::AlignVCenter);
    return label;
}

} // namespace

CheckMarkView::CheckMarkView(QWidget *parent)
    : QLabel(parent)
{
    setObjectName("vesperCheckMark"_L1);
    setFixedSize(markSize, markSize);
    setMark(CheckMark::Pending);
}

void CheckMarkView::setMark(CheckMark mark)
{
    static constexpr std::array names = {"pending"_L1, "proved"_L1, "disproved"_L1, "unproved"_L1};
    static constexpr std::array words = {QT_TR_NOOP("等待中"), QT_TR_NOOP("已证明"), QT_TR_NOOP("已证伪"),
                                         QT_TR_NOOP("此处无法证明")};
    m_mark = mark;
    const auto index = static_cast<std::size_t>(mark);
    setAccessibleName(tr(words[index]));
    setToolTip(accessibleName());
    setProperty("mark", QString(names[index]));
    style()->unpolish(this);
    style()->polish(this);
    update();
}

void CheckMarkView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ink = palette().color(QPalette::WindowText);
    QColor fill = ink;
    fill.setAlpha(ringOpacity);
    painter.setPen(QPen(ink, 1.));
    painter.setBrush(fill);
    painter.drawEllipse(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    painter.setPen(QPen(ink, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    switch (m_mark) {
    case CheckMark::Proved:
        painter.drawPolyline(QPolygonF({{10.5, 16.5}, {14.5, 20.5}, {21.5, 12.}}));
        break;
    case CheckMark::Disproved:
        painter.drawLine(QPointF(11.5, 11.5), QPointF(20.5, 20.5));
        painter.drawLine(QPointF(20.5, 11.5), QPointF(11.5, 20.5));
        break;
    case CheckMark::NotProvable:
        painter.drawLine(QPointF(11., 16.), QPointF(21., 16.));
        break;
    case CheckMark::Pending:
        for (const double x : {11., 16., 21.})
            painter.drawPoint(QPointF(x, 16.));
        break;
    }
}

CheckStatementView::CheckStatementView(QWidget *parent)
    : QFrame(parent)
    , m_mark(new CheckMarkView(this))
    , m_head(addLabel(this, "vesperCheckHead"_L1))
    , m_sentence(addLabel(this, "vesperCheckText"_L1))
    , m_evidence(addLabel(this, "vesperCheckEvidence"_L1))
{
    setObjectName("vesperCheckStatement"_L1);
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(24, 12, 24, 12);
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(4);
    grid->addWidget(m_mark, 0, 0, 3, 1, Qt::AlignTop);
    grid->addWidget(m_head, 0, 1);
    grid->addWidget(m_sentence, 1, 1);
    grid->addWidget(m_evidence, 2, 1);
    grid->setColumnStretch(1, 1);
}

void CheckStatementView::show(const CheckStatement &statement)
{
    m_mark->setMark(statement.mark);
    m_head->setText(statement.head);
    m_sentence->setText(statement.sentence);
    m_evidence->setText(statement.evidence);
    m_evidence->setToolTip(statement.evidence.toHtmlEscaped());
    setAccessibleName(m_mark->accessibleName() + u": "_s + statement.head);
}
