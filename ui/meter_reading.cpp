#include "ui/meter_reading.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double scaleDb = 60.;

} // namespace

int litSegments(double dbfs)
{
    const double part = (dbfs + scaleDb) / scaleDb;
    // Also false for what is no number.
    if (!(part > 0.))
        return 0;
    return static_cast<int>(std::min(part, 1.) * meterSegments + 0.5);
}

MeterReading readMeter(double peakDb, qint64 nowMs, qint64 &clipUntilMs)
{
    const bool clips = peakDb >= clipDb;
    if (clips)
        clipUntilMs = nowMs + clipHoldMs;
    MeterReading reading;
    reading.dbfs = peakDb > meterFloorDb ? peakDb : meterFloorDb;
    reading.clip = clips || nowMs < clipUntilMs;
    reading.text = levelText(peakDb);
    reading.peakDb = peakDb;
    return reading;
}

QString levelText(double peakDb)
{
    if (!(peakDb > meterFloorDb))
        return u"−∞ dB"_s;
    // A typographic minus is as wide as the digits beside it.
    return QString::number(peakDb, 'f', 2).replace(u'-', u'−') + u" dB"_s;
}
