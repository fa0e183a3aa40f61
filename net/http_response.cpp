#include "net/http_response.h"

std::string_view httpReason(int status)
{
    switch (status) {
    case 200:
        return "OK";
    case 400:
        return "Bad Request";
    case 401:
        return "Unauthorized";
    case 404:
        return "Not Found";
    case 405:
        return "Method Not Allowed";
    case 501:
        return "Not Implemented";
    default:
        return "Unknown";
    }
}

std::string httpResponse(int status, std::string_view contentType, std::string_view body)
{
    std::string out = "HTTP/1.1 " + std::to_string(status) + ' ';
    out += httpReason(status);
    out += "\r\nContent-Type: ";
    out += contentType.empty() ? http::plainText : contentType;
    out += "\r\nContent-Length: " + std::to_string(body.size());
    out += "\r\nCache-Control: no-store\r\nConnection: close\r\n\r\n";
    out += body;
    return out;
}
