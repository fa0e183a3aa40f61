#pragma once

#include <optional>
#include <string>

namespace kelp_core {

/// A volume control between a device and the ear.
struct DeviceVolumeFacts
{
    std::string device;
    std::string control;
    std::optional<int> percent; ///< of the control's way
    std::optional<double> db;
    std::optional<bool> muted;
};

/// The `-vol-get` line of a control, with its line end; what is not known is written as unknown.
std::string deviceVolumeLine(const DeviceVolumeFacts &facts);

/// The line for a device without any control that could be read.
std::string volumeNotKnown(const std::string &device, std::string why);

} // namespace kelp_core
