// Reads a raw capture of two-channel DoP in 24- or 32-bit containers from standard input and counts the
// frames whose marker is out of step or differs between the channels. For captures too long to be kept.

#include <cstdint>
#include <cstdio>
#include <vector>

int main()
{
    std::vector<uint8_t> buffer(1 << 20);
    size_t held = 0;
    size_t width = 0; // bytes of one sample, told from the first frames
    uint64_t frames = 0;
    uint64_t outOfStep = 0;
    uint64_t differing = 0;
    uint8_t expected = 0;
    for (;;) {
        const size_t got = std::fread(buffer.data() + held, 1, buffer.size() - held, stdin);
        held += got;
        if (width == 0 && held >= 16) {
            const auto marker = [](uint8_t byte) { return byte == 0x05 || byte == 0xFA; };
            width = marker(buffer[2]) && marker(buffer[5]) && buffer[2] == buffer[5] && buffer[8] != buffer[2]
                        ? 3
                        : 4;
            expected = buffer[width - 1];
        }
        size_t at = 0;
        if (width != 0) {
            for (; at + 2 * width <= held; at += 2 * width) {
                const uint8_t left = buffer[at + width - 1];
                const uint8_t right = buffer[at + 2 * width - 1];
                differing += left != right;
                outOfStep += left != expected;
                expected = static_cast<uint8_t>(left == 0x05 ? 0xFA : 0x05);
                ++frames;
            }
        }
        for (size_t i = at; i < held; ++i)
            buffer[i - at] = buffer[i];
        held -= at;
        if (got == 0)
            break;
    }
    std::printf("%llu frames, %llu markers out of step, %llu differing between channels\n",
                static_cast<unsigned long long>(frames), static_cast<unsigned long long>(outOfStep),
                static_cast<unsigned long long>(differing));
    return outOfStep == 0 && differing == 0 ? 0 : 1;
}
