#include "app/log_batch.h"

#include <utility>

using namespace Qt::StringLiterals;

bool LogBatch::add(const QString &text, bool isError)
{
    m_entries.append({text, isError});
    return !std::exchange(m_flushPosted, true);
}

QList<LogBatch::Entry> LogBatch::take()
{
    m_flushPosted = false;
    return std::exchange(m_entries, {});
}

QString errorLineHtml(const QString &text)
{
    return u"<span style='color:#c0392b'>%1</span>"_s.arg(text.toHtmlEscaped());
}
