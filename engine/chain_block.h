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

    // A fact belongs to the track that it was told of. The map above outlives its track; what is shown does
    // not.
    int track = 0;               ///< of the facts that count now, raised at every change of track
    bool announced = false;      ///< the engine has begun to tell of that track
    bool announcedEarly = false; ///< it did so before the window knew of the change
    QMap<QString, int> toldOf;   ///< from a label to the track that its latest line was told of
};

/// Takes a line into the block.
/// \return whether the line ends a block, which is then to be shown
bool collectChainLine(ChainBlock &block, const QString &text);

/// Stores a line that begins with one of the labels.
/// \return whether it did
bool storeChainLabel(ChainBlock &block, QStringView text);

/// The window begins with another track. What the engine has told of it in advance stays; without that
/// nothing is known until it is announced. \param playedOn the engine went on by itself, and may have told of
/// the new track before the window knew
void beginChainTrack(ChainBlock &block, bool playedOn);

/// The engine tells which source it plays.
/// \return whether that is another track than the one it told of before
bool announceChainTrack(ChainBlock &block);

/// The facts of the present track alone.
QMap<QString, QString> currentChainLabels(const ChainBlock &block);

/// All stored facts as lines, in the order of the labels.
QString chainLabelsText(const QMap<QString, QString> &chainLabels);
