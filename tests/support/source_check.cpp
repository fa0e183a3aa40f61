#include "tests/support/source_check.h"

#include <algorithm>

namespace kelp_test {

using kelp_core::AudioBlock;
using kelp_core::ReadStatus;

Delivered readSome(kelp_core::Source &source, size_t frames)
{
    Delivered all;
    AudioBlock block;
    while (all.frames < frames) {
        all.last = source.read(block, frames - all.frames);
        if (all.last.status != ReadStatus::frames)
            break;
        all.pcm.insert(all.pcm.end(), block.pcm.begin(), block.pcm.end());
        all.dsd.insert(all.dsd.end(), block.dsd.begin(), block.dsd.end());
        all.frames += block.frames;
    }
    return all;
}

Delivered readAll(kelp_core::Source &source, size_t blockFrames)
{
    Delivered all;
    AudioBlock block;
    for (;;) {
        all.last = source.read(block, blockFrames);
        if (all.last.status != ReadStatus::frames)
            return all;
        all.pcm.insert(all.pcm.end(), block.pcm.begin(), block.pcm.end());
        all.dsd.insert(all.dsd.end(), block.dsd.begin(), block.dsd.end());
        all.frames += block.frames;
    }
}

kelp_core::OpenedSource openPath(const std::string &path)
{
    kelp_core::SourceRequest request;
    request.path = path;
    return kelp_core::openSource(request);
}

} // namespace kelp_test
