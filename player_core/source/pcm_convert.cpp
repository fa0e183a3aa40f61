#include "player_core/source/pcm_convert.h"

#include <cstdint>

namespace kelp_core {
namespace {

double fromU8(uint8_t sample)
{
    return (sample - 128) / 128.0;
}
double fromS16(int16_t sample)
{
    return sample / 32768.0;
}
double fromS32(int32_t sample)
{
    return sample / 2147483648.0;
}
double fromFloat(float sample)
{
    return sample;
}
double fromDouble(double sample)
{
    return sample;
}

struct Run
{
    const AVFrame &frame;
    size_t channels;
    size_t first;
    size_t count;
    bool planar;
};

template<typename Sample, double (*convert)(Sample)>
void appendRun(const Run &run, std::vector<double> &out)
{
    const size_t start = out.size();
    out.resize(start + run.count * run.channels);
    double *to = out.data() + start;
    if (!run.planar) {
        const auto *from =
            reinterpret_cast<const Sample *>(run.frame.extended_data[0]) + run.first * run.channels;
        for (size_t i = 0; i < run.count * run.channels; ++i)
            to[i] = convert(from[i]);
        return;
    }
    for (size_t channel = 0; channel < run.channels; ++channel) {
        const auto *from = reinterpret_cast<const Sample *>(run.frame.extended_data[channel]) + run.first;
        for (size_t i = 0; i < run.count; ++i)
            to[i * run.channels + channel] = convert(from[i]);
    }
}

} // namespace

bool isConvertible(AVSampleFormat format)
{
    switch (av_get_packed_sample_fmt(format)) {
    case AV_SAMPLE_FMT_U8:
    case AV_SAMPLE_FMT_S16:
    case AV_SAMPLE_FMT_S32:
    case AV_SAMPLE_FMT_FLT:
    case AV_SAMPLE_FMT_DBL:
        return true;
    default:
        return false;
    }
}

void appendAsDouble(const AVFrame &frame, int channels, size_t first, size_t count, std::vector<double> &out)
{
    const auto format = static_cast<AVSampleFormat>(frame.format);
    const Run run{frame, static_cast<size_t>(channels), first, count, av_sample_fmt_is_planar(format) != 0};
    switch (av_get_packed_sample_fmt(format)) {
    case AV_SAMPLE_FMT_U8:
        return appendRun<uint8_t, fromU8>(run, out);
    case AV_SAMPLE_FMT_S16:
        return appendRun<int16_t, fromS16>(run, out);
    case AV_SAMPLE_FMT_S32:
        return appendRun<int32_t, fromS32>(run, out);
    case AV_SAMPLE_FMT_FLT:
        return appendRun<float, fromFloat>(run, out);
    case AV_SAMPLE_FMT_DBL:
        return appendRun<double, fromDouble>(run, out);
    default:
        return;
    }
}

} // namespace kelp_core
