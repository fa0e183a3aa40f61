/// \file
/// Sets the device free after the engine had to be ended by force.
#pragma once

#include "engine/engine_probe.h"

/// Runs `-reset-device` and logs how it went. Blocks for at most seven seconds. Does nothing when
/// playerBin is empty.
/// \param reason the words for what ended the engine; they open the log line
void resetDeviceAfterKill(const QString &playerBin, const QString &reason, const ProbeLog &log);
