#include "playback/chain_rows.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr auto context = "ChainRow";

using Warns = bool (*)(QStringView value);

bool never(QStringView)
{
    return false;
}

struct Form
{
    QLatin1StringView start;
    const char *label; ///< null: no row
    Warns warns = never;
};

constexpr const char *resampling = QT_TRANSLATE_NOOP("ChainRow", "重采样");

/// The first that fits counts.
const std::array forms = {
    Form{"source format:"_L1, nullptr},
    Form{"source:"_L1, nullptr},
    Form{"device requested:"_L1, nullptr},
    Form{"output backend:"_L1, QT_TRANSLATE_NOOP("ChainRow", "后端"),
         [](QStringView value) { return value.contains("mixer"_L1); }},
    Form{"output format:"_L1, QT_TRANSLATE_NOOP("ChainRow", "输出格式")},
    Form{"output latency:"_L1, QT_TRANSLATE_NOOP("ChainRow", "延时")},
    Form{"dsp:"_L1, "DSP", [](QStringView value) { return value.contains("ACTIVE"_L1); }},
    Form{"volume:"_L1, QT_TRANSLATE_NOOP("ChainRow", "音量")},
    Form{"speed:"_L1, QT_TRANSLATE_NOOP("ChainRow", "变速")},
    Form{"resample"_L1, resampling},
    Form{"src quality"_L1, resampling},
    Form{"bit-perfect:"_L1, QT_TRANSLATE_NOOP("ChainRow", "结论"),
         [](QStringView value) { return value.contains("NO"_L1); }},
    Form{"chain:"_L1, QT_TRANSLATE_NOOP("ChainRow", "链路"),
         [](QStringView value) { return !value.contains("clean"_L1); }},
    Form{"underruns:"_L1, QT_TRANSLATE_NOOP("ChainRow", "欠载"),
         [](QStringView value) { return value != "0"_L1; }},
};

/// What stands behind the label: behind its colon, or where it has none behind its words.
QString valueOf(QStringView line, const Form &form)
{
    const qsizetype colon = line.indexOf(u':', form.start.size() - 1);
    return line.sliced(colon < 0 ? form.start.size() : colon + 1).trimmed().toString();
}

} // namespace

QList<ChainRow> buildChainRows(const QString &text)
{
    QList<ChainRow> rows;
    for (const QStringView line : QStringView(text).split(u'\n', Qt::SkipEmptyParts)) {
        const auto *const form = std::ranges::find_if(
            forms, [&](const Form &candidate) { return line.startsWith(candidate.start); });
        if (form == forms.end() || !form->label)
            continue;
        const QString value = valueOf(line, *form);
        rows.append({QString::fromUtf8(form->label), value, form->warns(value)});
    }
    return rows;
}

bool chainLineWarns(const QString &line)
{
    return chainWarnings(buildChainRows(line)) > 0;
}

QString chainRowLabel(const ChainRow &row)
{
    return QCoreApplication::translate(context, row.label.toUtf8().constData());
}

QString chainRowHtml(const ChainRow &row)
{
    return u"<b>%1</b> · %2"_s.arg(chainRowLabel(row).toHtmlEscaped(), row.value.toHtmlEscaped());
}

int chainWarnings(const QList<ChainRow> &rows)
{
    return static_cast<int>(std::ranges::count_if(rows, &ChainRow::warn));
}
