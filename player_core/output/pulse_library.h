#pragma once

namespace kelp_core {

/// Loads the PulseAudio client library, if that has not been done yet: it brings thirty others with it, and
/// a machine without a sound server, or a listing of sound cards, needs none of them. All functions of it
/// that are used here load it when they are called first. Takes some milliseconds, so not for the audio
/// thread. \return false where it is not installed, or lacks a function
bool loadPulseLibrary();

} // namespace kelp_core
