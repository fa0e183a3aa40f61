/// \file
/// A probe's answer in a few words, for messages.
#pragma once

#include <QString>

/// The first lines of the output, joined by " | " and cut at 200 characters; translated words when there are
/// none.
QString shortProbeText(const QString &output);
