/// \file
/// The one page that the phone remote serves.
#pragma once

#include <string>
#include <string_view>

/// The document of remote_page.html with the token as its script's constant T.
/// \param token hexadecimal: it is pasted as it stands
std::string remotePage(std::string_view token);
