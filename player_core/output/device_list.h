#pragma once

#include <string>
#include <vector>

namespace kelp_core {

/// A device as `-list` names it.
struct ListedDevice
{
    std::string id;
    std::string label; ///< for people; may be empty
};

/// What `-list` says of all devices.
struct DeviceList
{
    std::string server;               ///< name of the sound server; empty when there is none
    std::vector<ListedDevice> sinks;  ///< of the server, ids "pulse:<sink>"
    std::vector<ListedDevice> cards;  ///< ids "hw:C,D"
    std::vector<ListedDevice> others; ///< PCMs of the configuration
};

/// What `-list-devices` says of one device. A device of which nothing is known has no such record.
struct DeviceCapability
{
    std::string id;
    std::string kind; ///< one word: "alsa", "pulse"
    bool nativeDsd = false;
    bool dop1x = false;       ///< DSD64 as DoP is known to work
    bool dop2x = false;       ///< DSD128 as DoP is known to work
    std::string state;        ///< one word: "free", "shared"
    std::vector<int> ratesHz; ///< ascending; empty when not known
};

/// One line a device, its fields parted by tabs:
///     pulse <server>
///     pulse:<sink> pulse:<sink> <label>
///     hw:C,D <label>, and the same for plughw:C,D
///     <name> <name> <label> for PCMs of the configuration
std::string formatDeviceList(const DeviceList &list);

/// For each device "DEV <id> <kind> <native> <dop1x> <dop2x> <state>" with yes or no, and below it
/// "└ rates: 44100,48000" when they are known. Ids with white space cannot be written in this form and are
/// left out.
std::string formatCapabilities(const std::vector<DeviceCapability> &devices);

} // namespace kelp_core
