#include "replay/peers/UrlPeer.h"

#include "tests/replay/PeerTest.h"

namespace orvelle::replay {
namespace {

class UrlPeerTest : public PeerTest {
protected:
    UrlPeer urls{"wininet", transcript, answers};
    std::string result;
    Long size = 256;
};

TEST_F(UrlPeerTest, GivesItsInputBack) {
    EXPECT_TRUE(urls.InternetCanonicalizeUrlA("u", result, size, 0));
    EXPECT_EQ(result, "u");
    EXPECT_EQ(size, 1);
    EXPECT_EQ(Printed(), "wininet.InternetCanonicalizeUrlA(\"u\", 0) -> True, \"u\"\n");
}

TEST_F(UrlPeerTest, JoinsBaseAndRelativePart) {
    EXPECT_TRUE(urls.InternetCombineUrlA("http://a", "b", result, size, 0));
    EXPECT_EQ(Printed(), "wininet.InternetCombineUrlA(\"http://a\", \"b\", 0) -> True, \"http://a/b\"\n");
}

TEST_F(UrlPeerTest, FailsOnMoreThanThereIsRoomForAndTellsTheRoom) {
    const std::string longest(256, 'u');
    EXPECT_TRUE(urls.InternetCanonicalizeUrlA(longest, result, size, 0));
    size = 256;
    Printed();
    EXPECT_FALSE(urls.InternetCanonicalizeUrlA(longest + "u", result, size, 0));
    EXPECT_EQ(result, "");
    EXPECT_EQ(size, 257);
    EXPECT_EQ(urls.GetLastError(), InsufficientBuffer);
    EXPECT_EQ(Printed(), "wininet.InternetCanonicalizeUrlA(\"" + longest + "u\", 0) -> False, \"\"\n");
}

TEST_F(UrlPeerTest, FailsWhereItWasTold) {
    answers.Give("wininet.InternetCanonicalizeUrlA", {{false, ""}});
    EXPECT_FALSE(urls.InternetCanonicalizeUrlA("u", result, size, 0));
    EXPECT_EQ(urls.GetLastError(), 0);
}

TEST_F(UrlPeerTest, CracksAUrlIntoItsHostAlone) {
    URL_COMPONENTS parts;
    parts.UserName = "  ";
    EXPECT_TRUE(urls.InternetCrackUrlA("http://a", 0, parts));
    EXPECT_EQ(parts.HostName, "http://a");
    EXPECT_EQ(parts.UserName, "");
    answers.Give("wininet.InternetCrackUrlA", {{false}});
    parts.HostName = "kept";
    EXPECT_FALSE(urls.InternetCrackUrlA("http://a", 0, parts));
    EXPECT_EQ(parts.HostName, "kept");
}

TEST_F(UrlPeerTest, CreatesAUrlOfHostAndPath) {
    URL_COMPONENTS parts;
    parts.HostName = "a";
    parts.UrlPath = "/b";
    EXPECT_TRUE(urls.InternetCreateUrlA(parts, 0, result, size));
    EXPECT_EQ(result, "a/b");
}

}  // namespace
}  // namespace orvelle::replay
