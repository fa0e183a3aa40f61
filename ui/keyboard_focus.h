/// \file
/// A focus that came by a key is shown; one that came by the mouse is not.
#pragma once

#include <QObject>

class QWidget;

/// Watches where the focus goes and keeps the property "keyFocus" of the widget that has it. The sheet draws
/// its ring by it, painted widgets ask isOn().
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
};
