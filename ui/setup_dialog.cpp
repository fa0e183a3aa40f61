#include "ui/setup_dialog.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QSlider>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace {

constexpr QSize initialSize(860, 640);
constexpr QSize leastSize(520, 420);

bool turnsWithTheWheel(const QWidget *widget)
{
    return qobject_cast<const QComboBox *>(widget) || qobject_cast<const QAbstractSpinBox *>(widget) ||
           qobject_cast<const QSlider *>(widget);
}

} // namespace

SetupDialog::SetupDialog(QWidget *parent)
    : QDialog(parent)
{
    setObjectName("vesperSetup");
    setWindowTitle(tr("设置"));
    setMinimumSize(leastSize);
    resize(initialSize);
    auto *inside = new QWidget(this);
    m_sections = new QVBoxLayout(inside);
    m_sections->setContentsMargins(24, 24, 24, 24);
    m_sections->setSpacing(12);
    m_sections->addStretch();
    auto *scroller = new QScrollArea(this);
    scroller->setObjectName("vesperSetupPage");
    scroller->setWidget(inside);
    scroller->setWidgetResizable(true);
    scroller->setFrameShape(QFrame::NoFrame);
    scroller->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroller->setFocusPolicy(Qt::NoFocus);
    auto *buttons = new QDialogButtonBox(this);
    buttons->setContentsMargins(24, 12, 24, 12);
    QPushButton *close = buttons->addButton(tr("关闭"), QDialogButtonBox::RejectRole);
    close->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(scroller, 1);
    rows->addWidget(buttons);
}

void SetupDialog::addSection(const QString &title, QWidget *section)
{
    // Before the stretch that keeps the sections at the top.
    int place = m_sections->count() - 1;
    if (!title.isEmpty()) {
        auto *caption = new QLabel(title, this);
        caption->setObjectName("vesperSectionTitle");
        m_sections->insertWidget(place++, caption);
    }
    m_sections->insertWidget(place, section);
}

void SetupDialog::showEvent(QShowEvent *event)
{
    for (QWidget *widget : findChildren<QWidget *>()) {
        if (!turnsWithTheWheel(widget))
            continue;
        if (widget->focusPolicy() == Qt::WheelFocus)
            widget->setFocusPolicy(Qt::StrongFocus);
        widget->installEventFilter(this);
    }
    QDialog::showEvent(event);
}

bool SetupDialog::eventFilter(QObject *watched, QEvent *event)
{
    const auto *control = qobject_cast<QWidget *>(watched);
    if (event->type() != QEvent::Wheel || !control || control->hasFocus())
        return QDialog::eventFilter(watched, event);
    // What is ignored goes on to the page.
    event->ignore();
    return true;
}
