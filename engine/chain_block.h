/// \file
/// The block of lines in which the engine reports its signal chain, and the facts of it by label.
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <QStringView>
#include <array>

/// In the order in which they are tried and shown.
inline constexpr std::array<QLatin1StringView, 12> chainLabelNames = {QLatin1StringView("source:"),
                                                                      QLatin1StringView("source format:"),
                                                                      QLatin1StringView("device requested:"),
                                                                      QLatin1StringView("output backend:"),
                                                                      QLatin1StringView("output format:"),
                                                                      QLatin1StringView("output latency:"),
                                                                      QLatin1StringView("dsp:"),
                                                                      QLatin1StringView("speed:"),
                                                                      QLatin1StringView("volume:"),
                                                                      QLatin1StringView("bit-perfect:"),
                                                                      QLatin1StringView("chain:"),
                                                                      QLatin1StringView("underruns:")};

/// A block without an end keeps collecting until the next begin; beyond this many lines it keeps no more.
inline constexpr qsizetype mostChainLines = 4096;

struct ChainBlock
{
    QStringList chainBuffer; ///< the lines between the markers; whoever shows them empties it
    bool collecting = false;
    QMap<QString, QString> chainLabels; ///< from a label to the rest of its latest line, trimmed
};

/// Takes a line into the block.
/// \return whether the line ends a block, which is then to be shown
bool collectChainLine(ChainBlock &block, const QString &text);

/// Stores a line that begins with one of the labels.
/// \return whether it did
bool storeChainLabel(ChainBlock &block, QStringView text);

/// All stored facts as lines, in the order of the labels.
QString chainLabelsText(const QMap<QString, QString> &chainLabels);
