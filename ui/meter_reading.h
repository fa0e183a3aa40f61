/// \file
/// What a meter shows for a peak level.
#pragma once

#include <QString>

inline constexpr int meterSegments = 36;
inline constexpr double meterFloorDb = -120.; ///< at and below it the text says that there is no end
inline constexpr double clipDb = -0.05;
inline constexpr int clipHoldMs = 1500;

/// Segments that are lit, 0 … meterSegments, on a scale from -60 to 0 dBFS.
int litSegments(double dbfs);

struct MeterReading
{
    double dbfs = meterFloorDb;
    bool clip = false;
    QString text;                 ///< with the unit
    double peakDb = meterFloorDb; ///< as it was measured, below the floor too

    bool operator==(const MeterReading &) const = default;
};

/// \param peakDb of one channel, as the engine gives it
/// \param nowMs on the clock of clipUntilMs
/// \param clipUntilMs shared by both channels; moved when this peak clips
MeterReading readMeter(double peakDb, qint64 nowMs, qint64 &clipUntilMs);

/// "−8.42 dB"; the word for silence is "−∞ dB".
QString levelText(double peakDb);
