// AudioLoop: what it plays, from decks to the bytes of a device.
#include "player_core/session/audio_loop.h"

#include "player_core/dsp/crossfade.h"

#include <algorithm>

namespace kelp_core {

AudioLoop::Step AudioLoop::playMusic()
{
    // A track shorter than its fade has another one sounding on into it.
    const bool over = current_->finished() && !(fadeLength_ > 0 && leaving_);
    if (guard_.held() > 0 && (!guardOn_ || current_->markDue() || over))
        return flushGuard();
    noteStart();
    if (!over)
        return isDsd() ? playDsd() : playPcm();
    if (isDsd() && dsdCarry_ > 0 && !next_) {
        // The last bits of the chain, filled up to a frame of the device.
        const size_t filled = dsdPerWire_ - dsdCarry_;
        std::fill_n(dsd_.begin() + static_cast<std::ptrdiff_t>(dsdCarry_ * channels_), filled * channels_,
                    dsdSilence);
        dsdCarry_ = 0;
        dsdWriter_.write(dsd_.data(), dsdPerWire_, bytes_.data());
        return writeMusic(1);
    }
    toNextDeck();
    return Step::written;
}

void AudioLoop::noteStart()
{
    while (const auto mark = current_->takeMark()) {
        event(mark->goesOn ? AudioEventKind::trackMoved : AudioEventKind::trackStarted, mark->serial,
              state_.trackFrames, mark->startSec, mark->speed);
        state_.serial = mark->serial;
        state_.trackFrames = 0;
        state_.trackWrittenAt = state_.written;
        dither_ = mark->dither;
        if (mark->goesOn)
            continue;
        sounding_ = false;
        state_.scaledFrames = 0;
        countAnew();
    }
}

/// What was done to the samples before a track, or before another deck took its place, is not its fault.
void AudioLoop::countAnew()
{
    guard_.forgetCounts();
    clippedBefore_ = pcmWriter_.clipped();
    state_.guardedFrames = 0;
    state_.guardGain = 1.0;
    state_.clippedSamples = 0;
}

/// Goes over to the deck that takes the place of the one that is held. The old one has still some frames
/// behind that place: where the two differ in their filters or their speed, it fades into the new one over
/// these.
AudioLoop::Step AudioLoop::takeOver()
{
    if (!replacement_ || (replacement_->available() == 0 && !replacement_->sealed()))
        return starve();
    if (guard_.held() > 0)
        return flushGuard();
    holdFrame_ = -1;
    fadePosition_ = 0;
    fadeLength_ = replaceFade_;
    fadesSameMusic_ = true;
    if (fadeLength_ > 0)
        std::swap(leaving_, current_);
    release(current_);
    current_ = replacement_;
    replacement_ = nullptr;
    noteStart();
    return Step::written;
}

void AudioLoop::toNextDeck()
{
    if (switchTo_)
        return finishSwitch();
    release(leaving_);
    fadeLength_ = 0;
    holdFrame_ = -1;
    release(current_);
    current_ = replacement_ ? replacement_ : next_;
    (replacement_ ? replacement_ : next_) = nullptr;
    sounding_ = false;
    if (current_)
        return;
    event(AudioEventKind::chainEnded, state_.serial, state_.trackFrames);
    quit_ = setup_.drainAtEnd;
}

AudioLoop::Step AudioLoop::playPcm()
{
    if (fadeLength_ > 0)
        return crossfadeStep(fadeLength_ - fadePosition_);
    size_t want = chunkFrames_;
    if (holdFrame_ >= 0) {
        const int64_t left = holdFrame_ - current_->consumed();
        if (left <= 0)
            return takeOver();
        want = std::min(want, static_cast<size_t>(left));
    } else if (next_ && fadeFrames_ > 0) {
        const int64_t left = current_->framesLeft();
        if (left >= 0 && left <= fadeFrames_ && left > 0 && next_->available() > 0) {
            if (guard_.held() > 0)
                return flushGuard();
            fadeLength_ = left;
            fadePosition_ = 0;
            fadesSameMusic_ = false;
            // From here on the new track is the one that plays.
            leaving_ = current_;
            current_ = next_;
            next_ = nullptr;
            noteStart();
            return crossfadeStep(left);
        }
        if (left > fadeFrames_)
            want = std::min<size_t>(want, static_cast<size_t>(left - fadeFrames_));
    }
    const size_t n = current_->read(mix_.data(), want);
    if (n == 0)
        return current_->finished() ? Step::written : starve();
    return writePcm(n, false);
}

AudioLoop::Step AudioLoop::crossfadeStep(int64_t left)
{
    // Both give the same number of frames, or the fade would drift; one that is over gives silence.
    size_t n = std::min<size_t>(chunkFrames_, static_cast<size_t>(left));
    const bool leavingDone = !leaving_ || leaving_->finished();
    const bool comingDone = current_->finished();
    if (!leavingDone) {
        while (leaving_->takeMark()) // what it would tell is told by the other
            continue;
        n = std::min(n, leaving_->available());
        if (n == 0)
            return starve();
    }
    if (leavingDone && comingDone)
        n = 0;
    if (!comingDone) {
        n = std::min(n, current_->available());
        if (n == 0)
            return starve();
        n = current_->read(mix_.data(), n);
    }
    if (n > 0) {
        if (comingDone)
            std::fill_n(mix_.begin(), n * channels_, 0.0);
        const size_t m = leavingDone ? 0 : leaving_->read(other_.data(), n);
        std::fill(other_.begin() + static_cast<std::ptrdiff_t>(m * channels_),
                  other_.begin() + static_cast<std::ptrdiff_t>(n * channels_), 0.0);
        mixFade(n);
        fadePosition_ += static_cast<int64_t>(n);
    }
    if (fadePosition_ >= fadeLength_ || n == 0) {
        fadeLength_ = 0;
        release(leaving_);
        countsAnew_ = fadesSameMusic_;
    }
    return n > 0 ? writePcm(n, true) : Step::written;
}

/// The two tracks of a crossfade are strangers and keep their power; one and the same music keeps its level.
void AudioLoop::mixFade(size_t frames)
{
    const auto channels = static_cast<int>(channels_);
    const auto position = static_cast<size_t>(fadePosition_);
    const auto length = static_cast<size_t>(fadeLength_);
    if (!fadesSameMusic_)
        return crossfade(other_.data(), mix_.data(), mix_.data(), frames, channels, position, length);
    fade(Fade::out, other_.data(), frames, channels, position, length);
    fade(Fade::in, mix_.data(), frames, channels, position, length);
    for (size_t i = 0; i < frames * channels_; ++i)
        mix_[i] += other_[i];
}

AudioLoop::Step AudioLoop::writePcm(size_t frames, bool mixing)
{
    ramp_.apply(mix_.data(), frames, static_cast<int>(channels_));
    if (countsAnew_ && !mixing) {
        countsAnew_ = false;
        countAnew();
    }
    const bool unity = ramp_.isUnity() && !mixing;
    const bool twoTracks = mixing && !fadesSameMusic_;
    if (!guardOn_)
        return putPcm(mix_.data(), frames, unity, twoTracks);
    return putPcm(guarded_.data(), guard_.process(mix_.data(), frames, guarded_.data()), unity, twoTracks);
}

AudioLoop::Step AudioLoop::flushGuard()
{
    return putPcm(guarded_.data(), guard_.flush(guarded_.data()), state_.unity, state_.mixing);
}

AudioLoop::Step AudioLoop::putPcm(const double *pcm, size_t frames, bool unity, bool mixing)
{
    if (frames == 0)
        return Step::written;
    state_.unity = unity;
    state_.dithered = dither_ || !unity || (guardOn_ && guard_.acted());
    state_.mixing = mixing;
    state_.scaledFrames += unity ? 0 : static_cast<int64_t>(frames);
    state_.guardedFrames = guard_.guardedFrames();
    state_.guardGain = guard_.lowestGain();
    pcmWriter_.write(pcm, frames, bytes_.data(), state_.dithered);
    state_.clippedSamples = pcmWriter_.clipped() - clippedBefore_;
    const size_t tap = static_cast<size_t>(tapChannels_);
    if (pcmTap_.space() >= frames * tap) {
        for (size_t f = 0; f < frames; ++f)
            for (size_t c = 0; c < tap; ++c)
                tapScratch_[f * tap + c] = pcm[f * channels_ + c];
        pcmTap_.write(tapScratch_.data(), frames * tap);
    }
    return writeMusic(frames);
}

AudioLoop::Step AudioLoop::playDsd()
{
    size_t room = chunkFrames_ * dsdPerWire_ - dsdCarry_;
    if (holdFrame_ >= 0) {
        const int64_t left = holdFrame_ - current_->consumed();
        if (left <= 0)
            return takeOver();
        room = std::min(room, static_cast<size_t>(left));
    }
    const size_t n = current_->read(dsd_.data() + dsdCarry_ * channels_, room);
    if (n == 0)
        return current_->finished() ? Step::written : starve();
    const size_t tap = static_cast<size_t>(tapChannels_);
    if (dsdTap_.space() >= n * tap) {
        for (size_t f = 0; f < n; ++f)
            for (size_t c = 0; c < tap; ++c)
                dsdTapScratch_[f * tap + c] = dsd_[(dsdCarry_ + f) * channels_ + c];
        dsdTap_.write(dsdTapScratch_.data(), n * tap);
    }
    const size_t total = dsdCarry_ + n;
    const size_t whole = total / dsdPerWire_;
    dsdWriter_.write(dsd_.data(), whole * dsdPerWire_, bytes_.data());
    dsdCarry_ = total - whole * dsdPerWire_;
    std::copy_n(dsd_.begin() + static_cast<std::ptrdiff_t>(whole * dsdPerWire_ * channels_),
                dsdCarry_ * channels_, dsd_.begin());
    state_.unity = true;
    state_.dithered = false;
    return whole > 0 ? writeMusic(whole) : Step::written;
}

} // namespace kelp_core
