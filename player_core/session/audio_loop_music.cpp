// AudioLoop: what it plays, from decks to the bytes of a device.
#include "player_core/session/audio_loop.h"

#include "player_core/dsp/crossfade.h"

#include <algorithm>

namespace kelp_core {

AudioLoop::Step AudioLoop::playMusic()
{
    noteStart();
    if (!current_->finished())
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
    while (const auto start = current_->takeTrackStart()) {
        event(AudioEventKind::trackStarted, start->serial, state_.trackFrames);
        state_.serial = start->serial;
        state_.trackFrames = 0;
        state_.scaledFrames = 0;
        clippedBefore_ = pcmWriter_.clipped();
        state_.clipped = 0;
        state_.trackWrittenAt = state_.written;
        dither_ = start->dither;
        sounding_ = false;
    }
}

void AudioLoop::toNextDeck()
{
    if (switchTo_)
        return finishSwitch();
    release(leaving_); // the new track was shorter than its fade
    fadeLength_ = 0;
    release(current_);
    current_ = next_;
    next_ = nullptr;
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
    if (next_ && fadeFrames_ > 0) {
        const int64_t left = current_->framesLeft();
        if (left >= 0 && left <= fadeFrames_ && left > 0 && next_->available() > 0) {
            fadeLength_ = left;
            fadePosition_ = 0;
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
    // Both give the same number of frames, or the fade would drift.
    size_t n = std::min<size_t>(chunkFrames_, static_cast<size_t>(left));
    const bool leavingDone = !leaving_ || leaving_->finished();
    if (!leavingDone) {
        n = std::min(n, leaving_->available());
        if (n == 0)
            return starve();
    }
    n = std::min(n, current_->available());
    if (n == 0 && !current_->finished())
        return starve();
    if (n > 0) {
        n = current_->read(mix_.data(), n);
        const size_t m = leavingDone ? 0 : leaving_->read(other_.data(), n);
        std::fill(other_.begin() + static_cast<std::ptrdiff_t>(m * channels_),
                  other_.begin() + static_cast<std::ptrdiff_t>(n * channels_), 0.0);
        crossfade(other_.data(), mix_.data(), mix_.data(), n, static_cast<int>(channels_),
                  static_cast<size_t>(fadePosition_), static_cast<size_t>(fadeLength_));
        fadePosition_ += static_cast<int64_t>(n);
    }
    if (fadePosition_ >= fadeLength_ || n == 0) {
        fadeLength_ = 0;
        release(leaving_);
    }
    return n > 0 ? writePcm(n, true) : Step::written;
}

AudioLoop::Step AudioLoop::writePcm(size_t frames, bool mixing)
{
    ramp_.apply(mix_.data(), frames, static_cast<int>(channels_));
    const bool unity = ramp_.isUnity() && !mixing;
    state_.unity = unity;
    state_.dithered = dither_ || !unity;
    state_.mixing = mixing;
    state_.scaledFrames += unity ? 0 : static_cast<int64_t>(frames);
    pcmWriter_.write(mix_.data(), frames, bytes_.data(), state_.dithered);
    state_.clipped = pcmWriter_.clipped() - clippedBefore_;
    const size_t tap = static_cast<size_t>(tapChannels_);
    if (pcmTap_.space() >= frames * tap) {
        for (size_t f = 0; f < frames; ++f)
            for (size_t c = 0; c < tap; ++c)
                tapScratch_[f * tap + c] = mix_[f * channels_ + c];
        pcmTap_.write(tapScratch_.data(), frames * tap);
    }
    return writeMusic(frames);
}

AudioLoop::Step AudioLoop::playDsd()
{
    const size_t room = chunkFrames_ * dsdPerWire_ - dsdCarry_;
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
