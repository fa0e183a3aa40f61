/// \file
/// Where a playlist row keeps its values: the list item is the only store.
#pragma once

namespace playlist_role {

inline constexpr int path = 256;     ///< audio file to open; for a row of an image the image
inline constexpr int cuePath = 257;  ///< the CUE sheet, else empty; "stream" marks a network station
inline constexpr int track = 258;    ///< number inside the container, 0 for a plain file
inline constexpr int startSec = 259; ///< as the engine's listing gave it
inline constexpr int endSec = 260;   ///< likewise
inline constexpr int isoPath = 261;  ///< the image, else empty

} // namespace playlist_role
