// The routes: what each path answers, and what it takes to be answered.
#include "net/remote_answer.h"

#include "net/remote_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::HasSubstr;
using testing::StartsWith;

namespace {

constexpr std::string_view token = "0a1b2c3d";

class RemoteAnswers : public testing::Test
{
protected:
    std::string ask(const std::string &target, const std::string &method = "GET")
    {
        return answerRemoteRequest(method + ' ' + target + " HTTP/1.1\r\nHost: x\r\n\r\n", token, m_host);
    }
    static std::string bodyOf(const std::string &response)
    {
        return response.substr(response.find("\r\n\r\n") + 4);
    }

    RemoteState m_state;
    RemoteLibrary m_library;
    std::vector<int> m_limits;
    std::vector<RemoteCommand> m_commands;
    std::vector<std::string> m_rejected;
    RemoteHost m_host{
        [this] { return m_state; },
        [this](int limit) {
            m_limits.push_back(limit);
            return m_library;
        },
        [this](const RemoteCommand &command) {
            m_commands.push_back(command);
            if (command.action == RemoteAction::Vol)
                m_state.volume = command.value;
        },
        [this](const std::string &path) { m_rejected.push_back(path); },
    };
};

} // namespace

TEST_F(RemoteAnswers, HelloNeedsNoTokenAndSaysThatOneIsNeeded)
{
    const std::string answer = ask("/hello");
    EXPECT_THAT(answer, StartsWith("HTTP/1.1 200 OK\r\nContent-Type: application/json; charset=utf-8\r\n"));
    EXPECT_EQ(bodyOf(answer), R"({"name":"Kelp Player","needToken":true})");
    EXPECT_TRUE(m_rejected.empty());
}

TEST_F(RemoteAnswers, EveryOtherPathNeedsTheToken)
{
    for (const char *path : {"/", "/index.html", "/state", "/library", "/seek", "/cmd?do=stop", "/nothing"}) {
        const std::string answer = ask(path);
        EXPECT_THAT(answer,
                    StartsWith("HTTP/1.1 401 Unauthorized\r\nContent-Type: text/plain; charset=utf-8\r\n"));
        EXPECT_EQ(bodyOf(answer), "token required: open the URL shown on the PC (with ?t=...)");
    }
    EXPECT_THAT(ask("/state?t=0A1B2C3D"), HasSubstr(" 401 ")) << "case matters";
    EXPECT_EQ(m_rejected.size(), 8u);
    EXPECT_EQ(m_rejected.at(5), "/cmd") << "the path, not the query";
    EXPECT_TRUE(m_commands.empty());
    EXPECT_TRUE(m_limits.empty());
}

TEST_F(RemoteAnswers, AServerWithoutATokenRefusesEverybody)
{
    EXPECT_THAT(answerRemoteRequest("GET /state?t= HTTP/1.1\r\n\r\n", "", m_host), HasSubstr(" 401 "));
    EXPECT_THAT(answerRemoteRequest("GET /hello HTTP/1.1\r\n\r\n", "", m_host), HasSubstr(" 200 "));
}

TEST_F(RemoteAnswers, AnEncodedTokenWorks)
{
    EXPECT_THAT(ask("/state?t=0a1b2c%33d"), HasSubstr(" 200 OK"));
    EXPECT_THAT(ask("/state?%74=%30a1b2c3d"), HasSubstr(" 200 OK"));
}

TEST_F(RemoteAnswers, ThePageComesWithTheSameTokenInside)
{
    for (const char *path : {"/?t=0a1b2c3d", "/index.html?t=0a1b2c3d"}) {
        const std::string answer = ask(path);
        EXPECT_THAT(answer, StartsWith("HTTP/1.1 200 OK\r\nContent-Type: text/html; charset=utf-8\r\n"));
        EXPECT_THAT(answer, HasSubstr("const T='0a1b2c3d';"));
        EXPECT_THAT(answer, Not(HasSubstr("@TOKEN@")));
    }
}

TEST_F(RemoteAnswers, PathsAreMatchedExactly)
{
    for (const char *path :
         {"/State", "/state/", "/hello/", "//", "/index.htm", "state", "/favicon.ico", "/%73tate"}) {
        const std::string answer = ask(std::string(path) + "?t=0a1b2c3d");
        EXPECT_THAT(answer, StartsWith("HTTP/1.1 404 Not Found\r\nContent-Type: application/json")) << path;
        EXPECT_EQ(bodyOf(answer), R"({"error":"no such path"})");
    }
}

TEST_F(RemoteAnswers, StateWithNothingCurrent)
{
    EXPECT_EQ(bodyOf(ask("/state?t=0a1b2c3d")), remoteStateJson({}));
}

