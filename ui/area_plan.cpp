#include "ui/area_plan.h"

#include <algorithm>

namespace {

constexpr int compactBody = 520;
constexpr int roomyCentre = 1000;
constexpr int leastCentre = 500;
constexpr int leastSide = 200;
constexpr int leftFrom = 1280; ///< from this window width on the left panel is a quarter of it
constexpr int leastLeft = 300;
constexpr int mostLeft = 360;
constexpr int modelFrom = 1180;
constexpr int summaryFrom = 1120;
constexpr int wideVolumeFrom = 1080;
constexpr int audioLineFrom = 470;   ///< height of the body
constexpr int albumFrom = 430;       ///< height of the body
constexpr int instrumentsFrom = 330; ///< height of the body
constexpr int leastDisc = 120;
constexpr int mostDisc = 440;
constexpr int discMargin = 48;
constexpr int discPercent = 36;

} // namespace

AreaPlan planAreas(const AreaFacts &facts)
{
    AreaPlan plan;
    const int fixed = areas::titleBar + areas::dspBar + areas::dial + areas::dock + areas::statusLine;
    const int body = facts.height - fixed - facts.pageHeight;
    plan.compact = body < compactBody;
    plan.padding = plan.compact ? 12 : 16;
    plan.groupGap = plan.compact ? 8 : 12;
    plan.leftWidth = facts.width < leftFrom ? leastLeft : std::clamp(facts.width / 4, leastLeft, mostLeft);
    plan.sideWidth =
        std::min(facts.sideWidth, std::max(leastSide, facts.width - plan.leftWidth - leastCentre));
    plan.showsModel = facts.width >= modelFrom;
    plan.showsSummary = facts.width >= summaryFrom;
    plan.volumeWidth = facts.width >= wideVolumeFrom ? 112 : 80;
    plan.buttonPadding = facts.width >= modelFrom ? 12 : facts.width >= wideVolumeFrom ? 9 : 5;
    plan.showsAudioLine = body >= audioLineFrom;
    plan.showsAlbum = body >= albumFrom;
    plan.showsInstruments = body >= instrumentsFrom;
    const int centre = facts.width - plan.leftWidth - plan.sideWidth;
    const bool roomy = centre >= roomyCentre && !plan.compact;
    plan.lyricHeight = plan.compact ? 28 : 44;
    plan.mostTitlePixels = plan.compact ? 20 : roomy ? 40 : 34;
    plan.timePixels = plan.compact ? 22 : roomy ? 44 : 30;
    return plan;
}

int discDiameter(int stageHeight, int centreWidth)
{
    return std::clamp(std::min(stageHeight - discMargin, centreWidth * discPercent / 100), leastDisc,
                      mostDisc);
}
