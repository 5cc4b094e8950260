// The four operations on URLs: what they hand to the system's functions, and what they make of the answers.
#include "links/WinInetURL.h"

#include <gmock/gmock.h>

namespace orvelle {
namespace {

using testing::_;
using testing::DoAll;
using testing::Eq;
using testing::InSequence;
using testing::Return;
using testing::SetArgReferee;
using testing::StrictMock;

class MockUrlFunctions : public UrlFunctions {
public:
    MOCK_METHOD(bool, InternetCombineUrlA, (const std::string&, const std::string&, std::string&, Long&, Long),
                (override));
    MOCK_METHOD(bool, InternetCanonicalizeUrlA, (const std::string&, std::string&, Long&, Long), (override));
    MOCK_METHOD(bool, InternetCrackUrlA, (const std::string&, Long, URL_COMPONENTS&), (override));
    MOCK_METHOD(bool, InternetCreateUrlA, (const URL_COMPONENTS&, Long, std::string&, Long&), (override));
    MOCK_METHOD(Long, GetLastError, (), (override));
};

class WinInetURLTest : public testing::Test {
protected:
    StrictMock<MockUrlFunctions> urls;
    WinInetURL url{urls};
};

TEST_F(WinInetURLTest, CombinesTwoUrlsWithRoomFor256Characters) {
    EXPECT_CALL(urls, InternetCombineUrlA("http://a", "b", _, Eq(256), 7))
        .WillOnce(DoAll(SetArgReferee<2>("http://a/b"), SetArgReferee<3>(10), Return(true)));
    EXPECT_EQ(url.CombineUrl("http://a", "b", 7), "http://a/b");
}

TEST_F(WinInetURLTest, CombinesNothingWhereEitherPartIsEmpty) {
    EXPECT_EQ(url.CombineUrl("http://a", "", 0), "");
    EXPECT_EQ(url.CombineUrl("", "b", 0), "");
    EXPECT_EQ(url.CombineUrl("", "", 0), "");
}

TEST_F(WinInetURLTest, AFailedCombinationIsEmptyWhateverStandsInTheBuffer) {
    EXPECT_CALL(urls, InternetCombineUrlA("a", "b", _, Eq(256), 0))
        .WillOnce(DoAll(SetArgReferee<2>("left over"), Return(false)));
    EXPECT_EQ(url.CombineUrl("a", "b", 0), "");
}

TEST_F(WinInetURLTest, CleansAUrlWithRoomFor256Characters) {
    EXPECT_CALL(urls, InternetCanonicalizeUrlA("http://a b", _, Eq(256), 0))
        .WillOnce(DoAll(SetArgReferee<1>("http://a%20b"), SetArgReferee<2>(12), Return(true)));
    EXPECT_EQ(url.CanonicalizeUrl("http://a b", 0), "http://a%20b");
}

TEST_F(WinInetURLTest, AnEmptyUrlIsCleanWithoutACall) { EXPECT_EQ(url.CanonicalizeUrl("", 0), ""); }

TEST_F(WinInetURLTest, AFailedCleaningIsEmpty) {
    EXPECT_CALL(urls, InternetCanonicalizeUrlA("a", _, Eq(256), -1))
        .WillOnce(DoAll(SetArgReferee<1>("left over"), SetArgReferee<2>(300), Return(false)));
    EXPECT_EQ(url.CanonicalizeUrl("a", -1), "");
}

TEST_F(WinInetURLTest, CracksIntoItsPropertiesAndAnswersFalseAllTheSame) {
    url.Scheme = 3;
    url.Port = 80;
    url.HostHame = "before";
    EXPECT_CALL(urls, InternetCrackUrlA("http://host:99/p?q", 0, _))
        .WillOnce([](const std::string&, Long, URL_COMPONENTS& parts) {
            EXPECT_EQ(parts.Size, 60);
            EXPECT_EQ(parts.Scheme, 3);
            EXPECT_EQ(parts.Port, 80);
            const std::string buffer(1024, ' ');
            for (const std::string* part :
                 {&parts.HostName, &parts.UserName, &parts.Password, &parts.UrlPath, &parts.ExtraInfo})
                EXPECT_EQ(*part, buffer);
            parts.Scheme = 4;
            parts.Port = 99;
            parts.HostName = "host";
            parts.UserName = "";
            parts.Password = "";
            parts.UrlPath = "/p";
            parts.ExtraInfo = "?q";
            return true;
        });
    EXPECT_FALSE(url.CrackUrl("http://host:99/p?q"));
    EXPECT_EQ(url.Scheme, 4);
    EXPECT_EQ(url.Port, 99);
    EXPECT_EQ(url.HostHame, "host");
    EXPECT_EQ(url.UserName, "");
    EXPECT_EQ(url.Password, "");
    EXPECT_EQ(url.URLPath, "/p");
    EXPECT_EQ(url.ExtraInfo, "?q");
}

TEST_F(WinInetURLTest, AFailedCrackLeavesTheBuffersAndKeepsSchemeAndPort) {
    url.Scheme = 3;
    url.Port = 80;
    EXPECT_CALL(urls, InternetCrackUrlA("nonsense", 0, _))
        .WillOnce([](const std::string&, Long, URL_COMPONENTS& parts) {
            parts.HostName = "half";
            parts.Scheme = -1;
            return false;
        });
    EXPECT_FALSE(url.CrackUrl("nonsense"));
    const std::string buffer(1024, ' ');
    for (const std::string& part : {url.HostHame, url.UserName, url.Password, url.URLPath, url.ExtraInfo})
        EXPECT_EQ(part, buffer);
    EXPECT_EQ(url.Scheme, 3);
    EXPECT_EQ(url.Port, 80);
}

// What a function of bytes sees of a 16-bit text.
std::string Wide(const std::string& text) {
    std::string wide;
    for (const char character : text) wide += {character, '\0'};
    return wide;
}

class CreateUrlTest : public WinInetURLTest {
protected:
    CreateUrlTest() {
        url.Scheme = 3;
        url.Port = 8080;
        url.HostHame = "ab";
        url.UserName = "u";
        url.Password = "p";
        url.URLPath = "/x";
        url.ExtraInfo = "?y";
    }

