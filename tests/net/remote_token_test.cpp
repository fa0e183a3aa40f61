#include "net/remote_addresses.h"
#include "net/remote_token.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(RemoteToken, IsEightLowerCaseDigits)
{
    EXPECT_EQ(remoteTokenText(0), "00000000");
    EXPECT_EQ(remoteTokenText(0xabc), "00000abc");
    EXPECT_EQ(remoteTokenText(0xdeadbeef), "deadbeef");
}

TEST(RemoteToken, IsComparedExactly)
{
    EXPECT_TRUE(remoteTokenMatches("0abc1234", "0abc1234"));
    for (const char *wrong : {"", "0abc123", "0abc12345", "0ABC1234", "1abc1234", "0abc1235", " 0abc1234"})
        EXPECT_FALSE(remoteTokenMatches("0abc1234", wrong)) << wrong;
    EXPECT_FALSE(remoteTokenMatches("0abc1234", std::string_view("0abc1234\0", 9)));
}

TEST(RemoteToken, AnEmptyOneFailsForEveryRequest)
{
    EXPECT_FALSE(remoteTokenMatches("", ""));
    EXPECT_FALSE(remoteTokenMatches("", "x"));
}

TEST(RemoteUrls, OneForEachAddress)
{
    EXPECT_EQ(remoteUrls({}, 7788, u"ab"_s), QStringList());
    EXPECT_EQ(remoteUrls({u"192.168.1.2"_s, u"10.0.0.3"_s}, 7788, u"0a1b2c3d"_s),
              (QStringList{u"http://192.168.1.2:7788/?t=0a1b2c3d"_s, u"http://10.0.0.3:7788/?t=0a1b2c3d"_s}));
}
