/// \file
/// The engine's verdict on what stands between it and the device, in a word or two for the lamp.
#pragma once

#include <QString>
#include <QStringView>

struct ChainText
{
    QString text;      ///< translated
    bool warn = false; ///< something changes the samples, or that is not known

    bool operator==(const ChainText &) const = default;
};

/// \param line contains "chain:"
ChainText chainTextOf(QStringView line);
