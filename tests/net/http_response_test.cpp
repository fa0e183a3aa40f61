#include "net/http_response.h"

#include <gtest/gtest.h>

TEST(HttpResponse, IsThisByteForByte)
{
    EXPECT_EQ(httpResponse(200, http::json, "{}"),
              "HTTP/1.1 200 OK\r\nContent-Type: application/json; charset=utf-8\r\nContent-Length: 2\r\n"
              "Cache-Control: no-store\r\nConnection: close\r\n\r\n{}");
}

TEST(HttpResponse, PlainTextIsTheDefault)
{
    EXPECT_EQ(httpResponse(400, {}, ""),
              "HTTP/1.1 400 Bad Request\r\nContent-Type: text/plain; charset=utf-8\r\nContent-Length: 0\r\n"
              "Cache-Control: no-store\r\nConnection: close\r\n\r\n");
}

TEST(HttpResponse, TheLengthCountsBytesAndNotCharacters)
{
    EXPECT_NE(httpResponse(200, http::html, "海").find("Content-Length: 3\r\n"), std::string::npos);
}

TEST(HttpResponse, Reasons)
{
    const std::pair<int, std::string_view> rows[] = {
        {200, "OK"},        {400, "Bad Request"},        {401, "Unauthorized"},
        {404, "Not Found"}, {405, "Method Not Allowed"}, {501, "Not Implemented"},
    };
    for (const auto &[status, reason] : rows)
        EXPECT_EQ(httpReason(status), reason);
}
