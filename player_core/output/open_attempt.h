#pragma once

#include "player_core/output/output.h"

#include <memory>
#include <string>
#include <vector>

namespace kelp_core {

/// Why a device could not be opened.
enum class OpenFailure
{
    none,
    missing, ///< there is no such device
    busy,    ///< somebody else has it
    touched, ///< something stands between us and the hardware, and that was not wanted
    format,  ///< it takes no format that suits the stream
    other,
};

/// An opened device, or why there is none.
struct OpenAttempt
{
    std::unique_ptr<Output> output;
    OpenFailure failure = OpenFailure::none;
    std::string reason;             ///< a clause without a full stop: "the device is busy"
    std::vector<std::string> notes; ///< whole sentences; an opened output holds the same

    void refuse(OpenFailure kind, std::string why)
    {
        failure = kind;
        reason = std::move(why);
        while (reason.ends_with('.'))
            reason.pop_back();
    }
};

} // namespace kelp_core
