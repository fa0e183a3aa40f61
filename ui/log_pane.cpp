#include "ui/log_pane.h"

#include "ui/style_sheet.h"

using namespace Qt::StringLiterals;

namespace {

/// The file keeps everything; the pane need not grow for days.
constexpr int mostLines = 5000;
constexpr int textPixels = 12;

} // namespace

LogPane::LogPane(QWidget *parent)
    : QPlainTextEdit(parent)
{
    setObjectName("vesperLog"_L1);
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setMaximumBlockCount(mostLines);
    setFont(figureFont(textPixels));
    setAccessibleName(tr("日志"));
    setTabChangesFocus(true);
}

void LogPane::appendEntries(const QList<LogEntry> &entries)
{
    setUpdatesEnabled(false);
    for (const LogEntry &entry : entries) {
        if (entry.isError)
            appendHtml(u"<span style='color:#c0392b'>%1</span>"_s.arg(entry.text.toHtmlEscaped()));
        else
            appendPlainText(entry.text);
    }
    setUpdatesEnabled(true);
}
