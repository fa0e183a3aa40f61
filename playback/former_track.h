/// \file
/// Tells what a session still says of the track that was left from what it says of the one it was told to
/// load.
#pragma once

/// A session goes on telling of the track that sounds until it has opened the next one, and what it told may
/// wait in a queue meanwhile. Taken for news of the next track, a position near the end would hand over the
/// track after that one, and an end would pass the next one over. A session that announces its tracks draws
/// the line itself: its announcements and its ends come in the order in which they were told. GUI thread.
class FormerTrack
{
public:
    /// Another track is on its way while this one sounds.
    void left(double positionSec, double totalSec);
    /// Nothing more is to be heard of the track that was left.
    void forget() { m_awaited = false; }
    /// The session has announced the track that it plays now.
    void announced();

    /// Whether a position is still one of the track that was left: it goes on where that stood. The first one
    /// that is not is the next track's, whether that was announced or not.
    bool holdsPosition(double positionSec, double totalSec);
    /// Whether an end is still that of the track that was left.
    bool holdsEnd() const { return m_awaited; }

private:
    bool m_announces = false; ///< the session has announced a track before, so it will announce the next one
    bool m_awaited = false;   ///< the next one's announcement is
    double m_positionSec = 0.;
    double m_totalSec = 0.;
};
