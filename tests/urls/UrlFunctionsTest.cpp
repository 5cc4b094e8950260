// The four URL functions: what they make of each text, their limits and their errors.
#include <gtest/gtest.h>

#include <random>

#include "adapters/urls/StandardUrlFunctions.h"

namespace orvelle::urls {
namespace {

constexpr Long Room = 256;

class UrlFunctionsTest : public testing::Test {
protected:
    std::string Canonical(const std::string& url, Long flags = 0) {
        std::string result;
        Long size = Room;
        return urls.InternetCanonicalizeUrlA(url, result, size, flags) ? result : "(failed)";
    }
    std::string Combined(const std::string& base, const std::string& relative, Long flags = 0) {
        std::string result;
        Long size = Room;
        return urls.InternetCombineUrlA(base, relative, result, size, flags) ? result : "(failed)";
    }

    StandardUrlFunctions urls;
};

struct Example {
    const char* Url;
    const char* Result;
};

TEST_F(UrlFunctionsTest, CanonicalizeKeepsWhatIsCleanAndEncodesWhatIsNot) {
    const char* const channel = "teamspeak://ts.one?nickname=ABC123?password=pw?channel=lobby";
    for (const auto& [url, result] : {
             Example{channel, channel},
             Example{"teamspeak://ts.one:8767?nickname=A B?channel=Lon don",
                     "teamspeak://ts.one:8767?nickname=A%20B?channel=Lon%20don"},
             Example{"teamspeak://ts.one?loginname=x?password=a\"<>{}|\\^[]`b",
                     "teamspeak://ts.one?loginname=x?password=a%22%3C%3E%7B%7D%7C%5C%5E%5B%5D%60b"},
             Example{"teamspeak://[::1]:8767?nickname=A", "teamspeak://[::1]:8767?nickname=A"},
             Example{"teamspeak://ts.one?channel=#1", "teamspeak://ts.one?channel=#1"},
             Example{"teamspeak://ts.one?channel=M\xC3\xBCnchen", "teamspeak://ts.one?channel=M%C3%BCnchen"},
             Example{"  http://ts.one \r\n", "http://ts.one/"},
             Example{"HTTP://Ts.One", "http://Ts.One/"},
             Example{"http://ts.one/a/./b/../c", "http://ts.one/a/c"},
             Example{"http://ts.one/../../c", "http://ts.one/c"},
             Example{"http://ts.one\\a", "http://ts.one%5Ca/"},
             Example{"http://ts.one/a\\b", "http://ts.one/a/b"},
             Example{"http://ts.one/%41%20b", "http://ts.one/%41%20b"},
             Example{"mailto:a b@c", "mailto:a%20b@c"},
             Example{"no url", "no%20url"},
             Example{":", ":"},
             Example{"\x01\x7F\xFF", "%01%7F%FF"},
         })
        EXPECT_EQ(Canonical(url), result);
}

TEST_F(UrlFunctionsTest, CanonicalizeKnowsItsFlags) {
    EXPECT_EQ(Canonical("http://a/b c<", UrlNoEncode), "http://a/b c<");
    EXPECT_EQ(Canonical("http://a/b c<", UrlEncodeSpacesOnly), "http://a/b%20c<");
    EXPECT_EQ(Canonical("http://a/50%", UrlEncodePercent), "http://a/50%25");
    EXPECT_EQ(Canonical("http://a/%41%zz%4", UrlDecode), "http://a/A%zz%4");
    EXPECT_EQ(Canonical("http://a/./b/", UrlKeepMeta), "http://a/./b/");
    EXPECT_EQ(Canonical("http://a/b c?d e#f g", UrlBrowserMode), "http://a/b%20c?d e#f g");
}

TEST_F(UrlFunctionsTest, ResultsHaveToFitTheRoom) {
    const std::string fits = "teamspeak://" + std::string(Room - 12, 'a');
    EXPECT_EQ(Canonical(fits), fits);

    std::string result = "before";
    Long size = Room;
    EXPECT_FALSE(urls.InternetCanonicalizeUrlA(fits + "b", result, size, 0));
    EXPECT_EQ(urls.GetLastError(), InsufficientBuffer);
    EXPECT_EQ(size, Room + 1);
    EXPECT_EQ(result, "before");
    EXPECT_TRUE(urls.InternetCanonicalizeUrlA(fits + "b", result, size, 0));
    EXPECT_EQ(result, fits + "b");
}

TEST_F(UrlFunctionsTest, CombineFindsTheUrlThatIsMeant) {
    for (const auto& [relative, result] : {
             Example{"g", "http://a/b/c/g"},
             Example{"./g", "http://a/b/c/g"},
             Example{"g/", "http://a/b/c/g/"},
             Example{"/g", "http://a/g"},
             Example{"//g", "http://g/"},
             Example{"?y", "http://a/b/c/d?y"},
             Example{"#s", "http://a/b/c/d?q#s"},
             Example{"..", "http://a/b/"},
             Example{"../../../g", "http://a/g"},
             Example{"https://x/y z", "https://x/y%20z"},
         })
        EXPECT_EQ(Combined("http://a/b/c/d?q", relative), result) << relative;
    EXPECT_EQ(Combined("http://a", "g"), "http://a/g");
    EXPECT_EQ(Combined("no base", "g"), "(failed)");
    EXPECT_EQ(urls.GetLastError(), UrlInvalid);
}

URL_COMPONENTS Buffers(std::size_t room) {
    URL_COMPONENTS parts;
    for (std::string* text : {&parts.HostName, &parts.UserName, &parts.Password, &parts.UrlPath, &parts.ExtraInfo})
        text->assign(room, ' ');
    return parts;
}

TEST_F(UrlFunctionsTest, CrackTellsTheParts) {
    URL_COMPONENTS parts = Buffers(1024);
    ASSERT_TRUE(urls.InternetCrackUrlA("https://bob:pw@host.one:8443/dir/page?x=1#top", 0, parts));
    EXPECT_EQ(parts.Scheme, 4);
    EXPECT_EQ(parts.HostName, "host.one");
    EXPECT_EQ(parts.Port, 8443);
    EXPECT_EQ(parts.UserName, "bob");
    EXPECT_EQ(parts.Password, "pw");
    EXPECT_EQ(parts.UrlPath, "/dir/page");
    EXPECT_EQ(parts.ExtraInfo, "?x=1#top");
}

TEST_F(UrlFunctionsTest, CrackLeavesOutWhatIsNotThere) {
    URL_COMPONENTS parts = Buffers(1024);
    ASSERT_TRUE(urls.InternetCrackUrlA("ftp://host", 0, parts));
    EXPECT_EQ(parts.Scheme, 1);
    EXPECT_EQ(parts.Port, 21);
    EXPECT_EQ(parts.UserName, "");
    EXPECT_EQ(parts.UrlPath, "");

    parts = Buffers(1024);
    ASSERT_TRUE(urls.InternetCrackUrlA("teamspeak://[::1]?nickname=A", 0, parts));
    EXPECT_EQ(parts.Scheme, -1);
    EXPECT_EQ(parts.Port, 0);
    EXPECT_EQ(parts.HostName, "[::1]");
    EXPECT_EQ(parts.ExtraInfo, "?nickname=A");
}

TEST_F(UrlFunctionsTest, CrackRefusesWhatIsNoUrlAndWhatHasNoRoom) {
    for (const char* url : {"", "host", "://x", "http://host:port/", "http://host:65536/", "http://host:-1/"}) {
        URL_COMPONENTS parts = Buffers(1024);
        EXPECT_FALSE(urls.InternetCrackUrlA(url, 0, parts)) << url;
        EXPECT_EQ(urls.GetLastError(), UrlInvalid) << url;
        EXPECT_EQ(parts.HostName, std::string(1024, ' '));
    }
    URL_COMPONENTS parts = Buffers(4);
    EXPECT_FALSE(urls.InternetCrackUrlA("http://host.one/", 0, parts));
    EXPECT_EQ(urls.GetLastError(), InsufficientBuffer);
    EXPECT_EQ(parts.HostName, "    ");
}

TEST_F(UrlFunctionsTest, CreateBuildsTheUrl) {
    URL_COMPONENTS parts;
    parts.Scheme = 4;
    parts.HostName = "host";
    parts.Port = 444;
    parts.UserName = "bob";
    parts.Password = "pw";
    parts.UrlPath = "dir";
    parts.ExtraInfo = "?x";
    std::string result;
    Long size = Room;
    ASSERT_TRUE(urls.InternetCreateUrlA(parts, 0, result, size));
    EXPECT_EQ(result, "https://bob:pw@host:444/dir?x");
    EXPECT_EQ(size, 29);

    parts = {};
    parts.HostName = std::string("h\0o\0", 4);
    parts.Port = 80;
    parts.UrlPath = "/a b";
    size = Room;
    ASSERT_TRUE(urls.InternetCreateUrlA(parts, UrlEscape, result, size));
    EXPECT_EQ(result, std::string("http://h\0o\0/a%20b", 17));
}

TEST_F(UrlFunctionsTest, CreateRefusesAnUnknownSchemeAPasswordWithoutUserAndTooSmallARoom) {
    std::string result;
    Long size = Room;
    URL_COMPONENTS parts;
    parts.Scheme = -1;
    EXPECT_FALSE(urls.InternetCreateUrlA(parts, 0, result, size));
    EXPECT_EQ(urls.GetLastError(), UrlUnknownScheme);

    parts.Scheme = 3;
    parts.Password = "pw";
    EXPECT_FALSE(urls.InternetCreateUrlA(parts, 0, result, size));
    EXPECT_EQ(urls.GetLastError(), UrlInvalidParameter);

    parts.Password = "";
    parts.HostName = "host";
    size = 5;
    EXPECT_FALSE(urls.InternetCreateUrlA(parts, 0, result, size));
    EXPECT_EQ(urls.GetLastError(), InsufficientBuffer);
    EXPECT_EQ(size, 11);
    EXPECT_TRUE(urls.InternetCreateUrlA(parts, 0, result, size));
}

TEST_F(UrlFunctionsTest, AnyBytesAreTakenAndLeaveNothingUnsafe) {
    std::mt19937 random(1);
    const std::string pieces = "a:/?#@[].%\\ \t\xC3\xFF\x01~&=";
    for (int round = 0; round < 20000; ++round) {
        std::string text;
        for (auto length = random() % 24; length > 0; --length) text += pieces[random() % pieces.size()];
        std::string result;
        Long size = Room;
        if (urls.InternetCanonicalizeUrlA(text, result, size, 0)) {
            EXPECT_EQ(result.find_first_of(" \t\xC3\xFF\x01"), std::string::npos) << result;
            EXPECT_EQ(Canonical(result), result) << text;
        }
        URL_COMPONENTS parts = Buffers(1024);
        urls.InternetCrackUrlA(text, 0, parts);
        Combined(text, text);
    }
}

}  // namespace
}  // namespace orvelle::urls
