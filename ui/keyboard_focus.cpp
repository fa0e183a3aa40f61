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
    const QEvent::Type type = event->type();
    if ((type != QEvent::FocusIn && type != QEvent::FocusOut) || !watched->isWidgetType())
        return false;
    auto *widget = static_cast<QWidget *>(watched);
    const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
    // A menu, or another window, only borrows the focus: what it leaves comes back as it was.
    if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason)
        return false;
    const bool byKey =
        reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
    mark(widget, type == QEvent::FocusIn && byKey);
    return false;
}