    const std::string created = Wide("http://ab");
};

TEST_F(CreateUrlTest, HandsOverItsPartsAsBytesOf16BitTextsAndTakesTheZerosOut) {
    EXPECT_CALL(urls, InternetCreateUrlA(_, 0, _, Eq(256)))
        .WillOnce([this](const URL_COMPONENTS& parts, Long, std::string& result, Long& size) {
            EXPECT_EQ(parts.Size, 60);
            EXPECT_EQ(parts.Scheme, 3);
            EXPECT_EQ(parts.Port, 8080);
            EXPECT_EQ(parts.HostName, Wide("ab"));
            EXPECT_EQ(parts.UserName, Wide("u"));
            EXPECT_EQ(parts.Password, Wide("p"));
            EXPECT_EQ(parts.UrlPath, Wide("/x"));
            EXPECT_EQ(parts.ExtraInfo, Wide("?y"));
            result = created;
            size = static_cast<Long>(created.size());
            return true;
        });
    EXPECT_EQ(url.CreateURL(), "http://ab");
}

TEST_F(CreateUrlTest, AsksAgainWithTheReportedRoomForAsLongAsThereIsTooLittle) {
    const InSequence inOrder;
    EXPECT_CALL(urls, InternetCreateUrlA(_, 0, _, Eq(256))).WillOnce(DoAll(SetArgReferee<3>(300), Return(false)));
    EXPECT_CALL(urls, GetLastError()).WillOnce(Return(122));
    const Long retry = static_cast<Long>(0x80000000);
    EXPECT_CALL(urls, InternetCreateUrlA(_, retry, _, Eq(300))).WillOnce(DoAll(SetArgReferee<3>(400), Return(false)));
    EXPECT_CALL(urls, GetLastError()).WillOnce(Return(122));
    EXPECT_CALL(urls, InternetCreateUrlA(_, retry, _, Eq(400)))
        .WillOnce(DoAll(SetArgReferee<2>(created), SetArgReferee<3>(18), Return(true)));
    EXPECT_EQ(url.CreateURL(), "http://ab");
}

TEST_F(CreateUrlTest, ALongerResultOfARetryIsCutTo256Bytes) {
    const std::string longText = Wide(std::string(150, 'a'));
    EXPECT_CALL(urls, InternetCreateUrlA(_, 0, _, Eq(256))).WillOnce(DoAll(SetArgReferee<3>(300), Return(false)));
    EXPECT_CALL(urls, GetLastError()).WillOnce(Return(122));
    EXPECT_CALL(urls, InternetCreateUrlA(_, _, _, Eq(300))).WillOnce(DoAll(SetArgReferee<2>(longText), Return(true)));
    EXPECT_EQ(url.CreateURL(), std::string(128, 'a'));
}

TEST_F(CreateUrlTest, AnyOtherErrorIsTheEmptyText) {
    EXPECT_CALL(urls, InternetCreateUrlA(_, 0, _, Eq(256)))
        .WillOnce(DoAll(SetArgReferee<2>("left over"), Return(false)));
    EXPECT_CALL(urls, GetLastError()).WillOnce(Return(87));
    EXPECT_EQ(url.CreateURL(), "");
}

TEST_F(CreateUrlTest, AnotherErrorOfARetryIsTheEmptyTextToo) {
    EXPECT_CALL(urls, InternetCreateUrlA(_, _, _, _)).Times(2).WillRepeatedly(Return(false));
    EXPECT_CALL(urls, GetLastError()).WillOnce(Return(122)).WillOnce(Return(12005));
    EXPECT_EQ(url.CreateURL(), "");
}

}  // namespace
}  // namespace orvelle
