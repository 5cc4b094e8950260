#include "adapters/avahi/ServiceAnnouncement.h"

#include "adapters/avahi/ServiceBrowser.h"
#include "tests/avahi/AvahiRig.h"

namespace orvelle::avahi {
namespace {

class Announcing : public AvahiRig {
protected:
    bool Finds(const FoundService& service) {
        return Until([&] { return browser.IsThere(service); });
    }

    ServiceBrowser browser{loop};
};

TEST_F(Announcing, ASetUpIsFoundUntilItsAnnouncementEnds) {
    StartBus();
    StartDaemon();
    std::optional<ServiceAnnouncement> announcement(std::in_place, loop, "Home", 8884);
    const FoundService home{"Home", "localhost.local", 8884};
    EXPECT_TRUE(Finds(home));
    EXPECT_TRUE(Until([&] { return announcement->Known() == "Home"; }));
    announcement.reset();
    EXPECT_TRUE(Until([&] { return !browser.IsThere(home); }));
}

TEST_F(Announcing, OfTwoSetUpsOfOneNameTheLaterIsKnownByTheNext) {
    StartBus();
    StartDaemon();
    const ServiceAnnouncement first(loop, "Home", 8883);
    EXPECT_TRUE(Until([&] { return first.Known() == "Home"; }));
    const ServiceAnnouncement second(loop, "Home", 8884);
    EXPECT_TRUE(Until([&] { return second.Known() == "Home #2"; }));
    EXPECT_TRUE(Finds({"Home", "localhost.local", 8883}));
    EXPECT_TRUE(Finds({"Home", "localhost.local", 8884})) << "its own name stays";
}

TEST_F(Announcing, ADaemonThatComesLaterOrGoesAndComesBackIsTold) {
    std::vector<std::string> sentences;
    ServiceAnnouncement announcement(loop, "Home", 8883);
    announcement.Told = [&](const std::string& sentence) { sentences.push_back(sentence); };
    EXPECT_TRUE(Until([&] { return sentences.size() == 1; }));
    StartBus();
    for (int round = 0; round < 2; ++round) {
        StartDaemon();
        EXPECT_TRUE(Finds({"Home", "localhost.local", 8883}));
        StopDaemon();
        EXPECT_TRUE(Until([&] { return announcement.Known().empty() && browser.Found().empty(); }));
    }
    EXPECT_EQ(sentences.size(), 1);
}

TEST_F(Announcing, ANameThatIsTooLongIsCut) {
    StartBus();
    StartDaemon();
    std::string longName;
    for (int count = 0; count < 200; ++count) longName += "\xC3\xA4";
    const ServiceAnnouncement announcement(loop, longName, 8883);
    EXPECT_TRUE(Until([&] { return announcement.Known() == longName.substr(0, 62); }));
    EXPECT_TRUE(Finds({longName.substr(0, 248), "localhost.local", 8883}));
}

}  // namespace
}  // namespace orvelle::avahi
