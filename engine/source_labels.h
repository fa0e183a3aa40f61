/// \file
/// The words for what is played.
#pragma once

#include "engine/telemetry_lines.h"

#include <QString>
#include <optional>

/// Texts of the labels that describe the source, translated where they are words.
struct SourceLabels
{
    QString format;   ///< "DSD64", "PCM 44100 Hz"
    QString info;     ///< the whole story in a line
    QString channels; ///< their number
    QString bitrate;  ///< of the uncoded samples; empty when it is not known
    /// For the lamp of the effective bits, which keeps its mode. None for DSD, whose one bit says nothing.
    std::optional<int> ledBits;

    bool operator==(const SourceLabels &) const = default;
};

SourceLabels sourceLabels(const SourceInfo &source);
