#include "adapters/embedded/Velmarc.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/shared/HandLoop.h"
#include "tests/shared/MemoryValues.h"

namespace orvelle {
namespace {

using Texts = std::vector<std::string>;

class VelmarcTest : public testing::Test {
protected:
    VelmarcTest() {
        velmarc.Connected = [this] { events.push_back("Connected"); };
        velmarc.Disconnected = [this] { events.push_back(velmarc.LinkUp() ? "too early" : "Disconnected"); };
        velmarc.ServerFound = [this](const std::string& name) { events.push_back("ServerFound " + name); };
        velmarc.FSKeyDown = [this](bool repeat, bool active, const std::string& key, const std::string& sequence) {
            events.push_back(std::string("KeyDown ") + (repeat ? "repeat " : "") + (active ? "" : "inactive ") + key +
                             " of " + sequence);
        };
        velmarc.FSKeyUp = [this](Long, Long, const std::string& key, const std::string&) {
            events.push_back("KeyUp " + key);
        };
        velmarc.FSJoyDown = [this](Long, Long, const std::string& button, const std::string&) {
            events.push_back("JoyDown " + button);
        };
        velmarc.FSJoyUp = [this](Long, Long, const std::string& button, const std::string&) {
            events.push_back("JoyUp " + button);
        };
    }

    void Connect() {
        velmarc.SetLink(LinkState::Up);
        loop.Run();
        events.clear();
    }
    Texts Run(Long milliseconds = 0) {
        loop.Run(milliseconds);
        return std::exchange(events, {});
    }

