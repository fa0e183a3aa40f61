#include "playback/self_check_statements.h"

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString translated(const char *source)
{
    return QCoreApplication::translate("SelfCheck", source);
}

struct Wording
{
    const char *head;
    const char *sentence;
};

/// By topic, then by mark.
constexpr Wording wordings[3][4] = {
    {{QT_TRANSLATE_NOOP("SelfCheck", "源是否无损"), QT_TRANSLATE_NOOP("SelfCheck", "正在等待引擎回答。")},
     {QT_TRANSLATE_NOOP("SelfCheck", "源是无损的"),
      QT_TRANSLATE_NOOP("SelfCheck", "编码还原出编入的每一个采样，没有丢弃任何东西。")},
     {QT_TRANSLATE_NOOP("SelfCheck", "源不是无损的"),
      QT_TRANSLATE_NOOP("SelfCheck", "文件里已经没有全部的原始采样，之后的任何环节都补不回来。")},
     {QT_TRANSLATE_NOOP("SelfCheck", "源是否无损无从得知"),
      QT_TRANSLATE_NOOP("SelfCheck", "引擎没有给出能证明的依据；这不算通过。")}},
    {{QT_TRANSLATE_NOOP("SelfCheck", "通路有没有改动"), QT_TRANSLATE_NOOP("SelfCheck", "正在等待引擎回答。")},
     {QT_TRANSLATE_NOOP("SelfCheck", "通路没有改动"),
      QT_TRANSLATE_NOOP("SelfCheck", "从文件到设备之间，没有任何环节改动过采样。")},
     {QT_TRANSLATE_NOOP("SelfCheck", "通路有改动"),
      QT_TRANSLATE_NOOP("SelfCheck", "从文件到设备之间，有环节改动了采样。")},
     {QT_TRANSLATE_NOOP("SelfCheck", "通路有没有改动无从得知"),
      QT_TRANSLATE_NOOP("SelfCheck", "引擎没有给出能证明的依据；这不算通过。")}},
    {{QT_TRANSLATE_NOOP("SelfCheck", "交付是否核实"), QT_TRANSLATE_NOOP("SelfCheck", "正在等待引擎回答。")},
     {QT_TRANSLATE_NOOP("SelfCheck", "交付已核实"),
      QT_TRANSLATE_NOOP("SelfCheck", "设备按要求打开，读回的格式与送出的一致。")},
     {QT_TRANSLATE_NOOP("SelfCheck", "交付有出入"),
      QT_TRANSLATE_NOOP("SelfCheck", "到达设备的不是我们送出的，或者途中有别的环节。")},
     {QT_TRANSLATE_NOOP("SelfCheck", "交付无法核实"),
      QT_TRANSLATE_NOOP("SelfCheck", "设备实际以什么格式运行读不回来；这不算通过。")}},
};

constexpr std::array deliveryNames = {"mixer"_L1, "conversion behind us"_L1, "delivery"_L1, "underruns"_L1};

bool broken(const VerifyItem &item)
{
    return !item.passed && !item.notKnown();
}

QString told(const VerifyItem &item)
{
    return item.explanation.isEmpty() ? item.name : item.name + u": "_s + item.explanation;
}

const VerifyItem *firstOf(const QList<VerifyItem> &items, bool (*is)(const VerifyItem &))
{
    const auto found = std::ranges::find_if(items, is);
    return found == items.end() ? nullptr : &*found;
}

CheckMark markOf(const QList<VerifyItem> &items, bool finished)
{
    if (items.isEmpty())
        return finished ? CheckMark::NotProvable : CheckMark::Pending;
    if (firstOf(items, broken))
        return CheckMark::Disproved;
    if (!std::ranges::all_of(items, &VerifyItem::passed))
        return CheckMark::NotProvable;
    return finished ? CheckMark::Proved : CheckMark::Pending;
}

/// What was found, shortly: the objection itself, or the one item, or the names of all that passed.
QString evidenceOf(const QList<VerifyItem> &items, CheckTopic topic)
{
    if (const VerifyItem *objection = firstOf(items, broken))
        return told(*objection);
    if (const VerifyItem *unknown = firstOf(items, [](const VerifyItem &item) { return item.notKnown(); }))
        return told(*unknown);
    if (topic == CheckTopic::Delivery) {
        const auto delivery = std::ranges::find(items, "delivery"_L1, &VerifyItem::name);
        if (delivery != items.end())
            return delivery->explanation;
    }
    if (items.size() == 1)
        return items.first().explanation;
    QStringList names;
    for (const VerifyItem &item : items)
        names.append(item.name);
    return names.join(u" · "_s);
}

} // namespace

CheckTopic checkTopicOf(const VerifyItem &item)
{
    if (item.name.startsWith("source"_L1))
        return CheckTopic::Source;
    return std::ranges::find(deliveryNames, item.name) != deliveryNames.end() ? CheckTopic::Delivery
                                                                              : CheckTopic::Path;
}

std::array<CheckStatement, 3> checkStatements(const QList<VerifyItem> &items, bool finished)
{
    std::array<CheckStatement, 3> statements;
    for (const CheckTopic topic : {CheckTopic::Source, CheckTopic::Path, CheckTopic::Delivery}) {
        QList<VerifyItem> own;
        std::ranges::copy_if(items, std::back_inserter(own),
                             [topic](const VerifyItem &item) { return checkTopicOf(item) == topic; });
        const CheckMark mark = markOf(own, finished);
        const Wording &wording = wordings[static_cast<int>(topic)][static_cast<int>(mark)];
        statements[static_cast<std::size_t>(topic)] = {mark, translated(wording.head),
                                                       translated(wording.sentence), evidenceOf(own, topic)};
    }
    return statements;
}

QString firstBreakSentence(const QList<VerifyItem> &items)
{
    if (const VerifyItem *first = firstOf(items, broken))
        return translated(QT_TRANSLATE_NOOP("SelfCheck", "最先破坏位完美的环节：%1。")).arg(told(*first));
    if (const VerifyItem *first = firstOf(items, [](const VerifyItem &item) { return item.notKnown(); }))
        return translated(QT_TRANSLATE_NOOP("SelfCheck", "最先无法证明的环节：%1。")).arg(told(*first));
    return {};
}
