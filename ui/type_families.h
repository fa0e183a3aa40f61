/// \file
/// The families of the two kinds of type, the best of each first.
#pragma once

namespace type_families {

inline constexpr const char *words[] = {"Inter", "Noto Sans"};
inline constexpr const char *figures[] = {"DejaVu Sans Mono", "Noto Sans Mono"};

} // namespace type_families