TEST_F(RemoteAnswers, QuotesInATitleArriveEscaped)
{
    m_state.title = "say \"hi\"";
    EXPECT_THAT(ask("/state?t=0a1b2c3d"), HasSubstr(R"("title":"say \"hi\"")"));
}

TEST_F(RemoteAnswers, TheLibraryIsAskedForWithItsLimit)
{
    m_library = {{{"One", "A", true}}, 3};
    for (const char *query : {"", "&n=0", "&n=5000", "&n=abc", "&n=7"})
        EXPECT_EQ(bodyOf(ask(std::string("/library?t=0a1b2c3d") + query)),
                  remoteLibraryJson(m_library.items, 3));
    EXPECT_EQ(m_limits, (std::vector{200, 1, 1000, 1, 7}));
}

TEST_F(RemoteAnswers, SeekIsAnAnsweredGap)
{
    const std::string answer = ask("/seek?t=0a1b2c3d&s=10");
    EXPECT_THAT(answer, StartsWith("HTTP/1.1 501 Not Implemented\r\n"));
    EXPECT_EQ(bodyOf(answer), R"({"error":"seek is not implemented yet"})");
}

TEST_F(RemoteAnswers, ACommandAnswersWithTheStateAfterIt)
{
    EXPECT_THAT(ask("/cmd?t=0a1b2c3d&do=vol&v=100"), HasSubstr("\"volume\":100,"));
    EXPECT_THAT(ask("/cmd?t=0a1b2c3d&do=vol&v=50abc"), HasSubstr("\"volume\":50,"));
    ASSERT_EQ(m_commands.size(), 2u);
    EXPECT_EQ(m_commands.back().action, RemoteAction::Vol);
}

TEST_F(RemoteAnswers, ABadCommandChangesNothing)
{
    const std::string answer = ask("/cmd?t=0a1b2c3d&do=vol&v=101");
    EXPECT_THAT(answer, StartsWith("HTTP/1.1 400 Bad Request\r\nContent-Type: application/json"));
    EXPECT_EQ(bodyOf(answer), R"({"error":"v= must be 0..100"})");
    EXPECT_EQ(bodyOf(ask("/cmd?t=0a1b2c3d&do=vol&v=")), R"x({"error":"missing v= (0..100)"})x");
    EXPECT_EQ(bodyOf(ask("/cmd?t=0a1b2c3d&do=%22x")), R"({"error":"unknown do=: \"x"})");
    EXPECT_TRUE(m_commands.empty());
}

TEST_F(RemoteAnswers, EveryMethodIsAnsweredAlike)
{
    const std::string answer = ask("/state?t=0a1b2c3d");
    for (const char *method : {"POST", "HEAD", "OPTIONS", "x"})
        EXPECT_EQ(ask("/state?t=0a1b2c3d", method), answer);
}

TEST_F(RemoteAnswers, ABadRequestLineIsSaidSo)
{
    const std::string answer = answerRemoteRequest("\r\n\r\n", token, m_host);
    EXPECT_THAT(answer,
                StartsWith("HTTP/1.1 400 Bad Request\r\nContent-Type: text/plain; charset=utf-8\r\n"));
    EXPECT_EQ(bodyOf(answer), "bad request line");
}

TEST_F(RemoteAnswers, OnlyTheFirstLineCounts)
{
    EXPECT_THAT(answerRemoteRequest("GET /hello HTTP/1.1\r\n\r\nGET /cmd?t=0a1b2c3d&do=stop HTTP/1.1\r\n\r\n",
                                    token, m_host),
                HasSubstr("needToken"));
    EXPECT_TRUE(m_commands.empty());
}

TEST_F(RemoteAnswers, AHostileReachesTheLogAsOneShortLine)
{
    ask("/a\n\x1b[31m海" + std::string(1000, 'x'));
    ASSERT_EQ(m_rejected.size(), 1u);
    EXPECT_THAT(m_rejected.front(), StartsWith("/a??[31m???xxx"));
    EXPECT_LT(m_rejected.front().size(), 100u);
}

TEST(RemoteRequestBytes, ARequestIsWholeAtItsEndOrWhenItIsLong)
{
    EXPECT_FALSE(isRemoteRequest(""));
    EXPECT_FALSE(isRemoteRequest("GET /hello HTTP/1.1\r\n"));
    EXPECT_FALSE(isRemoteRequest("GET /hello HTTP/1.1\n\n"));
    EXPECT_TRUE(isRemoteRequest("GET /hello HTTP/1.1\r\n\r\n"));
    EXPECT_FALSE(isRemoteRequest(std::string(8191, 'x')));
    EXPECT_TRUE(isRemoteRequest(std::string(8192, 'x')));
}

TEST_F(RemoteAnswers, ALongRequestWithoutAnEndIsReadAsItStands)
{
    const std::string noLineEnd = "GET /hello?" + std::string(9000, 'x');
    EXPECT_THAT(answerRemoteRequest(noLineEnd, token, m_host), HasSubstr("needToken"));
    EXPECT_THAT(answerRemoteRequest(std::string(9000, 'x'), token, m_host), HasSubstr("bad request line"));
}

TEST(RemotePage, IsOneDocumentWithoutOutsideResources)
{
    const std::string page = remotePage("12345678");
    EXPECT_THAT(page, StartsWith("<!DOCTYPE html>"));
    for (const char *outside : {"http://", "https://", "src=", "@import", "url("})
        EXPECT_EQ(page.find(outside), std::string::npos) << outside;
    for (const char *colour :
         {"#121216", "#EDEAE3", "#9A968E", "#22222A", "#34343E", "#3A2E4F", "#C9C5BC", "#C08AF0"})
        EXPECT_NE(page.find(colour), std::string::npos) << colour;
    for (const char *id : {"id=\"t\"", "id=\"v\"", "id=\"r\"", "id=\"lib\""})
        EXPECT_NE(page.find(id), std::string::npos) << id;
}