    HandLoop loop;
    MemoryValues values;
    EmbeddedVelmarc velmarc{loop, values, {"cockpit", "192.168.1.5"}};
    Texts events;
};

TEST_F(VelmarcTest, KeepsItsServerBetweenRuns) {
    EXPECT_EQ(velmarc.GetServer(), "AUTOMATIC");
    velmarc.SetServer("");
    EmbeddedVelmarc next(loop, values, {});
    EXPECT_EQ(next.GetServer(), "");
}

TEST_F(VelmarcTest, TheLinkComesUpAndGoesDownFromTheLoop) {
    velmarc.SetLink(LinkState::Up);
    EXPECT_FALSE(velmarc.LinkUp());
    EXPECT_EQ(velmarc.IPAddress(), "");
    EXPECT_TRUE(events.empty());
    EXPECT_EQ(Run(), Texts{"Connected"});
    EXPECT_TRUE(velmarc.LinkUp());
    EXPECT_EQ(velmarc.IPAddress(), "127.0.0.1");
    EXPECT_EQ(velmarc.ComputerName(), "FLIGHTDECK");
    EXPECT_EQ(velmarc.DesktopName(), "Simulator");
    velmarc.SetLink(LinkState::Down);
    EXPECT_TRUE(velmarc.LinkUp());
    EXPECT_EQ(Run(), Texts{"Disconnected"});
    EXPECT_EQ(velmarc.DesktopName(), "");
}

TEST_F(VelmarcTest, TellsOfTheComputerThatTheDeckPlays) {
    velmarc.SetComputer({"10.0.0.2", "COCKPIT", "Main"});
    Connect();
    EXPECT_EQ(velmarc.IPAddress() + " " + velmarc.ComputerName() + " " + velmarc.DesktopName(),
              "10.0.0.2 COCKPIT Main");
    EXPECT_EQ(velmarc.Computer().ComputerName, "COCKPIT");
}

TEST_F(VelmarcTest, ALinkThatStandsAsWantedRaisesNothing) {
    Connect();
    velmarc.SetLink(LinkState::Up);
    EXPECT_TRUE(loop.Idle());
}

TEST_F(VelmarcTest, EventsComeLateAndInOrder) {
    velmarc.SetDelay(100);
    velmarc.SetLink(LinkState::Up);
    velmarc.PressKey("A");
    EXPECT_TRUE(Run(99).empty());
    velmarc.SetDelay(0);
    velmarc.ReleaseKey("A");
    EXPECT_EQ(Run(1), (Texts{"Connected", "KeyDown A of A", "KeyUp A"}));
}

TEST_F(VelmarcTest, SeesServersWhetherTheLinkStandsOrNot) {
    velmarc.SeeServer("cockpit");
    velmarc.SeeServer("cockpit");
    EXPECT_EQ(Run(), (Texts{"ServerFound cockpit", "ServerFound cockpit"}));
    EXPECT_EQ(velmarc.ServersSeen(), Texts{"cockpit"});
}

TEST_F(VelmarcTest, KnowsThisComputerInAnyCase) {
    for (const char* name : {"localhost", "LOCALHOST", "127.0.0.1", "::1", "Cockpit", "192.168.1.5"})
        EXPECT_TRUE(velmarc.IsLocalAddress(name)) << name;
    for (const char* name : {"", "cockpi", "cockpit2", "192.168.1.50"})
        EXPECT_FALSE(velmarc.IsLocalAddress(name)) << name;
}

TEST_F(VelmarcTest, AKeyIsReportedWithAllThatIsHeld) {
    Connect();
    velmarc.PressKey("Ctrl");
    velmarc.PressKey("A");
    velmarc.ReleaseKey("Ctrl");
    velmarc.PressKey("F8");
    EXPECT_EQ(Run(), (Texts{"KeyDown Ctrl of Ctrl", "KeyDown A of Ctrl+A", "KeyUp Ctrl", "KeyDown F8 of A+F8"}));
    EXPECT_EQ(velmarc.HeldSequence(), "A+F8");
}

TEST_F(VelmarcTest, AHeldKeyRepeats) {
    Connect();
    velmarc.PressKey("Ctrl");
    velmarc.PressKey("A");
    velmarc.PressKey("A");
    velmarc.RepeatKey("Ctrl");
    velmarc.RepeatKey("B");
    EXPECT_EQ(Run(), (Texts{"KeyDown Ctrl of Ctrl", "KeyDown A of Ctrl+A", "KeyDown repeat A of Ctrl+A",
                            "KeyDown repeat Ctrl of Ctrl+A"}));
}

TEST_F(VelmarcTest, TellsWhetherTheSimulatorIsActive) {
    Connect();
    velmarc.SetSimulatorActive(false);
    velmarc.PressKey("A");
    velmarc.SetSimulatorActive(true);
    EXPECT_EQ(Run(), Texts{"KeyDown inactive A of A"});
}

TEST_F(VelmarcTest, AButtonIsItsDeviceAndItsName) {
    Connect();
    EXPECT_TRUE(velmarc.PressButton("Stick", "Button 3"));
    EXPECT_TRUE(velmarc.PressButton("Stick", "Button 3"));
    EXPECT_EQ(velmarc.HeldButtons(), Texts{"Stick.Button 3"});
    velmarc.ReleaseButton("Stick", "Button 3");
    velmarc.ReleaseButton("Stick", "Button 3");
    EXPECT_EQ(Run(), (Texts{"JoyDown Stick.Button 3", "JoyUp Stick.Button 3"}));
}

TEST_F(VelmarcTest, ALostLinkReleasesWhatIsHeldThenTellsOfTheLoss) {
    Connect();
    velmarc.PressKey("Ctrl");
    velmarc.PressButton("Stick", "Button 3");
    velmarc.PressKey("A");
    Run();
    velmarc.SetLink(LinkState::Down);
    EXPECT_EQ(Run(), (Texts{"KeyUp Ctrl", "JoyUp Stick.Button 3", "KeyUp A", "Disconnected"}));
    velmarc.SetLink(LinkState::Up);
    velmarc.ReleaseKey("A");
    velmarc.RepeatKey("Ctrl");
    EXPECT_EQ(Run(), Texts{"Connected"});
}

TEST_F(VelmarcTest, ALossOvertakesNoPressThatIsOnItsWay) {
    Connect();
    velmarc.SetDelay(100);
    velmarc.PressKey("A");
    velmarc.SetDelay(0);
    velmarc.SetLink(LinkState::Down);
    EXPECT_EQ(Run(100), (Texts{"KeyDown A of A", "KeyUp A", "Disconnected"}));
}

TEST_F(VelmarcTest, NothingIsHeldWithoutALink) {
    EXPECT_FALSE(velmarc.PressKey("A"));
    EXPECT_FALSE(velmarc.PressButton("Stick", "Button 3"));
    EXPECT_EQ(velmarc.HeldSequence(), "");
    EXPECT_TRUE(Run().empty());
}

TEST_F(VelmarcTest, KeepsTheLastSoundsThatTheFarSideWasAskedFor) {
    velmarc.PlaySound("unheard.wav");
    Connect();
    for (int number = 1; number <= 201; ++number) velmarc.PlaySound(std::to_string(number));
    EXPECT_EQ(velmarc.SoundsPlayed(), 201U);
    ASSERT_EQ(velmarc.Sounds().size(), 200U);
    EXPECT_EQ(velmarc.Sounds().front(), "2");
    EXPECT_EQ(velmarc.Sounds().back(), "201");
}

TEST_F(VelmarcTest, CountsClientReady) {
    velmarc.ClientReady();
    EXPECT_EQ(velmarc.TimesReady(), 1U);
}

TEST_F(VelmarcTest, RaisesNothingAfterItStopped) {
    Connect();
    velmarc.PressKey("A");
    velmarc.Stop();
    velmarc.PressKey("B");
    velmarc.SeeServer("other");
    velmarc.SetLink(LinkState::Down);
    EXPECT_TRUE(Run().empty());
}

TEST_F(VelmarcTest, TellsTheDeckOfChangesFromTheLoop) {
    int told = 0;
    const auto ticket = velmarc.Changed.Observe([&] { ++told; });
    velmarc.SetServer("other");
    velmarc.PlaySound("sound.wav");
    EXPECT_EQ(told, 0);
    Run();
    EXPECT_EQ(told, 1);
}

}  // namespace
}  // namespace orvelle
