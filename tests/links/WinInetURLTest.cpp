// The four operations on URLs: what they hand to the system's functions, and what they make of the answers.
#include "links/WinInetURL.h"

#include <gtest/gtest.h>

#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace orvelle {
namespace {

// The system's functions, which write down each call and answer it as scripted; what is not scripted fails.
class ScriptedUrlFunctions : public UrlFunctions {
public:
    struct Answer {
        bool Success;
        std::optional<std::string> Result = std::nullopt;
        std::optional<Long> Size = std::nullopt;
    };

    bool InternetCombineUrlA(const std::string& base, const std::string& relative, std::string& result, Long& size,
                             Long flags) override {
        Called("Combine " + base + " " + relative, size, flags);
        return Give(result, size);
    }
    bool InternetCanonicalizeUrlA(const std::string& url, std::string& result, Long& size, Long flags) override {
        Called("Canonicalize " + url, size, flags);
        return Give(result, size);
    }
    bool InternetCrackUrlA(const std::string& url, Long flags, URL_COMPONENTS& parts) override {
        Called("Crack " + url, 0, flags);
        Parts = parts;
        parts = Cracked;
        return Take().Success;
    }
    bool InternetCreateUrlA(const URL_COMPONENTS& parts, Long flags, std::string& result, Long& size) override {
        Called("Create", size, flags);
        Parts = parts;
        return Give(result, size);
    }
    Long GetLastError() override {
        Calls.push_back("GetLastError");
        if (Errors.empty()) ADD_FAILURE() << "nobody scripted this error";
        const Long error = Errors.empty() ? 0 : Errors.front();
        if (!Errors.empty()) Errors.pop_front();
        return error;
    }

    std::deque<Answer> Answers;
    std::deque<Long> Errors;
    URL_COMPONENTS Cracked;
    URL_COMPONENTS Parts;            // of the last call
    std::vector<std::string> Calls;  // "Combine http://a b, 256 bytes, flags 7"

private:
    void Called(const std::string& what, Long size, Long flags) {
        Calls.push_back(what + ", " + std::to_string(size) + " bytes, flags " + std::to_string(flags));
    }
    Answer Take() {
        if (Answers.empty()) {
            ADD_FAILURE() << "nobody scripted this call";
            return {false};
        }
        const Answer answer = Answers.front();
        Answers.pop_front();
        return answer;
    }
    bool Give(std::string& result, Long& size) {
        const Answer answer = Take();
        if (answer.Result) result = *answer.Result;
        if (answer.Size) size = *answer.Size;
        return answer.Success;
    }
};

class WinInetURLTest : public testing::Test {
protected:
    void ExpectCalls(const std::vector<std::string>& calls) const { EXPECT_EQ(urls.Calls, calls); }

