/// \file
/// The panel that shows what was decided.
#pragma once

#include <QList>
#include <QPlainTextEdit>
#include <QString>

struct LogEntry
{
    QString text;
    bool isError = false;
};

class LogPane final : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit LogPane(QWidget *parent = nullptr);

    /// Appends all entries for one common repaint; errors in red.
    void appendEntries(const QList<LogEntry> &entries);
};
