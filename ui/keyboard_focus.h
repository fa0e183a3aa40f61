/// \file
/// A focus that came by a key is shown; one that came by the mouse is not.
#pragma once

#include <QObject>
#include <QPointer>

class QFocusEvent;
class QWidget;

/// Watches where the focus goes and keeps the property "keyFocus" of the widget that has it. The sheet draws
/// its ring by it, painted widgets ask isOn(). Whoever works with the mouse sees none, also where the toolkit
/// moves the focus on as a key would: in a dialog that opens, and away from a button that is disabled.
class KeyboardFocus final : public QObject
{
    Q_OBJECT

public:
    /// Once a program; a second call does nothing.
    static void install();
    static bool isOn(const QWidget *widget);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using QObject::QObject;
    void follow(QWidget *widget, const QFocusEvent &event);

    QPointer<QWidget> m_marked;
    bool m_keyWasLast = false; ///< the listener has pressed a key, and not the mouse since
};
