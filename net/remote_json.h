/// \file
/// What the phone remote answers with, as JSON (RFC 8259) whose keys and their order clients rely on.
#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The snapshot behind /state. Texts are UTF-8.
struct RemoteState
{
    bool playing = false; ///< a track runs, paused or not
    bool paused = false;
    std::string title; ///< this and the next three are empty when no row is current
    std::string artist;
    std::string album;
    std::string format; ///< suffix of the file in upper case
    double pos = 0.;    ///< seconds
    double dur = 0.;    ///< seconds
    int volume = 100;   ///< percent, 0 to 100
    bool muted = false;
    int track = -1; ///< row that plays, else the current row, -1 without one
    int total = 0;  ///< rows of the playlist
};

struct RemoteLibraryItem
{
    std::string title;
    std::string artist;
    bool current = false; ///< the row that plays
};

/// The rows behind /library.
struct RemoteLibrary
{
    std::vector<RemoteLibraryItem> items;
    int total = 0; ///< all rows of the playlist, hidden ones included
};

/// The inside of a JSON string. Bytes from 0x20 up go through as they are, so UTF-8 stays UTF-8.
std::string jsonEscape(std::string_view text);
std::string remoteStateJson(const RemoteState &state);
/// An item's "i" is its position in this answer, from 0.
std::string remoteLibraryJson(const std::vector<RemoteLibraryItem> &items, int total);
/// {"error":"…"}. A reason may quote what a client sent: bytes of it that are no UTF-8 become U+FFFD, since
/// a reader of JSON refuses a text with them.
std::string remoteErrorJson(std::string_view reason);
