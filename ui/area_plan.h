/// \file
/// How the window's areas share its size: which of them give way, and in which order.
#pragma once

/// All lengths in logical pixels.
struct AreaFacts
{
    int width = 0;       ///< of the window
    int height = 0;      ///< of the window
    int pageHeight = 0;  ///< of what stands open below the body: an effect page, the log
    int sideWidth = 240; ///< what the listener set, within its limits
};

struct AreaPlan
{
    bool compact = false; ///< the body is low: paddings shrink, captions of the instruments hide
    int padding = 16;
    int groupGap = 12;
    int leftWidth = 320;
    int sideWidth = 240;
    bool showsModel = true;   ///< the model label and the window's title in the title bar
    bool showsSummary = true; ///< the line of the effects' states in the DSP bar
    int volumeWidth = 112;
    int buttonPadding = 12;
    bool showsAudioLine = true; ///< below the disc; else the disc's tool tip
    bool showsAlbum = true;
    bool showsInstruments = true; ///< with the lyrics below them
    int lyricHeight = 44;
    int mostTitlePixels = 34;
    int timePixels = 30;

    bool operator==(const AreaPlan &) const = default;
};

/// Heights that never change: what stands above and below the body.
namespace areas {
inline constexpr int titleBar = 56;
inline constexpr int dspBar = 42;
inline constexpr int dial = 36;
inline constexpr int dock = 72;
inline constexpr int statusLine = 26;
inline constexpr int leastWidth = 1000;
inline constexpr int leastHeight = 640;
} // namespace areas

AreaPlan planAreas(const AreaFacts &facts);

/// The disc's diameter with its ring.
/// \param stageHeight free height of the stage
/// \param centreWidth width of the centre column with its padding
int discDiameter(int stageHeight, int centreWidth);
