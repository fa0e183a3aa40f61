#include "player_core/output/wire_format.h"

namespace kelp_core {

const char *encodingName(SampleEncoding encoding)
{
    switch (encoding) {
    case SampleEncoding::s16:
        return "S16_LE";
    case SampleEncoding::s24in3:
        return "S24_3LE";
    case SampleEncoding::s24in4:
        return "S24_LE";
    case SampleEncoding::s32:
        return "S32_LE";
    case SampleEncoding::f32:
        return "FLOAT_LE";
    case SampleEncoding::dsdU8:
        return "DSD_U8";
    case SampleEncoding::dsdU16le:
        return "DSD_U16_LE";
    case SampleEncoding::dsdU16be:
        return "DSD_U16_BE";
    case SampleEncoding::dsdU32le:
        return "DSD_U32_LE";
    case SampleEncoding::dsdU32be:
        return "DSD_U32_BE";
    }
    return "unknown";
}

} // namespace kelp_core
