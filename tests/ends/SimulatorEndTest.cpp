#include "adapters/ends/SimulatorEnd.h"

#include <gtest/gtest.h>

#include <vector>

#include "adapters/embedded/SimulatorLink.h"
#include "tests/shared/HandLoop.h"
#include "tests/shared/MemoryValues.h"

namespace orvelle {
namespace {

using Texts = std::vector<std::string>;

class SimulatorEndTest : public testing::Test {
protected:
    SimulatorEndTest() {
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
        far.SetLink(LinkState::Up);
        loop.Run();
        events.clear();
    }
    Texts Run(Long milliseconds = 0) {
        loop.Run(milliseconds);
        return std::exchange(events, {});
    }

    HandLoop loop;
    MemoryValues values;
    embedded::SimulatorLink far{loop};
    const ends::LineTable<SimulatorLine> lines{far};
    ends::SimulatorEnd velmarc{loop, values, lines, {"cockpit", "192.168.1.5"}};
    Texts events;
};

TEST_F(SimulatorEndTest, KeepsItsServerBetweenRuns) {
    EXPECT_EQ(velmarc.GetServer(), "AUTOMATIC");
    velmarc.SetServer("");
    embedded::SimulatorLink another(loop);
    const ends::LineTable<SimulatorLine> otherLines(another);
    ends::SimulatorEnd next(loop, values, otherLines, {});
    EXPECT_EQ(next.GetServer(), "");
    EXPECT_EQ(another.Server(), "");
}

TEST_F(SimulatorEndTest, TheLinkComesUpAndGoesDownFromTheLoop) {
    far.SetLink(LinkState::Up);
    EXPECT_FALSE(velmarc.LinkUp());
    EXPECT_EQ(velmarc.IPAddress(), "");
    EXPECT_TRUE(events.empty());
    EXPECT_EQ(Run(), Texts{"Connected"});
    EXPECT_TRUE(velmarc.LinkUp());
    EXPECT_EQ(velmarc.IPAddress(), "127.0.0.1");
    EXPECT_EQ(velmarc.ComputerName(), "FLIGHTDECK");
    EXPECT_EQ(velmarc.DesktopName(), "Simulator");
    far.SetLink(LinkState::Down);
    EXPECT_TRUE(velmarc.LinkUp());
    EXPECT_EQ(Run(), Texts{"Disconnected"});
    EXPECT_EQ(velmarc.DesktopName(), "");
}

TEST_F(SimulatorEndTest, TellsOfTheComputerThatTheDeckPlays) {
    far.SetComputer({"10.0.0.2", "COCKPIT", "Main"});
    Connect();
    EXPECT_EQ(velmarc.IPAddress() + " " + velmarc.ComputerName() + " " + velmarc.DesktopName(),
              "10.0.0.2 COCKPIT Main");
    EXPECT_EQ(far.Computer().ComputerName, "COCKPIT");
}

TEST_F(SimulatorEndTest, ALinkThatStandsAsWantedRaisesNothing) {
    Connect();
    far.SetLink(LinkState::Up);
    EXPECT_TRUE(loop.Idle());
}

TEST_F(SimulatorEndTest, EventsComeLateAndInOrder) {
    far.SetDelay(100);
    far.SetLink(LinkState::Up);
    far.PressKey("A");
    EXPECT_TRUE(Run(99).empty());
    far.SetDelay(0);
    far.ReleaseKey("A");
    EXPECT_EQ(Run(1), (Texts{"Connected", "KeyDown A of A", "KeyUp A"}));
}

TEST_F(SimulatorEndTest, SeesServersWhetherTheLinkStandsOrNot) {
    far.SeeServer("cockpit");
    far.SeeServer("cockpit");
    EXPECT_EQ(Run(), (Texts{"ServerFound cockpit", "ServerFound cockpit"}));
    EXPECT_EQ(far.ServersSeen(), Texts{"cockpit"});
}

TEST_F(SimulatorEndTest, KnowsThisComputerInAnyCase) {
    for (const char* name : {"localhost", "LOCALHOST", "127.0.0.1", "::1", "Cockpit", "192.168.1.5"})
        EXPECT_TRUE(velmarc.IsLocalAddress(name)) << name;
    for (const char* name : {"", "cockpi", "cockpit2", "192.168.1.50"})
        EXPECT_FALSE(velmarc.IsLocalAddress(name)) << name;
}

TEST_F(SimulatorEndTest, AKeyIsReportedWithAllThatIsHeld) {
    Connect();
    far.PressKey("Ctrl");
    far.PressKey("A");
    far.ReleaseKey("Ctrl");
    far.PressKey("F8");
    EXPECT_EQ(Run(), (Texts{"KeyDown Ctrl of Ctrl", "KeyDown A of Ctrl+A", "KeyUp Ctrl", "KeyDown F8 of A+F8"}));
    EXPECT_EQ(far.HeldSequence(), "A+F8");
}

TEST_F(SimulatorEndTest, AHeldKeyRepeats) {
    Connect();
    far.PressKey("Ctrl");
    far.PressKey("A");
    far.PressKey("A");
    far.RepeatKey("Ctrl");
    far.RepeatKey("B");
    EXPECT_EQ(Run(), (Texts{"KeyDown Ctrl of Ctrl", "KeyDown A of Ctrl+A", "KeyDown repeat A of Ctrl+A",
                            "KeyDown repeat Ctrl of Ctrl+A"}));
}

TEST_F(SimulatorEndTest, TellsWhetherTheSimulatorIsActive) {
    Connect();
    far.SetSimulatorActive(false);
    far.PressKey("A");
    far.SetSimulatorActive(true);
    EXPECT_EQ(Run(), Texts{"KeyDown inactive A of A"});
}

TEST_F(SimulatorEndTest, AButtonIsItsDeviceAndItsName) {
    Connect();
    EXPECT_TRUE(far.PressButton("Stick", "Button 3"));
    EXPECT_TRUE(far.PressButton("Stick", "Button 3"));
    EXPECT_EQ(far.HeldButtons(), Texts{"Stick.Button 3"});
    far.ReleaseButton("Stick", "Button 3");
    far.ReleaseButton("Stick", "Button 3");
    EXPECT_EQ(Run(), (Texts{"JoyDown Stick.Button 3", "JoyUp Stick.Button 3"}));
}

TEST_F(SimulatorEndTest, ALostLinkReleasesWhatIsHeldThenTellsOfTheLoss) {
    Connect();
    far.PressKey("Ctrl");
    far.PressButton("Stick", "Button 3");
    far.PressKey("A");
    Run();
    far.SetLink(LinkState::Down);
    EXPECT_EQ(Run(), (Texts{"KeyUp Ctrl", "KeyUp A", "JoyUp Stick.Button 3", "Disconnected"}));
    far.SetLink(LinkState::Up);
    far.ReleaseKey("A");
    far.RepeatKey("Ctrl");
    EXPECT_EQ(Run(), Texts{"Connected"});
}

TEST_F(SimulatorEndTest, ALossOvertakesNoPressThatIsOnItsWay) {
    Connect();
    far.SetDelay(100);
    far.PressKey("A");
    far.SetDelay(0);
    far.SetLink(LinkState::Down);
    EXPECT_EQ(Run(100), (Texts{"KeyDown A of A", "KeyUp A", "Disconnected"}));
}

TEST_F(SimulatorEndTest, NothingIsHeldWithoutALink) {
    EXPECT_FALSE(far.PressKey("A"));
    EXPECT_FALSE(far.PressButton("Stick", "Button 3"));
    EXPECT_EQ(far.HeldSequence(), "");
    EXPECT_TRUE(Run().empty());
}

TEST_F(SimulatorEndTest, KeepsTheLastSoundsThatTheFarSideWasAskedFor) {
    velmarc.PlaySound("unheard.wav");
    Connect();
    for (int number = 1; number <= 201; ++number) velmarc.PlaySound(std::to_string(number));
    EXPECT_EQ(far.SoundsPlayed(), 201U);
    ASSERT_EQ(far.Sounds().size(), 200U);
    EXPECT_EQ(far.Sounds().front(), "2");
    EXPECT_EQ(far.Sounds().back(), "201");
}

TEST_F(SimulatorEndTest, CountsClientReady) {
    velmarc.ClientReady();
    EXPECT_EQ(far.TimesReady(), 1U);
}

TEST_F(SimulatorEndTest, TellsTheDeckOfChangesFromTheLoop) {
    int told = 0;
    const auto ticket = far.Observe([&] { ++told; });
    velmarc.SetServer("other");
    velmarc.PlaySound("sound.wav");
    EXPECT_EQ(told, 0);
    Run();
    EXPECT_EQ(told, 1);
}

}  // namespace
}  // namespace orvelle
