#include "net/remote_answer.h"

#include "net/http_response.h"
#include "net/remote_page.h"
#include "net/remote_token.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::string_view lineEnd = "\r\n";
constexpr std::string_view headersEnd = "\r\n\r\n";
constexpr std::size_t mostPathInLog = 80;

struct RouteCall
{
    const RemoteRequest &request;
    std::string_view token;
    const RemoteHost &host;
};

std::string sayHello(const RouteCall &)
{
    return httpResponse(200, http::json, R"({"name":"Kelp Player","needToken":true})");
}

std::string sendPage(const RouteCall &call)
{
    return httpResponse(200, http::html, remotePage(call.token));
}

std::string sendState(const RouteCall &call)
{
    return httpResponse(200, http::json, remoteStateJson(call.host.state()));
}

std::string sendLibrary(const RouteCall &call)
{
    const RemoteLibrary library = call.host.library(remoteLibraryLimit(call.request));
    return httpResponse(200, http::json, remoteLibraryJson(library.items, library.total));
}

std::string refuseSeek(const RouteCall &)
{
    return httpResponse(501, http::json, remoteErrorJson("seek is not implemented yet"));
}

std::string runCommand(const RouteCall &call)
{
    const RemoteCommand command = parseRemoteCommand(call.request);
    if (command.action == RemoteAction::Invalid)
        return httpResponse(400, http::json, remoteErrorJson(command.error));
    call.host.command(command);
    // After the command: a client sees what it did without asking again.
    return sendState(call);
}

struct Route
{
    std::string_view path;
    bool needsToken;
    std::string (*answer)(const RouteCall &);
};

/// Matched exactly: another case or a slash at the end is another path.
constexpr std::array routes = {
    Route{"/hello", false, sayHello},     Route{"/", true, sendPage},
    Route{"/index.html", true, sendPage}, Route{"/state", true, sendState},
    Route{"/library", true, sendLibrary}, Route{"/seek", true, refuseSeek},
    Route{"/cmd", true, runCommand},
};

/// A path for the log: a client must not be able to forge lines in it or to fill it.
std::string printable(std::string_view path)
{
    std::string text(path.substr(0, mostPathInLog));
    std::ranges::replace_if(
        text, [](char c) { return c < 0x20 || c > 0x7e; }, '?');
    return path.size() > mostPathInLog ? text + "..." : text;
}

} // namespace

bool isRemoteRequest(std::string_view data)
{
    return data.size() >= remoteRequestWhole || data.find(headersEnd) != std::string_view::npos;
}

std::string answerRemoteRequest(std::string_view data, std::string_view token, const RemoteHost &host)
{
    RemoteRequest request;
    if (!parseRemoteRequest(data.substr(0, data.find(lineEnd)), request))
        return httpResponse(400, http::plainText, "bad request line");
    const auto *route = std::ranges::find(routes, std::string_view(request.path), &Route::path);
    const bool known = route != routes.end();
    // An unknown path needs the token as well: a stranger does not learn which paths there are.
    if ((!known || route->needsToken) && !remoteTokenMatches(token, request.token)) {
        host.rejected(printable(request.path));
        return httpResponse(401, http::plainText,
                            "token required: open the URL shown on the PC (with ?t=...)");
    }
    if (!known)
        return httpResponse(404, http::json, remoteErrorJson("no such path"));
    return route->answer({request, token, host});
}
