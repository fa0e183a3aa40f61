#include "engine/transcript.h"

#include "engine/line_classifier.h"
#include "engine/line_effect_text.h"

using namespace Qt::StringLiterals;

QString transcriptOf(QByteArrayView recording)
{
    constexpr auto errorMark = "stderr: "_L1;
    QString transcript;
    EngineLineState state;
    const LineContext context;
    if (recording.isEmpty())
        return transcript;
    const QString text = QString::fromUtf8(recording);
    QStringView lines = text;
    if (lines.endsWith(u'\n'))
        lines.chop(1);
    for (const QStringView recorded : lines.tokenize(u'\n')) {
        const bool isStderr = recorded.startsWith(errorMark);
        const QStringView line = isStderr ? recorded.sliced(errorMark.size()) : recorded;
        transcript.append(recorded).append(u'\n');
        for (const LineEffect &effect : classify(line.toString(), isStderr, state, context).effects)
            transcript += u"    "_s + describe(effect) + u'\n';
    }
    return transcript;
}
