/// \file
/// The first line of an HTTP request (RFC 9112, section 3), as far as the phone remote reads one.
#pragma once

#include <map>
#include <string>
#include <string_view>

/// The parsed request line. All texts are bytes as they came; a query is percent-decoded, a path is not.
struct RemoteRequest
{
    std::string method; ///< decides nothing: POST and HEAD are answered like GET
    std::string target;
    std::string path; ///< up to the '?'
    std::map<std::string, std::string> query;
    std::string token; ///< the value of the key "t", empty without one

    bool has(const std::string &key) const { return query.contains(key); }
    /// Empty for a key that is not given.
    std::string value(const std::string &key) const;
};

/// Reads method, target and query. The size of \p line is its caller's bound on time and memory.
/// \return false, with \p out in any state, when the method or the target is missing
[[nodiscard]] bool parseRemoteRequest(std::string_view line, RemoteRequest &out);

/// application/x-www-form-urlencoded: '+' is a blank, '%' with two hexadecimal digits is that byte, and an
/// incomplete '%' stays as it stands.
std::string formDecoded(std::string_view text);
