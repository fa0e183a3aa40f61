// Prints what the player makes of an engine's recorded output: each line, and its effects below it.
//
// usage: replay_transcript [FILE]      reads FILE or standard input
#include "engine/transcript.h"

#include <QFile>

#include <cstdio>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    if (argc > 2) {
        std::fprintf(stderr, "usage: %s [FILE]\n", argv[0]);
        return 2;
    }
    QFile input;
    bool opened = false;
    if (argc == 2) {
        input.setFileName(QFile::decodeName(argv[1]));
        opened = input.open(QIODevice::ReadOnly);
    } else {
        opened = input.open(stdin, QIODevice::ReadOnly);
    }
    if (!opened) {
        std::fprintf(stderr, "%s: %s\n", argc == 2 ? argv[1] : "standard input",
                     qPrintable(input.errorString()));
        return 1;
    }
    std::fputs(transcriptOf(input.readAll()).toUtf8().constData(), stdout);
    return 0;
}
