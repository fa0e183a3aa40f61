#include "tests/support/id3_maker.h"

#include "tests/support/byte_writer.h"

namespace kelp_test {
namespace {

void syncSafe(ByteWriter &out, size_t size)
{
    for (int shift = 21; shift >= 0; shift -= 7)
        out.big(size >> shift & 0x7F, 1);
}

std::vector<uint8_t> unsynced(const std::vector<uint8_t> &bytes)
{
    std::vector<uint8_t> out;
    for (const uint8_t byte : bytes) {
        out.push_back(byte);
        if (byte == 0xFF)
            out.push_back(0);
    }
    return out;
}

void frame(ByteWriter &out, const std::string &id, std::vector<uint8_t> body, const Id3Options &options)
{
    const size_t plainSize = body.size();
    const bool own = options.unsync && options.version == 4;
    if (own)
        body = unsynced(body);
    out.text(id);
    if (options.version == 2) {
        out.big(body.size(), 3);
    } else if (options.version == 3) {
        out.big(body.size(), 4).zeros(2);
    } else {
        syncSafe(out, body.size() + (own ? 4 : 0));
        out.big(0, 1).big(own ? 0x03 : 0x00, 1);
        if (own)
            syncSafe(out, plainSize);
    }
    out.append(body);
}

void picture(ByteWriter &out, const std::vector<uint8_t> &bytes, int type, bool wide,
             const Id3Options &options)
{
    if (bytes.empty())
        return;
    ByteWriter body;
    body.big(wide ? 1 : 0, 1);
    options.version == 2 ? body.text("PNG") : body.text("image/png").zeros(1);
    body.big(static_cast<uint64_t>(type), 1);
    if (wide)
        body.text("\xFF\xFE").text(std::string("c\0o\0", 4)).zeros(2);
    else
        body.text("cover").zeros(1);
    body.append(bytes);
    frame(out, options.version == 2 ? "PIC" : "APIC", body.bytes, options);
}

} // namespace

std::vector<uint8_t> id3Bytes(const Id3Options &options)
{
    ByteWriter frames;
    for (const auto &[id, value] : options.texts) {
        ByteWriter body;
        body.big(3, 1).text(value);
        frame(frames, id, body.bytes, options);
    }
    picture(frames, options.backCover, 4, false, options);
    picture(frames, options.frontCover, 3, options.wideDescription, options);
    frames.zeros(64);
    const bool whole = options.unsync && options.version < 4;
    const std::vector<uint8_t> body = whole ? unsynced(frames.bytes) : frames.bytes;
    ByteWriter out;
    out.text("ID3").big(static_cast<uint64_t>(options.version), 1).zeros(1).big(options.unsync ? 0x80 : 0, 1);
    syncSafe(out, body.size());
    return out.append(body).bytes;
}

} // namespace kelp_test
