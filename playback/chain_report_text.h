/// \file
/// The signal-chain report as text: in the dialog, and as a file.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>

/// A line of the report as rich text, empty for one that goes in as plain text.
QString chainReportHtml(const QString &line);

/// "<folder>/kelp-signal-chain-20260131-204103.txt".
QString chainReportPath(const QString &folder, const QDateTime &now);

/// UTF-8, each line with a newline.
QByteArray chainReportBytes(const QStringList &lines);
