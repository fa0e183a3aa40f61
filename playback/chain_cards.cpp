#include "playback/chain_cards.h"

using namespace Qt::StringLiterals;

ChainCardTexts chainCardTexts(const SourceInfo &source, const SourceLabels &labels)
{
    ChainCardTexts texts;
    texts.bitrate = labels.bitrate;
    // The card's name says what the figure is; DSD goes by its name, since its rate in hertz tells nobody
    // much.
    texts.sampleRate = source.isDsd() ? labels.format : u"%1 Hz"_s.arg(source.rateHz);
    texts.sampleRateTip = labels.format;
    texts.channels = labels.channels;
    return texts;
}
