#include "ui/spoken_value.h"

#include <QAccessibleWidget>

namespace {

class SpeakingWidget final : public QAccessibleWidget
{
public:
    SpeakingWidget(QWidget *widget, const SpokenValue *value)
        : QAccessibleWidget(widget, QAccessible::Indicator)
        , m_value(value)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? m_value->spokenValue() : QAccessibleWidget::text(kind);
    }

private:
    const SpokenValue *m_value; ///< the widget itself; this object goes before it
};

QAccessibleInterface *speakingInterface(const QString &, QObject *object)
{
    auto *widget = qobject_cast<QWidget *>(object);
    const auto *value = dynamic_cast<const SpokenValue *>(widget);
    return value ? new SpeakingWidget(widget, value) : nullptr;
}

} // namespace

void SpokenValue::install()
{
    QAccessible::removeFactory(speakingInterface);
    QAccessible::installFactory(speakingInterface);
}
