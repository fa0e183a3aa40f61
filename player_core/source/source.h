#pragma once

#include "player_core/audio/audio_block.h"
#include "player_core/audio/gain_tags.h"
#include "player_core/audio/stream_format.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace kelp_core {

/// What a source is, known once it is open.
struct SourceFacts
{
    StreamFormat format;
    std::string
        formatWord; ///< one lower-case word for the SRC line: "flac", "wav", "alac", … and "dsd" for all DSD
    std::string description;  ///< for people: "FLAC, 16 bit, 44100 Hz, 2 channels"
    bool lossless = true;     ///< the coding gives back the bits that were coded
    bool dst = false;         ///< DSD that was packed by Direct Stream Transfer
    int64_t totalFrames = -1; ///< frames of this track (of the CUE track, not of its file); -1 when not known
    int64_t firstFrame = 0;   ///< where the track begins within its file
    /// A sentence for the listener on what was chosen where a file holds several recordings.
    std::string choice;
    GainTags gains; ///< of its file, or of its CUE sheet where that has them
};

enum class ReadStatus
{
    frames, ///< the block holds frames, possibly fewer than asked for
    end,    ///< the track is over, completely read; the block is empty
    failed, ///< the rest cannot be read; message says why in one line; the block is empty
};

struct ReadOutcome
{
    ReadStatus status = ReadStatus::end;
    std::string message; ///< UTF-8, one line, no line end; only with failed
};

/// A track within a source that plays several as one, such as a whole CUE sheet.
struct SourceSegment
{
    int number = 0;         ///< as its sheet or image counts
    int64_t startFrame = 0; ///< within the source; segments come in ascending order
    std::string title;      ///< UTF-8, one line, may be empty
    std::string performer;  ///< as title
};

/// One track, decoded from its start to its end. Used by one thread at a time (the decoder thread).
class Source
{
public:
    virtual ~Source() = default;
    virtual const SourceFacts &facts() const = 0;

    /// Replaces the block's content by the next frames, at most maxFrames of them. May block on the disk.
    [[nodiscard]] virtual ReadOutcome read(AudioBlock &block, size_t maxFrames) = 0;

    /// Moves to a frame of the track (0 is the track's first), sample-accurate; a target past the end gives
    /// an end at the next read. False when the source cannot be moved; it then stays where it was.
    [[nodiscard]] virtual bool seekFrame(int64_t frame) = 0;

    /// The tracks of a source that is several in one; empty for a single track. Never changes.
    virtual std::vector<SourceSegment> segments() const { return {}; }
};

/// Which track is wanted. Paths are the bytes the file system uses, of any encoding.
struct SourceRequest
{
    std::string path;    ///< a plain audio file; used when cuePath and isoPath are empty
    std::string cuePath; ///< a CUE sheet
    std::string isoPath; ///< an SACD image
    int track = 0;       ///< track number within the sheet or image; below 1 means the whole sheet
    /// Told while a source must be read through before it can be played: percent, seconds done, seconds in
    /// all.
    std::function<void(double, double, double)> onScan;
    /// Set by another thread to give up opening; may be null.
    const std::atomic<bool> *cancelled = nullptr;
};

/// A source, or one line that says why there is none.
struct OpenedSource
{
    std::unique_ptr<Source> source;
    std::string error; ///< UTF-8, one line: "cannot open: no such file", …; empty exactly when source is set
};

/// Opens a track by its content, never by its name's suffix. Throws nothing.
[[nodiscard]] OpenedSource openSource(const SourceRequest &request);

} // namespace kelp_core
