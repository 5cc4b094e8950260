// Directories fetched from a real server by HTTPS, whose certificate is trusted for the tests alone.
#include "simulators/directory/DirectoryAddresses.h"

#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "adapters/linux/PollEventLoop.h"
#include "tests/linux/ChildProcess.h"
#include "tests/linux/ServeUntil.h"
#include "tests/shared/OwnFolder.h"
#include "tests/simulators/PlacedDirectories.h"

namespace orvelle::directory {
namespace {

namespace fs = std::filesystem;

// Its time runs faster, a second in a millisecond.
class SwiftLoop : public linux::PollEventLoop {
public:
    [[nodiscard]] Ticket After(Long milliseconds, Task task) override {
        return PollEventLoop::After(isSwift ? milliseconds / 1000 : milliseconds, std::move(task));
    }
    bool isSwift = false;
};

class DirectoryAddressesTest : public testing::Test {
protected:
    DirectoryAddressesTest() {
        Publish("Club");
        std::istringstream words(server.ReadLine());
        words >> port >> strangersPort >> plainPort;
        EXPECT_GT(plainPort, 0);
        setenv("CURL_CA_BUNDLE", (site.Path / "trusted.pem").c_str(), 1);
        setenv("no_proxy", "*", 1);
    }

    void Publish(const std::string& name) { std::ofstream(site.Path / "directory.json") << DirectoryNamed(name); }
    std::string At(const std::string& path) const { return "https://127.0.0.1:" + std::to_string(port) + path; }
    // How often the directory was sent, and how often that it has not changed.
    std::string Sent() { return server.Ask("count"); }

    // The directories of this run of the program.
    void Begin() {
        addresses.reset();
        told.clear();
        addresses = std::make_unique<DirectoryAddresses>(loop, data.Path);
        addresses->Told = [this](const std::string& sentence) { told.push_back(sentence); };
        addresses->Changed = [this] { ++changes; };
    }
    void BeginWith(const std::string& address) {
        Begin();
        ASSERT_EQ(addresses->Enter({address}), "");
    }
    bool Until(const std::function<bool()>& isSo) { return linux::ServeUntil(loop, isSo); }
    const DirectorySource::Found& First() const { return addresses->Directories().at(0); }
    std::string Name() const { return First().Content ? First().Content->Name : ""; }
    // What is told of an address that can't be had.
    std::string TroubleAt(const std::string& address) {
        BeginWith(address);
        EXPECT_TRUE(Until([this] { return !told.empty(); }));
        EXPECT_EQ(First().Content, nullptr);
        return First().Told.Trouble;
    }

