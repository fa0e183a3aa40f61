/// \file
/// The rule by which a frozen window is reported.
#pragma once

#include <QString>

inline constexpr int stallTickMs = 100;

/// The log sentence for a tick that came sincePreviousMs after the one before; empty when it was in time.
/// \param stage what the thread was marked as doing, may be empty
QString stallReport(qint64 sincePreviousMs, const QString &stage);
