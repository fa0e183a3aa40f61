/// \file
/// Prefixes of the engine's output lines, and what may stand in front of them.
#pragma once

#include <QStringView>
#include <optional>

/// The text without a leading "[player] ". A view into the text.
QStringView stripPlayerPrefix(QStringView text);

/// What follows a machine prefix that stands at the start of the text, or behind a blank or "]", so that a
/// logger's time stamp may stand in front. Only the first occurrence counts: with anything else before it
/// the line is not of that form, even when a second occurrence would fit. A view into the text.
std::optional<QStringView> embeddedRest(QStringView text, QLatin1StringView prefix);
