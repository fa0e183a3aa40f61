/// \file
/// What a file is and what its tags say, from a look at its head and its tail.
#pragma once

#include <cstdint>
#include <string>

/// All texts are bytes as they stand in the file and are taken to be UTF-8 by whoever shows them.
struct AudioFileInfo
{
    /// "WAV", "AIFF", "FLAC", "APE", "WavPack", "TTA", "OGG", "M4A", "DSF", "DFF", "MP3" or "Unknown".
    std::string format;
    uint32_t sampleRate = 0;    ///< Hz; of a DSF see readDsfHead()
    uint32_t bitsPerSample = 0; ///< 1 for DSD
    uint32_t channels = 0;
    uint64_t totalSamples = 0; ///< per channel
    uint32_t dataOffset = 0;   ///< first byte of audio data
    uint32_t dataSize = 0;     ///< bytes of audio data; the file's size where the format does not say
    std::string title;
    std::string artist;
    std::string album;
    std::string genre;
    std::string composer;
    std::string work;
    std::string movementName;
    std::string movementNumber;
    std::string date;
    std::string comment;
    int32_t track = 0;      ///< 0 when unknown
    int32_t trackTotal = 0; ///< 0 when unknown
    bool isFloat = false;   ///< WAV format tag 3

    bool operator==(const AudioFileInfo &) const = default;
};

/// Reads at most the first and the last 64 KiB of a file, and besides them only small text chunks of AIFF.
/// \param info set anew; untouched when the file does not open or has fewer than 16 bytes
/// \param path UTF-8
/// \return whether the format's header was understood. Tags are filled in either way.
/// Any thread. Damaged input gives fewer fields, never an error.
[[nodiscard]] bool readAudioFileInfo(AudioFileInfo &info, const std::string &path);
