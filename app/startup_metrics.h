/// \file
/// The two figures that are logged once a run.
#pragma once

#include <QString>
#include <optional>

/// \param readyMs from the start of the process to the window being ready
QString startupMetrics(std::optional<qint64> readyMs, std::optional<qint64> memoryBytes);