    OwnFolder site, data;
    linux::ChildProcess server{{HTTPS_SERVER, site.Path.string()}};
    int port = 0;
    int strangersPort = 0;
    int plainPort = 0;
    SwiftLoop loop;
    std::vector<std::string> told;
    int changes = 0;
    std::unique_ptr<DirectoryAddresses> addresses;
};

std::string Children() {
    std::ostringstream all;
    all << std::ifstream("/proc/thread-self/children").rdbuf();
    return all.str();
}

TEST_F(DirectoryAddressesTest, OneThatIsEnteredIsFetchedAtOnceAndKeptForTheNextRun) {
    BeginWith("  127.0.0.1:" + std::to_string(port) + "/directory.json ");
    EXPECT_EQ(addresses->Addresses(), std::vector{At("/directory.json")});
    ASSERT_TRUE(Until([this] { return Name() == "Club"; }));
    EXPECT_EQ(First().Told.Source, At("/directory.json"));
    EXPECT_EQ(First().Told.Trouble, "");
    EXPECT_FALSE(First().Told.IsCopy);

    server.Kill(SIGKILL);
    server.Wait();
    Begin();
    std::string first;
    addresses->Changed = [&] { first += first.empty() ? Name() + std::to_string(told.size()) : ""; };
    ASSERT_TRUE(Until([this] { return !told.empty(); }));
    EXPECT_EQ(told[0], "The directory at " + At("/directory.json") +
                           " can't be had: its host can't be reached, or doesn't answer there; its last good copy "
                           "counts.");
    EXPECT_EQ(first, "Club0") << "before it was fetched";
    EXPECT_EQ(Name(), "Club");
    EXPECT_TRUE(First().Told.IsCopy);
}

TEST_F(DirectoryAddressesTest, WhatHasNotChangedIsNotSentAgain) {
    BeginWith(At("/moved"));
    ASSERT_TRUE(Until([this] { return Name() == "Club"; }));
    EXPECT_EQ(Sent(), "1 0");
    changes = 0;
    addresses->FetchNow();
    ASSERT_TRUE(Until([this] { return changes == 1; }));
    EXPECT_EQ(Sent(), "1 1");

    Begin();
    ASSERT_TRUE(Until([this] { return changes == 3; })) << "read, then confirmed";
    EXPECT_EQ(Sent(), "1 2");
    EXPECT_EQ(Name(), "Club");
    Publish("Another club");
    addresses->FetchNow();
    ASSERT_TRUE(Until([this] { return Name() == "Another club"; }));
}

TEST_F(DirectoryAddressesTest, OneThatIsAddedIsFetchedAlone) {
    const std::string before = Children();
    BeginWith(At("/directory.json"));
    ASSERT_TRUE(Until([this] { return Name() == "Club"; }));
    ASSERT_EQ(addresses->Enter({At("/directory.json"), At("/404")}), "");
    ASSERT_EQ(addresses->Enter({At("/404"), At("/directory.json")}), "");
    ASSERT_TRUE(Until([&] { return !told.empty() && Children() == before; }));
    EXPECT_EQ(Sent(), "1 0");
    addresses->FetchNow();
    ASSERT_TRUE(Until([this] { return Sent() == "1 1"; })) << "asked for, all are fetched";
}

TEST_F(DirectoryAddressesTest, ACopyThatWasDamagedIsFetchedAgain) {
    BeginWith(At("/directory.json"));
    ASSERT_TRUE(Until([this] { return Name() == "Club"; }));
    addresses.reset();
    for (const auto& file : fs::directory_iterator(data.Path / "directory-copies"))
        if (file.path().extension() == ".json") fs::resize_file(file.path(), 10);
    Begin();
    EXPECT_EQ(First().Content, nullptr);
    ASSERT_TRUE(Until([this] { return Name() == "Club"; }));
    EXPECT_EQ(Sent(), "2 0");
}

TEST_F(DirectoryAddressesTest, ItIsFetchedEachQuarterOfAnHour) {
    loop.isSwift = true;
    const auto begin = std::chrono::steady_clock::now();
    BeginWith(At("/without-etag"));
    ASSERT_TRUE(Until([this] { return Name() == "Club"; }));
    Publish("Another club");
    ASSERT_TRUE(Until([this] { return Name() == "Another club"; }));
    EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(900));
}

TEST_F(DirectoryAddressesTest, ATroubleIsToldOnceUntilItIsOver) {
    BeginWith(At("/directory.json"));
    ASSERT_TRUE(Until([this] { return Name() == "Club"; }));
    std::ofstream(site.Path / "directory.json") << "{\"servers\": {},\n\"format\": 1}";
    loop.isSwift = true;
    addresses->FetchNow();
    ASSERT_TRUE(Until([this] { return std::stoi(Sent()) >= 5; })) << "it is tried again by itself";
    const int triedAgain = changes;
    ASSERT_TRUE(Until([this, triedAgain] { return changes > triedAgain; }));
    ASSERT_EQ(told.size(), 1U);
    EXPECT_TRUE(told[0].starts_with("The directory at " + At("/directory.json") +
                                    " can't be had: it is no directory: line 2, format: "))
        << told[0];
    EXPECT_EQ(Name(), "Club");
    EXPECT_TRUE(First().Told.IsCopy);
    EXPECT_EQ(First().Told.FaultCount, 1U);

    Publish("Club");
    ASSERT_TRUE(Until([this] { return First().Told.Trouble.empty(); }));
    EXPECT_EQ(First().Told.FaultCount, 0U);
    std::ofstream(site.Path / "directory.json") << "{\"servers\": {},\n\"format\": 1}";
    addresses->FetchNow();
    ASSERT_TRUE(Until([this] { return told.size() == 2; }));
    EXPECT_EQ(told[1], told[0]);
}

TEST_F(DirectoryAddressesTest, OnesThatLeadToNothing) {
    EXPECT_EQ(TroubleAt(At("/404")), "There is nothing at this address (404).");
    EXPECT_EQ(TroubleAt(At("/403")), "Its server doesn't give it to everybody (403).");
    EXPECT_EQ(TroubleAt(At("/503")), "Its server has a trouble of its own (503).");
    EXPECT_EQ(TroubleAt(At("/204")), "Its server gives nothing there (204).");
    EXPECT_TRUE(TroubleAt(At("/empty")).starts_with("It is no directory: line 1"));
    EXPECT_EQ(TroubleAt(At("/breaks-off")), "The connection broke off before all was there.");
    EXPECT_EQ(TroubleAt(At("/endless")), "It leads on and on to other addresses.");
    EXPECT_EQ(TroubleAt(At("/to-plain")), "It leads on to an address that is not by HTTPS, which is not followed.");
}

TEST_F(DirectoryAddressesTest, OnesThatNobodyServes) {
    EXPECT_EQ(TroubleAt("https://nobody.invalid/"), "Its host is unknown, or this computer has no network.");
    EXPECT_EQ(TroubleAt("https://127.0.0.1:1/"), "Its host can't be reached, or doesn't answer there.");
    EXPECT_EQ(TroubleAt("https://127.0.0.1:" + std::to_string(plainPort) + "/directory.json"),
              "Its host doesn't speak HTTPS there.");
    EXPECT_TRUE(TroubleAt("https://127.0.0.1:" + std::to_string(strangersPort) + "/directory.json")
                    .starts_with("Its certificate can't be trusted: "));
    EXPECT_EQ(Sent(), "0 0");
}

TEST_F(DirectoryAddressesTest, OnesThatAreTooLong) {
    EXPECT_EQ(TroubleAt(At("/long")), "It is longer than 16 MiB.");
    EXPECT_EQ(TroubleAt(At("/without-end")), "It is longer than 16 MiB.");
    EXPECT_EQ(TroubleAt(At("/packed")), "It is longer than 16 MiB.");
}

TEST_F(DirectoryAddressesTest, TheProgramDoesNotWaitForOneThatHangs) {
    const std::string before = Children();
    BeginWith(At("/hangs"));
    ASSERT_TRUE(Until([&] { return Children() != before; }));
    addresses.reset();
    EXPECT_EQ(Children(), before) << "it is ended with the program";
}

TEST_F(DirectoryAddressesTest, WhatIsNoAddressIsNotEntered) {
    Begin();
    EXPECT_EQ(addresses->Enter({"http://example.org/club.json"}),
              "http://example.org/club.json is not fetched: the address of a directory begins with https://.");
    EXPECT_EQ(addresses->Enter({"file:///etc/passwd"}),
              "file:///etc/passwd is not fetched: the address of a directory begins with https://.");
    for (const std::string text : {"", " ", "https://", "https:///path", "/path", "a b", "a\tb", ":1", "?x", "a\xFF"})
        EXPECT_NE(addresses->Enter({At("/404"), text}), "") << text;
    EXPECT_NE(addresses->Enter({std::string(2001, 'a')}), "");
    EXPECT_EQ(addresses->Addresses(), std::vector<std::string>());
    std::vector<std::string> many;
    for (int number = 0; number < 21; ++number) many.push_back(At("/" + std::to_string(number)));
    EXPECT_NE(addresses->Enter(many), "");
    EXPECT_FALSE(fs::exists(data.Path / "directory-addresses.json"));
}

TEST_F(DirectoryAddressesTest, TheyAreInTheOrderInWhichTheyWereEnteredAndGoWithTheirCopies) {
    const std::string strange = "HTTPS://127.0.0.1:1/\"a\\b\"[1-3]?{x}";
    const std::string kept = "https" + strange.substr(5);
    Begin();
    ASSERT_EQ(addresses->Enter({strange, At("/directory.json"), At("/moved"), kept}), "");
    EXPECT_EQ(addresses->Addresses(), (std::vector{kept, At("/directory.json"), At("/moved")}));
    ASSERT_TRUE(
        Until([this] { return addresses->Directories().at(2).Content && addresses->Directories()[1].Content; }));
    Begin();
    EXPECT_EQ(addresses->Addresses(), (std::vector{kept, At("/directory.json"), At("/moved")}));
    ASSERT_EQ(addresses->Enter({At("/moved"), kept}), "");
    EXPECT_EQ(addresses->Addresses(), (std::vector{At("/moved"), kept}));
    EXPECT_TRUE(Until([this] { return Name() == "Club"; }));
    ASSERT_EQ(addresses->Enter({}), "");
    EXPECT_TRUE(fs::is_empty(data.Path / "directory-copies"));
    EXPECT_TRUE(addresses->Directories().empty());
}

TEST_F(DirectoryAddressesTest, AFileOfAddressesThatIsDamagedIsToldAndKeptAside) {
    std::ofstream(data.Path / "directory-addresses.json") << "{\"version\": 1, \"addresses\": [\"\"]}";
    Begin();
    ASSERT_TRUE(Until([this] { return !told.empty(); }));
    EXPECT_EQ(told[0], "The addresses of directories in " + (data.Path / "directory-addresses.json").string() +
                           " can't be read: it holds something else.");
    ASSERT_EQ(addresses->Enter({At("/404")}), "");
    EXPECT_TRUE(fs::exists(data.Path / "directory-addresses.json.damaged"));
}

TEST_F(DirectoryAddressesTest, WithoutCurlNothingIsFetched) {
    const std::string path = std::getenv("PATH");
    setenv("PATH", data.Path.c_str(), 1);
    EXPECT_EQ(TroubleAt(At("/directory.json")),
              "The program curl, which fetches it, is not installed on this computer.");
    setenv("PATH", path.c_str(), 1);
}

}  // namespace
}  // namespace orvelle::directory
