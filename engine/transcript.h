/// \file
/// A recorded output of an engine, and what it sets going.
#pragma once

#include <QByteArrayView>
#include <QString>

/// Reads a recording line by line as the window would, from a fresh state, and writes each line with its
/// effects indented below it. A line that begins with "stderr: " counts as one of the engine's error output.
QString transcriptOf(QByteArrayView recording);
