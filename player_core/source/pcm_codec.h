#pragma once

#include "player_core/source/content_kind.h"
#include "player_core/source/file_input.h"
#include "player_core/source/source.h"

#include <string>

extern "C" {
#include <libavcodec/avcodec.h>
}

namespace kelp_core {

/// A line that says why a codec is refused, or "" when it is one that this player decodes.
std::string codecRefusal(AVCodecID codec);

/// The facts of a stream whose decoder is open (format, words, lossless), without its length.
SourceFacts pcmFacts(const ContentKind &kind, const AVCodecParameters &parameters,
                     const AVCodecContext &decoder, FileInput &file);

/// FFmpeg chooses a WAV file's sample width by the valid bits, not by the container's: where 24 valid bits
/// stand in four bytes it takes them for an editor's old float format. This puts the width right where the
/// file itself says that its samples are integers.
void correctSampleWidth(AVCodecParameters &parameters, FileInput &file);

} // namespace kelp_core
