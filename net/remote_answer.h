/// \file
/// From the bytes of a request to the bytes of its answer: the routes of the phone remote.
#pragma once

#include "net/remote_command.h"
#include "net/remote_json.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

/// The player as the phone remote sees it. All are called on the server's thread and must be set.
struct RemoteHost
{
    std::function<RemoteState()> state;
    /// The first visible rows of the playlist, at most \p limit of them.
    std::function<RemoteLibrary(int limit)> library;
    /// Carries out a valid command before it returns.
    std::function<void(const RemoteCommand &command)> command;
    /// A request came without the right token. \p path is printable and short, whatever was sent.
    std::function<void(const std::string &path)> rejected;
};

/// From this size on a request without an end of its headers is read as it stands.
inline constexpr std::size_t remoteRequestWhole = 8192;

/// Whether one read holds a request. If not, what was read is to be dropped.
bool isRemoteRequest(std::string_view data);

/// The whole response to one read for which isRemoteRequest() holds. What stands behind the first line is
/// never looked at.
/// \param token what a request has to bring; empty refuses everything but /hello
std::string answerRemoteRequest(std::string_view data, std::string_view token, const RemoteHost &host);
