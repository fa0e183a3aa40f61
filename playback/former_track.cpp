#include "playback/former_track.h"

#include <cmath>

namespace {

/// Reports of one and the same track differ by no more.
constexpr double toleranceSec = 1.;
constexpr double totalToleranceSec = 0.5;

} // namespace

void FormerTrack::left(double positionSec, double totalSec)
{
    m_awaited = m_announces;
    m_positionSec = positionSec;
    m_totalSec = totalSec;
}

void FormerTrack::announced()
{
    m_announces = true;
    m_awaited = false;
}

bool FormerTrack::holdsPosition(double positionSec, double totalSec)
{
    const bool goesOn =
        positionSec >= m_positionSec - toleranceSec && std::abs(totalSec - m_totalSec) <= totalToleranceSec;
    m_awaited = m_awaited && goesOn;
    return m_awaited;
}
