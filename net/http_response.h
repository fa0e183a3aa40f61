/// \file
/// A complete HTTP/1.1 response (RFC 9112) for a server that answers once a connection.
#pragma once

#include <string>
#include <string_view>

namespace http {

inline constexpr std::string_view plainText = "text/plain; charset=utf-8";
inline constexpr std::string_view html = "text/html; charset=utf-8";
inline constexpr std::string_view json = "application/json; charset=utf-8";

} // namespace http

/// "OK" for 200 and so on; "Unknown" for a status that no server of ours sends.
std::string_view httpReason(int status);
/// Status line, headers and body. Nothing may be cached and the connection ends.
std::string httpResponse(int status, std::string_view contentType, std::string_view body);
