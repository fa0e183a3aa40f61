#include "playback/container_overlay.h"

#include <QCoreApplication>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("ContainerOverlay", source);
}

const QString &chosen(const QString &preferred, const QString &fallback)
{
    return preferred.isEmpty() ? fallback : preferred;
}

} // namespace

std::optional<OverlayResult> overlayContainerRow(const OverlayInput &input)
{
    if (input.container.isEmpty() || input.track < 1)
        return std::nullopt;
    const ContainerTrackTags tags = input.stored.value_or(ContainerTrackTags());
    OverlayResult row;
    row.text = chosen(tags.title, input.fallbackTitle);
    const QString &performer = chosen(tags.performer, input.fallbackPerformer);
    if (!performer.isEmpty() && !row.text.contains(performer))
        row.text += u" — "_s + performer;

    QStringList lines{text(QT_TRANSLATE_NOOP("ContainerOverlay", "%1\n轨 %2"))
                          .arg(input.container, QString::number(input.track))};
    if (!input.stored) {
        lines +=
            text(QT_TRANSLATE_NOOP("ContainerOverlay", "(标签来自容器自带的信息; 本地库里没有额外的标签)"));
    } else {
        if (!tags.album.isEmpty())
            lines += text(QT_TRANSLATE_NOOP("ContainerOverlay", "专辑: %1")).arg(tags.album);
        if (!tags.year.isEmpty())
            lines += text(QT_TRANSLATE_NOOP("ContainerOverlay", "年份: %1")).arg(tags.year);
        lines +=
            text(QT_TRANSLATE_NOOP("ContainerOverlay", "(标签来自本地库 —— 没有往 ISO/CUE 里写任何东西)"));
    }
    row.toolTip = lines.join(u'\n');
    return row;
}
