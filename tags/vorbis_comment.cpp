#include "tags/vorbis_comment.h"

#include "tags/byte_view.h"

bool parseVorbisComment(std::span<const uint8_t> payload, std::string &vendor,
                        std::vector<VorbisComment> &comments)
{
    constexpr uint64_t fewestBytes = 8;
    vendor.clear();
    comments.clear();
    const ByteView bytes(payload);
    const uint64_t vendorBytes = bytes.little32(0);
    if (bytes.size() < fewestBytes || !bytes.has(4, vendorBytes + 4))
        return false;
    vendor = bytes.text(4, vendorBytes);
    uint64_t at = 4 + vendorBytes;
    const uint32_t count = bytes.little32(at);
    at += 4;
    // The count is not to be trusted with memory: every entry pays with four bytes of its own.
    for (uint32_t i = 0; i < count; ++i) {
        const uint64_t length = bytes.little32(at);
        if (!bytes.has(at, 4) || !bytes.has(at + 4, length))
            return false;
        const std::string_view entry = bytes.text(at + 4, length);
        const size_t equals = entry.find('=');
        if (equals != std::string_view::npos)
            comments.push_back({std::string(entry.substr(0, equals)), std::string(entry.substr(equals + 1))});
        at += 4 + length;
    }
    return true;
}
