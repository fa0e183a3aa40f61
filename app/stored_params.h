/// \file
/// The choices under param/ as one record: read once, late in the window's construction, and written back at
/// every change that matters.
#pragma once

#include "platform/settings_access.h"

/// A field without a value leaves its widget as it stands, and is not written. Combo texts are restored by
/// findComboItem. The window applies the fields in this order.
struct StoredParams
{
    QString mode;
    QString layout;
    QString rig;
    QString pcmBits;
    QString dop;
    QString outputPath;
    std::optional<bool> peakGuard;
    int denoiseTier = 0;        ///< 0 to 3
    bool keepHarmonics = false; ///< never while the tier is 0
    QString extDecoder;
    std::optional<bool> forcedPcm;
    double speedRatio = 1.0;
    double crossfadeSec = 0.0;
    bool gapless = true;
    bool lyrics = true;
    bool lyricsOnline = false;
    bool dspPlugins = false;
    int theme = 0;
    /// Empty until the user has chosen a display: the instruments are then on, and the engine, which is asked
    /// with a default of its own (vizModeAtTrackStart), keeps sending spectrum frames.
    std::optional<int> vizMode;
    bool hotkeys = false;
    int replayGain = 0;
    QString pcmFilter;
    bool pcmFilterExplicit = false;
    bool pcmToDsd = false;
    int pcmToDsdTargetHz = 0;
    int pcmToDsdTaps = 0;
    int orderAxis = 0;
    int repeatAxis = 0;
    std::optional<double> crossoverHz;
    std::optional<bool> crossoverBridged;
    std::optional<int> volume;
    bool prefetchDecode = false;
    std::optional<bool> resample;
    std::optional<bool> streamRead;
    QString customRig;
};

/// Reads the record. The former single key of order and repeat is migrated here, which writes the two axes.
StoredParams loadParams(SettingsAccess &store);

/// Writes the record. The tier and the harmonics go to the panel's group as well, which is their truth.
void saveParams(const StoredParams &params, SettingsAccess &store);

/// The display mode for the engine's flags at track start. The default differs from the display's (0) on
/// purpose: a new user who has chosen nothing gets spectrum frames, and the instruments show them.
int vizModeAtTrackStart(const SettingsAccess &store);
