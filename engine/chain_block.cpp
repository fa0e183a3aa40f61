#include "engine/chain_block.h"

#include <algorithm>

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
    return true;
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
