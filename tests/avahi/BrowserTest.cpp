#include "adapters/avahi/ServiceBrowser.h"

#include <csignal>

#include "tests/avahi/AvahiRig.h"

namespace orvelle::avahi {
namespace {

constexpr long long LongestTurn = 1000;  // milliseconds; the library waits for 25 seconds

class Browsing : public AvahiRig {
protected:
    void Browse() {
        browser.emplace(loop);
        browser->Came = [this](const FoundService& service) {
            told.push_back("came " + service.SetUp + " " + service.Host + ":" + std::to_string(service.Port));
        };
        browser->Went = [this](const FoundService& service) { told.push_back("went " + service.SetUp); };
        browser->Told = [this](const std::string& sentence) { sentences.push_back(sentence); };
    }
    bool Tells(const std::vector<std::string>& expected) {
        const bool tells = Until([&] { return told == expected; });
        EXPECT_EQ(told, expected);
        told.clear();
        return tells;
    }

    std::optional<ServiceBrowser> browser;
    std::vector<std::string> told;
    std::vector<std::string> sentences;
};

TEST_F(Browsing, SetUpsComeAndGo) {
    StartBus();
    StartDaemon();
    Browse();
    auto home = Announce("Home", 8883, {"version=1", "setup=Home"});
    EXPECT_TRUE(Tells({"came Home localhost.local:8883"}));
    const auto club = Announce("Club", 8884, {"setup=Club \xC3\xA4", "version=1", "more=unknown"});
    EXPECT_TRUE(Tells({"came Club \xC3\xA4 localhost.local:8884"}));
    EXPECT_EQ(browser->Found().size(), 2);
    home.reset();
    EXPECT_TRUE(Tells({"went Home"}));
    EXPECT_TRUE(browser->IsThere({"Club \xC3\xA4", "localhost.local", 8884}));
    EXPECT_TRUE(sentences.empty());
}

TEST_F(Browsing, WhatIsAnnouncedWronglyIsLeftOut) {
    StartBus();
    StartDaemon();
    std::vector<std::unique_ptr<linux::ChildProcess>> wrong;
    wrong.push_back(Announce("A", 8883, {"version=2", "setup=A"}));
    wrong.push_back(Announce("B", 8883, {"setup=B"}));
    wrong.push_back(Announce("C", 8883, {"version=1"}));
    wrong.push_back(Announce("D", 8883, {"version=1", "setup=\x1B[2J"}));
    wrong.push_back(Announce("E", 8883, {"version=1", "setup=\xFF"}));
    Browse();
    const auto right = Announce("Home", 8883, {"version=1", "setup=Home"});
    EXPECT_TRUE(Tells({"came Home localhost.local:8883"}));
}

TEST_F(Browsing, ADaemonThatComesLaterOrGoesAndComesBackIsFollowed) {
    StartBus();
    Browse();
    EXPECT_TRUE(Until([this] { return sentences.size() == 1; }));
    for (int round = 0; round < 2; ++round) {
        StartDaemon();
        const auto home = Announce("Home", 8883, {"version=1", "setup=Home"});
        EXPECT_TRUE(Tells({"came Home localhost.local:8883"}));
        StopDaemon();
        EXPECT_TRUE(Tells({"went Home"}));
    }
    EXPECT_EQ(sentences.size(), 1) << "it is told once";
}

TEST_F(Browsing, WithoutAMessageBusItIsToldOnceAndTheBusIsTakenWhenItComes) {
    Browse();
    EXPECT_TRUE(Until([this] { return sentences.size() == 1; }));
    for (int round = 0; round < 2; ++round) {
        StartBus();
        StartDaemon();
        const auto home = Announce("Home", 8883, {"version=1", "setup=Home"});
        EXPECT_TRUE(Tells({"came Home localhost.local:8883"}));
        StopBus();
        EXPECT_TRUE(Tells({"went Home"}));
        StopDaemon();
    }
    EXPECT_EQ(sentences.size(), 1);
}

// The daemon or the bus takes what is sent to it, and never answers.
TEST_F(Browsing, ADaemonThatHangsHoldsNobodyUpAndIsTakenWhenItGoesOn) {
    StartBus();
    StartDaemon();
    const auto home = Announce("Home", 8883, {"version=1", "setup=Home"});
    SignalDaemon(SIGSTOP);
    Browse();
    EXPECT_LT(LongestTurnIn(std::chrono::seconds(3)), LongestTurn);
    SignalDaemon(SIGCONT);
    EXPECT_TRUE(Tells({"came Home localhost.local:8883"}));
    SignalDaemon(SIGSTOP);
    const auto begin = std::chrono::steady_clock::now();
    browser.reset();
    Browse();
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(LongestTurn));
    EXPECT_LT(LongestTurnIn(std::chrono::seconds(1)), LongestTurn);
    browser.reset();
    SignalDaemon(SIGCONT);
}

TEST_F(Browsing, AMessageBusThatHangsHoldsNobodyUpAndIsTakenWhenItGoesOn) {
    StartBus();
    StartDaemon();
    const auto home = Announce("Home", 8883, {"version=1", "setup=Home"});
    SignalBus(SIGSTOP);
    Browse();
    EXPECT_LT(LongestTurnIn(std::chrono::seconds(3)), LongestTurn);
    SignalBus(SIGCONT);
    EXPECT_TRUE(Tells({"came Home localhost.local:8883"}));
}

}  // namespace
}  // namespace orvelle::avahi
