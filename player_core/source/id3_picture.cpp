#include "player_core/source/id3_picture.h"

#include "player_core/source/content_kind.h"
#include "player_core/source/endian.h"

#include <algorithm>
#include <cstring>
#include <span>

namespace kelp_core {
namespace {

using Bytes = std::vector<uint8_t>;

constexpr uint8_t frontCoverType = 3;

/// A zero that was put behind each 0xFF, so that old decoders see no sync word, goes away again.
Bytes withoutUnsync(std::span<const uint8_t> bytes)
{
    Bytes out;
    out.reserve(bytes.size());
    for (size_t i = 0; i < bytes.size(); ++i) {
        out.push_back(bytes[i]);
        if (bytes[i] == 0xFF && i + 1 < bytes.size() && bytes[i + 1] == 0)
            ++i;
    }
    return out;
}

size_t syncSafe(const uint8_t *bytes)
{
    return static_cast<size_t>(bytes[0] & 0x7F) << 21 | static_cast<size_t>(bytes[1] & 0x7F) << 14 |
           static_cast<size_t>(bytes[2] & 0x7F) << 7 | static_cast<size_t>(bytes[3] & 0x7F);
}

struct Picture
{
    uint8_t type = 0;
    Bytes bytes;
};

/// The body of a picture frame: encoding, format, type, description, picture.
std::optional<Picture> parsePicture(std::span<const uint8_t> body, bool oldForm)
{
    size_t at = 1;
    if (oldForm) {
        at += 3; // three letters of the format
    } else {
        while (at < body.size() && body[at] != 0)
            ++at;
        ++at;
    }
    if (at + 1 >= body.size())
        return {};
    Picture picture;
    picture.type = body[at++];
    const bool wide = body[0] == 1 || body[0] == 2; // UTF-16 ends with two zeros
    if (wide) {
        while (at + 1 < body.size() && (body[at] != 0 || body[at + 1] != 0))
            at += 2;
        at += 2;
    } else {
        while (at < body.size() && body[at] != 0)
            ++at;
        ++at;
    }
    if (at >= body.size())
        return {};
    picture.bytes.assign(body.begin() + static_cast<std::ptrdiff_t>(at), body.end());
    return picture;
}

struct Frame
{
    bool isPicture = false;
    std::span<const uint8_t> body;
    bool unsynced = false;
    bool unreadable = false;
    size_t size = 0; ///< with its head
};

/// The frame at the start of what is left; a size of 0 ends the walk.
Frame parseFrame(std::span<const uint8_t> left, int version)
{
    Frame frame;
    const size_t headSize = version == 2 ? 6 : 10;
    if (left.size() < headSize || left[0] == 0)
        return frame;
    const size_t size = version == 2   ? bigU32(left.data() + 2) & 0xFFFFFF
                        : version == 3 ? bigU32(left.data() + 4)
                                       : syncSafe(left.data() + 4);
    if (size > left.size() - headSize)
        return frame;
    frame.size = headSize + size;
    frame.body = left.subspan(headSize, size);
    frame.isPicture = std::memcmp(left.data(), version == 2 ? "PIC" : "APIC", version == 2 ? 3 : 4) == 0;
    if (version == 2)
        return frame;
    const uint8_t flags = left[9];
    const uint8_t packedOrLocked = version == 3 ? 0xC0 : 0x0C;
    frame.unreadable = (flags & packedOrLocked) != 0;
    const bool grouped = (flags & (version == 3 ? 0x20 : 0x40)) != 0;
    const bool hasLength = version == 4 && (flags & 0x01) != 0;
    frame.unsynced = version == 4 && (flags & 0x02) != 0;
    const size_t extra = (grouped ? 1U : 0U) + (hasLength ? 4U : 0U);
    if (extra > frame.body.size())
        frame.unreadable = true;
    else
        frame.body = frame.body.subspan(extra);
    return frame;
}

size_t extendedHeadSize(const Bytes &tag, int version)
{
    if (tag.size() < 4)
        return tag.size();
    const size_t size = version == 3 ? bigU32(tag.data()) + size_t{4} : syncSafe(tag.data());
    return std::min(size, tag.size());
}

} // namespace

std::optional<std::vector<uint8_t>> readId3Picture(ByteInput &input, int64_t offset)
{
    const int64_t size = id3v2SizeAt(input, offset);
    uint8_t head[10];
    if (size <= 10 || size > maxPictureBytes + (1 << 20) || !input.readFully(offset, head, sizeof head))
        return {};
    const int version = head[3];
    if (version < 2 || version > 4)
        return {};
    Bytes tag(static_cast<size_t>(std::clamp<int64_t>(input.sizeBytes() - offset - 10, 0, size - 10)));
    const int64_t got = input.readAt(offset + 10, tag.data(), tag.size());
    tag.resize(static_cast<size_t>(std::max<int64_t>(got, 0)));
    if ((head[5] & 0x80) && version < 4)
        tag = withoutUnsync(tag);
    size_t at = (head[5] & 0x40) && version > 2 ? extendedHeadSize(tag, version) : 0;
    std::optional<Picture> best;
    while (at < tag.size()) {
        const Frame frame = parseFrame(std::span(tag).subspan(at), version);
        if (frame.size == 0)
            break;
        at += frame.size;
        if (!frame.isPicture || frame.unreadable)
            continue;
        const Bytes body =
            frame.unsynced ? withoutUnsync(frame.body) : Bytes(frame.body.begin(), frame.body.end());
        auto picture = body.empty() ? std::nullopt : parsePicture(body, version == 2);
        if (picture && (!best || (picture->type == frontCoverType && best->type != frontCoverType)))
            best = std::move(picture);
    }
    if (!best)
        return {};
    return std::move(best->bytes);
}

} // namespace kelp_core
