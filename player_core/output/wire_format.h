#pragma once

#include <cstdint>
#include <string>

namespace kelp_core {

/// How the signal is carried to the device.
enum class Carrier
{
    pcm,
    dop,       ///< DSD in 24-bit PCM frames with markers (DoP 1.1)
    nativeDsd, ///< the device's own DSD format
};

/// How one sample stands in memory. Little-endian unless said.
enum class SampleEncoding
{
    s16,    ///< 16 bits in 2 bytes
    s24in3, ///< 24 bits in 3 bytes
    s24in4, ///< 24 bits in the low three bytes of 4, sign-extended
    s32,    ///< 32 bits in 4 bytes; fewer valid bits stand on top
    f32,    ///< IEEE single in −1 … +1
    dsdU8,
    dsdU16le,
    dsdU16be,
    dsdU32le,
    dsdU32be,
};

/// Bytes of one sample in this encoding.
constexpr int bytesPerSample(SampleEncoding encoding)
{
    switch (encoding) {
    case SampleEncoding::dsdU8:
        return 1;
    case SampleEncoding::s16:
    case SampleEncoding::dsdU16le:
    case SampleEncoding::dsdU16be:
        return 2;
    case SampleEncoding::s24in3:
        return 3;
    case SampleEncoding::s24in4:
    case SampleEncoding::s32:
    case SampleEncoding::f32:
    case SampleEncoding::dsdU32le:
    case SampleEncoding::dsdU32be:
        return 4;
    }
    return 0;
}

/// Exactly what an opened device is fed.
struct WireFormat
{
    Carrier carrier = Carrier::pcm;
    SampleEncoding encoding = SampleEncoding::s16;
    int frameRateHz =
        0; ///< frames a second at the device: for DoP the DSD rate / 16, for native DSD rate / 8, 16 or 32
    int channels = 0;
    int validBits = 0; ///< bits of a sample that reach the converter: 16, 24, 32; DoP 24; native DSD 1

    int bytesPerFrame() const { return bytesPerSample(encoding) * channels; }
    bool operator==(const WireFormat &) const = default;
};

/// ALSA's name of the encoding ("S16_LE", "S24_3LE", "DSD_U32_BE" …), as all lines for people spell it.
const char *encodingName(SampleEncoding encoding);

} // namespace kelp_core
