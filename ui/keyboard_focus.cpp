#include "ui/keyboard_focus.h"

#include <QApplication>
#include <QFocusEvent>
#include <QStyle>
#include <QWidget>

namespace {

constexpr auto focusProperty = "keyFocus";

void mark(QWidget *widget, bool on)
{
    if (KeyboardFocus::isOn(widget) == on)
        return;
    widget->setProperty(focusProperty, on);
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
    widget->update();
}

} // namespace

void KeyboardFocus::install()
{
    static bool installed = false;
    if (std::exchange(installed, true))
        return;
    qApp->installEventFilter(new KeyboardFocus(qApp));
}

bool KeyboardFocus::isOn(const QWidget *widget)
{
    return widget->property(focusProperty).toBool();
}

bool KeyboardFocus::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
        m_keyWasLast = true;
        break;
    case QEvent::MouseButtonPress:
    case QEvent::TouchBegin:
        m_keyWasLast = false;
        break;
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        if (watched->isWidgetType())
            follow(static_cast<QWidget *>(watched), *static_cast<QFocusEvent *>(event));
        break;
    default:
        break;
    }
    return false;
}

void KeyboardFocus::follow(QWidget *widget, const QFocusEvent &event)
{
    const Qt::FocusReason reason = event.reason();
    // A menu, or another window, only borrows the focus: what it leaves comes back as it was, unless the
    // focus has been moved in the meantime.
    if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason) {
        if (event.lostFocus() || !m_marked || m_marked == widget || m_marked->window() != widget->window())
            return;
        mark(m_marked, false);
        mark(widget, true);
        m_marked = widget;
        return;
    }
    const bool byKey =
        reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
    const bool on = event.gotFocus() && byKey && m_keyWasLast;
    mark(widget, on);
    if (on)
        m_marked = widget;
    else if (m_marked == widget)
        m_marked.clear();
}
