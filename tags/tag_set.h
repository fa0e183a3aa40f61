/// \file
/// The tags that can be edited.
#pragma once

#include <array>
#include <string>

/// All texts are bytes as they stand in the file and are taken to be UTF-8 by whoever shows them. An empty
/// text means that the file has no such tag, or, in a request to write, that the tag stays as it is.
struct TagSet
{
    std::string title;
    std::string artist;
    std::string album;
    std::string albumArtist;
    std::string trackNumber; ///< as written, "3" or "3/12"
    std::string date;
    std::string composer;
    std::string work;
    std::string movementName;
    std::string movementNumber;

    bool operator==(const TagSet &) const = default;
};

/// The fields in the order of every table of tags.
inline constexpr std::array<std::string TagSet::*, 10> tagSetFields{
    &TagSet::title, &TagSet::artist,   &TagSet::album, &TagSet::albumArtist,  &TagSet::trackNumber,
    &TagSet::date,  &TagSet::composer, &TagSet::work,  &TagSet::movementName, &TagSet::movementNumber};
