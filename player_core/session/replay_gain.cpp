#include "player_core/session/replay_gain.h"

#include "player_core/dsp/fixed_text.h"

#include <cmath>

namespace kelp_core {

namespace {

std::string signedDb(double db)
{
    return (db >= 0 ? "+" : "") + fixedText(db, 2) + " dB";
}

} // namespace

ReplayGainChoice chooseReplayGain(ReplayGainMode mode, const GainTags &tags, bool direct)
{
    ReplayGainChoice choice;
    if (mode == ReplayGainMode::off)
        return choice;
    if (direct) {
        choice.text = "not applied, since DSD goes out directly";
        return choice;
    }
    const bool wantsAlbum = mode == ReplayGainMode::album;
    const bool useAlbum = wantsAlbum ? tags.albumGainDb.has_value() : !tags.trackGainDb.has_value();
    const auto &db = useAlbum ? tags.albumGainDb : tags.trackGainDb;
    const auto &peak = useAlbum ? tags.albumPeak : tags.trackPeak;
    if (!db) {
        choice.text = "this track has no tag for it, so its level stays";
        return choice;
    }
    choice.text = std::string(useAlbum ? "album" : "track") + " gain " + signedDb(*db);
    if (useAlbum != wantsAlbum)
        choice.text += std::string(", for want of the ") + (wantsAlbum ? "album's" : "track's");
    if (*db == 0.0)
        return choice;
    const double wanted = std::pow(10.0, *db / 20.0);
    const double most = peak ? 1.0 / *peak : 1.0;
    choice.gain = wanted;
    if (wanted > 1.0 && !peak) {
        choice.gain = 1.0;
        choice.text += ", not applied: without a stored peak it might clip";
    } else if (wanted > most) {
        choice.gain = most;
        choice.text +=
            ", lowered to " + signedDb(20.0 * std::log10(most)) + " so that the peak does not clip";
    }
    return choice;
}

} // namespace kelp_core
