#pragma once

#include <cstddef>

namespace kelp_core {

/// Mixes the end of one track into the start of the next: `out` = from · cos θ + to · sin θ with θ going from
/// 0 to π/2 over totalFrames. The powers add to one, so two unrelated pieces of music keep their loudness;
/// two equal signals rise by 3 dB in the middle, which the clip counter of PcmWriter then tells.
///
/// Works on `frames` frames that begin `position` frames into the fade, so that a fade may come in pieces.
/// `out` may be `from` or `to`. Any thread; allocates nothing.
void crossfade(const double *from, const double *to, double *out, size_t frames, int channels,
               size_t position, size_t totalFrames);

/// Which way a fade goes.
enum class Fade
{
    in,
    out,
};

/// Frames of a fade that hides the click of a cut: 5 ms.
size_t declickFrames(int rateHz);

/// Scales in place by half a cosine period, which has no corner at either end. Frames behind the fade keep
/// the gain of its end. In pieces as with crossfade.
void fade(Fade direction, double *pcm, size_t frames, int channels, size_t position, size_t totalFrames);

} // namespace kelp_core
