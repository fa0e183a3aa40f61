#include "net/remote_request.h"

#include <gtest/gtest.h>

namespace {

RemoteRequest parsed(std::string_view line)
{
    RemoteRequest request;
    EXPECT_TRUE(parseRemoteRequest(line, request)) << line;
    return request;
}

} // namespace

TEST(RemoteRequestLine, GivesMethodTargetPathQueryAndToken)
{
    const RemoteRequest request = parsed("GET /cmd?do=vol&v=50&t=0a1b2c3d HTTP/1.1");
    EXPECT_EQ(request.method, "GET");
    EXPECT_EQ(request.target, "/cmd?do=vol&v=50&t=0a1b2c3d");
    EXPECT_EQ(request.path, "/cmd");
    EXPECT_EQ(request.query.size(), 3u);
    EXPECT_EQ(request.value("do"), "vol");
    EXPECT_EQ(request.value("v"), "50");
    EXPECT_EQ(request.token, "0a1b2c3d");
}

TEST(RemoteRequestLine, NeedsAMethodAndATarget)
{
    RemoteRequest request;
    for (const char *line : {"", " ", "GET", "GET ", " /state", "GET  /state HTTP/1.1", "/state"})
        EXPECT_FALSE(parseRemoteRequest(line, request)) << '"' << line << '"';
}

TEST(RemoteRequestLine, NeedsNoVersion)
{
    EXPECT_EQ(parsed("GET /state").path, "/state");
    EXPECT_EQ(parsed("GET /state ").path, "/state");
}

TEST(RemoteRequestLine, TakesAnyMethod)
{
    for (const char *method : {"POST", "HEAD", "get", "\x01"})
        EXPECT_EQ(parsed(std::string(method) + " /hello HTTP/1.1").method, method);
}

TEST(RemoteRequestLine, SplitsAtTheFirstQuestionMark)
{
    const RemoteRequest request = parsed("GET /a?b=c?d&e=f=g HTTP/1.1");
    EXPECT_EQ(request.path, "/a");
    EXPECT_EQ(request.value("b"), "c?d");
    EXPECT_EQ(request.value("e"), "f=g");
}

TEST(RemoteRequestLine, WithoutAQuestionMarkTheQueryIsEmpty)
{
    EXPECT_TRUE(parsed("GET /state HTTP/1.1").query.empty());
    EXPECT_TRUE(parsed("GET /state? HTTP/1.1").query.empty());
}

TEST(RemoteRequestLine, AKeyWithoutEqualsSignHasAnEmptyValue)
{
    const RemoteRequest request = parsed("GET /cmd?do&v= HTTP/1.1");
    EXPECT_TRUE(request.has("do"));
    EXPECT_EQ(request.value("do"), "");
    EXPECT_TRUE(request.has("v"));
    EXPECT_FALSE(request.has("i"));
}

TEST(RemoteRequestLine, ALaterEqualKeyOverrides)
{
    EXPECT_EQ(parsed("GET /?t=one&t=two HTTP/1.1").token, "two");
}

TEST(RemoteRequestLine, KeysAndValuesAreDecoded)
{
    const RemoteRequest request = parsed("GET /?%74=%61%62&a%20b=c+d HTTP/1.1");
    EXPECT_EQ(request.token, "ab") << "the token is compared after decoding";
    EXPECT_EQ(request.value("a b"), "c d");
}

TEST(RemoteRequestLine, ThePathIsNotDecoded)
{
    EXPECT_EQ(parsed("GET /%73tate HTTP/1.1").path, "/%73tate");
}

TEST(FormDecoding, Table)
{
    const std::pair<const char *, std::string> rows[] = {
        {"", ""},       {"plain", "plain"},  {"a+b", "a b"},
        {"%2B", "+"},   {"%e6%B5%b7", "海"}, {"%", "%"},
        {"%4", "%4"},   {"%4g", "%4g"},      {"%g4", "%g4"},
        {"%%41", "%A"}, {"100%", "100%"},    {"%00x", std::string("\0x", 2)},
        {"%-1", "%-1"},
    };
    for (const auto &[text, decoded] : rows)
        EXPECT_EQ(formDecoded(text), decoded) << text;
}
