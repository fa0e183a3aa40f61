#include "net/remote_json.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>
#include <limits>

using namespace Qt::StringLiterals;

TEST(JsonEscape, Table)
{
    const std::pair<std::string, std::string> rows[] = {
        {"", ""},
        {"plain / text", "plain / text"},
        {"say \"hi\"", R"(say \"hi\")"},
        {R"(a\b)", R"(a\\b)"},
        {"a\r\n\tb", R"(a\r\n\tb)"},
        {std::string("\0", 1), R"(\u0000)"},
        {"\x01\b\f\x1b\x1f", R"(\u0001\u0008\u000c\u001b\u001f)"},
        {"\x7f", "\x7f"},
        {"海带 قائمة 🎧", "海带 قائمة 🎧"},
        {"\xff\xfe", "\xff\xfe"},
    };
    for (const auto &[text, escaped] : rows)
        EXPECT_EQ(jsonEscape(text), escaped);
}

TEST(RemoteStateText, DefaultsInTheirOrder)
{
    EXPECT_EQ(remoteStateJson({}),
              R"({"playing":false,"paused":false,"title":"","artist":"","album":"","format":"",)"
              R"("pos":0.00,"dur":0.00,"volume":100,"muted":false,"track":-1,"total":0})");
}

TEST(RemoteStateText, AllFieldsAreWritten)
{
    RemoteState state{true, true, "T \"x\"", "A", "B", "FLAC", 61.239, 3600.005, 42, true, 7, 12};
    EXPECT_EQ(remoteStateJson(state),
              R"({"playing":true,"paused":true,"title":"T \"x\"","artist":"A","album":"B","format":"FLAC",)"
              R"("pos":61.24,"dur":3600.01,"volume":42,"muted":true,"track":7,"total":12})");
    state.pos = std::numeric_limits<double>::quiet_NaN();
    state.dur = std::numeric_limits<double>::infinity();
    EXPECT_NE(remoteStateJson(state).find(R"("pos":0.00,"dur":0.00)"), std::string::npos)
        << "JSON has no nan";
    state.pos = std::numeric_limits<double>::max();
    EXPECT_FALSE(QJsonDocument::fromJson(QByteArray::fromStdString(remoteStateJson(state))).isNull());
}

TEST(RemoteLibraryText, AnEmptyList)
{
    EXPECT_EQ(remoteLibraryJson({}, 0), R"({"total":0,"items":[]})");
    EXPECT_EQ(remoteLibraryJson({}, 5), R"({"total":5,"items":[]})") << "all rows are hidden";
}

TEST(RemoteLibraryText, ItemsAreNumberedInThisAnswer)
{
    const std::vector<RemoteLibraryItem> items = {{"One \\ \"1\"", "", false}, {"海", "带", true}};
    EXPECT_EQ(remoteLibraryJson(items, 9),
              R"({"total":9,"items":[{"i":0,"title":"One \\ \"1\"","artist":"","current":false},)"
              R"({"i":1,"title":"海","artist":"带","current":true}]})");
}

TEST(RemoteLibraryText, WhatControlCharactersATitleHoldsItStaysJson)
{
    std::string all;
    for (int byte = 0; byte < 0x80; ++byte)
        all.push_back(static_cast<char>(byte));
    const QJsonDocument read =
        QJsonDocument::fromJson(QByteArray::fromStdString(remoteLibraryJson({{all, all, false}}, 1)));
    EXPECT_EQ(read[u"items"_s][0][u"title"_s].toString().toStdString(), all);
}

TEST(RemoteErrorText, IsOneObject)
{
    EXPECT_EQ(remoteErrorJson("no such path"), R"({"error":"no such path"})");
    EXPECT_EQ(remoteErrorJson("unknown do=: \"\n"), R"({"error":"unknown do=: \"\n"})");
}

TEST(RemoteJson, AReasonIsUtf8WhateverAClientSent)
{
    using namespace std::string_literals;
    EXPECT_EQ(remoteErrorJson("unknown do=: \xff\xc3"),
              "{\"error\":\"unknown do=: \xef\xbf\xbd\xef\xbf\xbd\"}");
    EXPECT_EQ(remoteErrorJson("unknown do=: 海\0带"s), "{\"error\":\"unknown do=: 海\\u0000带\"}");
}
