#include "playback/chain_lamp.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

QString translated(const char *source)
{
    return QCoreApplication::translate("ChainLamp", source);
}

/// Why the verdict is lost: the engine's own sentence, behind its "NO: ".
QString reasonOf(const QString &verdict)
{
    const qsizetype colon = verdict.indexOf(u':');
    return colon < 0 ? verdict : verdict.mid(colon + 1).trimmed();
}

} // namespace

ChainLampView chainLamp(const ChainLampFacts &facts)
{
    ChainLampView view;
    const QString verdict = facts.labels.value(u"bit-perfect:"_s);
    const QString chain = facts.labels.value(u"chain:"_s);
    if (!facts.playing) {
        view.word = u"—"_s;
        return view;
    }
    view.line = facts.chainLine;
    const bool saysNo = verdict.contains("NO"_L1);
    const bool saysYes = !saysNo && verdict.startsWith("YES"_L1);
    const bool objects = (!verdict.isEmpty() && !saysYes) ||
                         (!chain.isEmpty() && !chain.contains("clean"_L1)) || facts.checkPassed == false;
    if (objects) {
        view.lamp = ChainLamp::Amber;
        // A word that claims less than the verdict may stay; "bit-perfect" may not.
        const bool claims = !facts.chain.warn;
        const bool unknown = !verdict.isEmpty() && !saysYes && !saysNo && facts.checkPassed != false;
        view.word = !facts.chain.text.isEmpty() && !claims ? facts.chain.text
                    : unknown ? translated(QT_TRANSLATE_NOOP("ChainLamp", "未能证明"))
                              : translated(QT_TRANSLATE_NOOP("ChainLamp", "非位完美"));
        const QString reason = !verdict.isEmpty() && !saysYes ? reasonOf(verdict)
                               : facts.checkPassed == false && chain.contains("clean"_L1)
                                   ? translated(QT_TRANSLATE_NOOP("ChainLamp", "自检没有通过"))
                                   : chain;
        view.sentence = translated(QT_TRANSLATE_NOOP("ChainLamp", "不是位完美或未能证明：%1")).arg(reason);
        return view;
    }
    if (!saysYes || chain.isEmpty()) {
        view.word = translated(QT_TRANSLATE_NOOP("ChainLamp", "尚未得知"));
        view.sentence =
            translated(QT_TRANSLATE_NOOP("ChainLamp", "引擎还没有报告这一首的信号链，所以什么也不断言。"));
        return view;
    }
    view.lamp = ChainLamp::Green;
    view.word = translated(QT_TRANSLATE_NOOP("ChainLamp", "位完美"));
    view.sentence = verdict;
    return view;
}