    ScriptedUrlFunctions urls;
    WinInetURL url{urls};
};

TEST_F(WinInetURLTest, CombinesTwoUrlsWithRoomFor256Characters) {
    urls.Answers = {{true, "http://a/b", 10}};
    EXPECT_EQ(url.CombineUrl("http://a", "b", 7), "http://a/b");
    ExpectCalls({"Combine http://a b, 256 bytes, flags 7"});
}

TEST_F(WinInetURLTest, CombinesNothingWhereEitherPartIsEmpty) {
    EXPECT_EQ(url.CombineUrl("http://a", "", 0), "");
    EXPECT_EQ(url.CombineUrl("", "b", 0), "");
    EXPECT_EQ(url.CombineUrl("", "", 0), "");
    ExpectCalls({});
}

TEST_F(WinInetURLTest, AFailedCombinationIsEmptyWhateverStandsInTheBuffer) {
    urls.Answers = {{false, "left over"}};
    EXPECT_EQ(url.CombineUrl("a", "b", 0), "");
    ExpectCalls({"Combine a b, 256 bytes, flags 0"});
}

TEST_F(WinInetURLTest, CleansAUrlWithRoomFor256Characters) {
    urls.Answers = {{true, "http://a%20b", 12}};
    EXPECT_EQ(url.CanonicalizeUrl("http://a b", 0), "http://a%20b");
    ExpectCalls({"Canonicalize http://a b, 256 bytes, flags 0"});
}

TEST_F(WinInetURLTest, AnEmptyUrlIsCleanWithoutACall) {
    EXPECT_EQ(url.CanonicalizeUrl("", 0), "");
    ExpectCalls({});
}

TEST_F(WinInetURLTest, AFailedCleaningIsEmpty) {
    urls.Answers = {{false, "left over", 300}};
    EXPECT_EQ(url.CanonicalizeUrl("a", -1), "");
    ExpectCalls({"Canonicalize a, 256 bytes, flags -1"});
}

TEST_F(WinInetURLTest, CracksIntoItsPropertiesAndAnswersFalseAllTheSame) {
    url.Scheme = 3;
    url.Port = 80;
    url.HostHame = "before";
    urls.Answers = {{true}};
    urls.Cracked.Scheme = 4;
    urls.Cracked.Port = 99;
    urls.Cracked.HostName = "host";
    urls.Cracked.UrlPath = "/p";
    urls.Cracked.ExtraInfo = "?q";
    EXPECT_FALSE(url.CrackUrl("http://host:99/p?q"));
    ExpectCalls({"Crack http://host:99/p?q, 0 bytes, flags 0"});
    EXPECT_EQ(urls.Parts.Size, 60);
    EXPECT_EQ(urls.Parts.Scheme, 3);
    EXPECT_EQ(urls.Parts.Port, 80);
    const std::string buffer(1024, ' ');
    for (const std::string& part :
         {urls.Parts.HostName, urls.Parts.UserName, urls.Parts.Password, urls.Parts.UrlPath, urls.Parts.ExtraInfo})
        EXPECT_EQ(part, buffer);
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
    urls.Answers = {{false}};
    urls.Cracked.HostName = "half";
    urls.Cracked.Scheme = -1;
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
    urls.Answers = {{true, created, static_cast<Long>(created.size())}};
    EXPECT_EQ(url.CreateURL(), "http://ab");
    ExpectCalls({"Create, 256 bytes, flags 0"});
    EXPECT_EQ(urls.Parts.Size, 60);
    EXPECT_EQ(urls.Parts.Scheme, 3);
    EXPECT_EQ(urls.Parts.Port, 8080);
    EXPECT_EQ(urls.Parts.HostName, Wide("ab"));
    EXPECT_EQ(urls.Parts.UserName, Wide("u"));
    EXPECT_EQ(urls.Parts.Password, Wide("p"));
    EXPECT_EQ(urls.Parts.UrlPath, Wide("/x"));
    EXPECT_EQ(urls.Parts.ExtraInfo, Wide("?y"));
}

TEST_F(CreateUrlTest, AsksAgainWithTheReportedRoomForAsLongAsThereIsTooLittle) {
    urls.Answers = {{false, std::nullopt, 300}, {false, std::nullopt, 400}, {true, created, 18}};
    urls.Errors = {122, 122};
    EXPECT_EQ(url.CreateURL(), "http://ab");
    ExpectCalls({"Create, 256 bytes, flags 0", "GetLastError", "Create, 300 bytes, flags -2147483648", "GetLastError",
                 "Create, 400 bytes, flags -2147483648"});
}

TEST_F(CreateUrlTest, ALongerResultOfARetryIsCutTo256Bytes) {
    urls.Answers = {{false, std::nullopt, 300}, {true, Wide(std::string(150, 'a'))}};
    urls.Errors = {122};
    EXPECT_EQ(url.CreateURL(), std::string(128, 'a'));
    ExpectCalls({"Create, 256 bytes, flags 0", "GetLastError", "Create, 300 bytes, flags -2147483648"});
}

TEST_F(CreateUrlTest, AnyOtherErrorIsTheEmptyText) {
    urls.Answers = {{false, "left over"}};
    urls.Errors = {87};
    EXPECT_EQ(url.CreateURL(), "");
    ExpectCalls({"Create, 256 bytes, flags 0", "GetLastError"});
}

TEST_F(CreateUrlTest, AnotherErrorOfARetryIsTheEmptyTextToo) {
    urls.Answers = {{false}, {false}};
    urls.Errors = {122, 12005};
    EXPECT_EQ(url.CreateURL(), "");
    EXPECT_EQ(urls.Calls.size(), 4U);
}

}  // namespace
}  // namespace orvelle
