/// \file
/// What a row of a sheet or an image shows once the library's own tags are laid over it.
#pragma once

#include <QString>
#include <optional>

/// Tags that the library keeps for one track of a container, because the container itself is never written.
struct ContainerTrackTags
{
    QString title;
    QString performer;
    QString album;
    QString year;
};

struct OverlayInput
{
    QString container; ///< path of the sheet or the image
    int track = 0;
    QString fallbackTitle;     ///< the row's text as it was built
    QString fallbackPerformer; ///< may be empty
    std::optional<ContainerTrackTags> stored;
};

struct OverlayResult
{
    QString text;
    QString toolTip;
};

/// None, and the row stays as it is, where there is no container or the track is below 1.
std::optional<OverlayResult> overlayContainerRow(const OverlayInput &input);
