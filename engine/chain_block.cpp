#include "engine/chain_block.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

bool collectChainLine(ChainBlock &block, const QString &text)
{
    const bool begins = text.contains("SIGNAL CHAIN BEGIN"_L1);
    const bool ends = text.contains("SIGNAL CHAIN END"_L1);
    if (begins) {
        block.chainBuffer.clear();
        block.collecting = true;
    } else if (block.collecting && !ends && block.chainBuffer.size() < mostChainLines) {
        block.chainBuffer.append(text);
    }
    if (ends)
        block.collecting = false;
    return ends;
}

bool storeChainLabel(ChainBlock &block, QStringView text)
{
    const auto *const label =
        std::ranges::find_if(chainLabelNames, [&](QLatin1StringView name) { return text.startsWith(name); });
    if (label == chainLabelNames.end())
        return false;
    block.chainLabels.insert(*label, text.sliced(label->size()).trimmed().toString());
    // The block's first line says whose facts follow, also where no other line has announced the track.
    if (*label == chainLabelNames.front())
        block.announced = true;
    block.toldOf.insert(*label, block.announced ? block.track : block.track - 1);
    return true;
}

void beginChainTrack(ChainBlock &block, bool playedOn)
{
    if (playedOn && std::exchange(block.announcedEarly, false))
        return;
    ++block.track;
    block.announced = false;
    block.announcedEarly = false;
}

bool announceChainTrack(ChainBlock &block)
{
    if (!std::exchange(block.announced, true))
        return false;
    ++block.track;
    block.announcedEarly = true;
    return true;
}

QMap<QString, QString> currentChainLabels(const ChainBlock &block)
{
    QMap<QString, QString> labels;
    for (auto it = block.chainLabels.cbegin(); it != block.chainLabels.cend(); ++it) {
        if (block.toldOf.value(it.key(), -1) == block.track)
            labels.insert(it.key(), it.value());
    }
    return labels;
}

QString chainLabelsText(const QMap<QString, QString> &chainLabels)
{
    QStringList lines;
    for (const QLatin1StringView label : chainLabelNames) {
        if (const auto found = chainLabels.constFind(label); found != chainLabels.constEnd())
            lines.append(u"%1 %2"_s.arg(label, found.value()));
    }
    return lines.join(u'\n');
}
