/// \file
/// The text file that remembers what the program decided.
#pragma once

#include <QString>
#include <QTime>

struct GuiLogFacts
{
    QString environmentPath; ///< KELP_GUI_LOG: "0" is no file, empty the default
    QString tempDir;
    qint64 processId = 0;
    bool timeStamps = false; ///< KELP_GUI_LOG_TS is set
};

/// Opens, appends and closes at each line, so that a crash loses nothing and the file may be moved away.
/// A line that cannot be written is skipped in silence: there is nowhere left to say so.
class GuiLogFile
{
public:
    explicit GuiLogFile(const GuiLogFacts &facts);

    /// The file of this process, settled at the first use. Any thread.
    static const GuiLogFile &ofProcess();

    const QString &path() const { return m_path; } ///< empty when switched off
    void write(const QString &text) const;

    /// The line as it is written, without its newline.
    static QString formatted(const QString &text, bool timeStamps, QTime now);

private:
    QString m_path;
    bool m_timeStamps = false;
};
