/// \file
/// What the value cards say of the source.
#pragma once

#include "engine/source_labels.h"

#include <QString>
#include <optional>

/// Texts of the value cards; an empty one is shown as not known.
struct ChainCardTexts
{
    QString bitrate;
    QString sampleRate;
    QString sampleRateTip; ///< the format in full
    QString channels;
    std::optional<int> plays;

    bool operator==(const ChainCardTexts &) const = default;
};

/// Without the plays, which the engine does not know.
ChainCardTexts chainCardTexts(const SourceInfo &source, const SourceLabels &labels);
