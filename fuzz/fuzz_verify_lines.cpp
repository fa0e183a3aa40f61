// The answer to a self-check, and the report's lines, are text that any engine may have written.
#include "playback/chain_rows.h"
#include "playback/self_check_statements.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    QList<VerifyItem> items;
    for (const QString &line : text.split(u'\n')) {
        const std::optional<VerifyLine> read = parseVerifyLine(line);
        if (!read)
            continue;
        if (read->verdict.has_value() == read->item.has_value())
            __builtin_trap();
        if (read->verdict)
            static_cast<void>(read->verdict->reason());
        else
            items.append(*read->item);
    }
    for (const CheckStatement &statement : checkStatements(items, true)) {
        if (statement.mark == CheckMark::Pending || statement.head.isEmpty())
            __builtin_trap();
    }
    static_cast<void>(firstBreakSentence(items));
    for (const ChainRow &row : buildChainRows(text))
        static_cast<void>(chainRowHtml(row));
    return 0;
}
