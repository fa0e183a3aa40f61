/// \file
/// The words for a track that has been started and is not heard.
#pragma once

#include <QString>

struct NoAudioReport
{
    QString text;
    bool isError = false; ///< false when the device was never opened: then the engine has said more above
    QString checkList;    ///< an error
};

/// \param lastEngineLine the engine's last line that is not telemetry
NoAudioReport noAudioReport(const QString &lastEngineLine);
