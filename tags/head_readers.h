/// \file
/// What readAudioFileInfo() is made of: one function a format's header and one a form of tag. Each fills what
/// it finds into info and stays inside its bytes.
#pragma once

#include "tags/audio_file_info.h"
#include "tags/lazy_bytes.h"

class FileReader;

// ── tags ──

/// The Vorbis comment of a FLAC file whose head this is. A comment that the head does not hold whole, because
/// a large picture stands before it, is not found: lists must not cost more than the head.
void readFlacComment(LazyBytes &head, AudioFileInfo &info);

/// The first ID3v2 tag (version 3 or 4) in the bytes, wherever it begins.
void readId3(LazyBytes &bytes, AudioFileInfo &info);

/// The text of a frame behind its encoding byte, which comes first, as UTF-8. Latin-1 is not converted, and
/// halves of surrogate pairs stay apart: what has been grouped and filtered by these texts depends on it.
std::string decodeId3Text(ByteView payload);

/// An APEv2 tag whose footer stands within the last 4 KiB of the bytes and whose size counts the header.
void readApeTag(LazyBytes &bytes, AudioFileInfo &info);

/// "TITLE=" and its like anywhere in the bytes: the last resort for formats that keep comments in no known
/// frame. Title is replaced, other fields are filled when empty.
void scanBareText(LazyBytes &bytes, AudioFileInfo &info);

/// The text chunks of an AIFF file, wherever they stand in it.
void readAiffTexts(const FileReader &file, const LazyBytes &head, AudioFileInfo &info);

// ── headers: whether the format was understood ──

bool readWavHead(LazyBytes &head, AudioFileInfo &info);
bool readAiffHead(LazyBytes &head, AudioFileInfo &info);
bool readFlacHead(LazyBytes &head, AudioFileInfo &info);
/// Monkey's Audio.
bool readApeHead(LazyBytes &head, AudioFileInfo &info);
bool readWavPackHead(LazyBytes &head, AudioFileInfo &info);
bool readTtaHead(LazyBytes &head, AudioFileInfo &info);
bool readOggHead(LazyBytes &head, AudioFileInfo &info);
/// Rate and channels are what the eight bytes of the file's metadata pointer give, and 0 without a tag. The
/// ranking of duplicates reads these numbers, so it must not be mended here alone; whatever shows the rate of
/// a DSD file takes it from the engine.
bool readDsfHead(LazyBytes &head, AudioFileInfo &info);
bool readMp3Head(LazyBytes &head, AudioFileInfo &info);
