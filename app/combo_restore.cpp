#include "app/combo_restore.h"

#include <QCoreApplication>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString withoutBlanks(const QString &text)
{
    return text.simplified().remove(u' ');
}

template<class Matches>
int firstRow(const QList<ComboRow> &rows, const Matches &matches)
{
    const auto hit = std::find_if(rows.begin(), rows.end(), matches);
    return hit == rows.end() ? -1 : static_cast<int>(hit - rows.begin());
}

} // namespace

ComboRestore findComboRow(const QString &stored, const QList<ComboRow> &rows)
{
    const QString wanted = stored.trimmed();
    if (wanted.isEmpty())
        return {};
    int row = firstRow(rows, [&](const ComboRow &r) { return r.data == wanted; });
    if (row < 0) {
        const QString bare = withoutBlanks(wanted);
        row = firstRow(rows, [&](const ComboRow &r) { return withoutBlanks(r.text) == bare; });
    }
    if (row < 0) {
        const QString word = wanted.simplified().section(u' ', 0, 0);
        row = firstRow(rows, [&](const ComboRow &r) { return r.text.trimmed().startsWith(word); });
    }
    return {row, row < 0};
}

QString comboMissingText(const QString &stored)
{
    return QCoreApplication::translate("Settings", "参数恢复: 找不到匹配项 %1 (保持默认)")
        .arg(stored.trimmed());
}
