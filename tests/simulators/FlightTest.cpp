// A flight from FlightGear's lines to another computer of the set-up, all programs real but FlightGear.
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <iostream>
#include <optional>

#include "apps/UserStrokes.h"
#include "tests/linux/XServer.h"
#include "tests/simulators/FlownSetUp.h"
#include "tests/simulators/SessionRig.h"

namespace orvelle::simulators {
namespace {

constexpr int KeyOfF8 = 74;

class FlightTest : public testing::Test {
protected:
    linux::ChildProcess Start(const std::string& megahertz) const {
        return linux::ChildProcess({FGFS, std::to_string(setUp.LinesPort()), megahertz});
    }
    bool Shows(const std::string& frequency) {
        return setUp.Until([&] { return setUp.Session.Handle != 0 && setUp.Session.Frequency[0] == frequency; });
    }
    bool HasRecord(const std::string& channel) {
        return setUp.Until([&] { return setUp.Session.Voice[0].Channel == channel; });
    }
    void ServeFor(Long milliseconds) {
        bool isOver = false;
        const Ticket over = setUp.Loop.After(milliseconds, [&] { isOver = true; });
        EXPECT_TRUE(setUp.Until([&] { return isOver; }));
    }

    linux::XServer server;
    FlownSetUp setUp{ORVELLE_SIM, ClubDirectory, server.Display()};
};

TEST_F(FlightTest, AFrequencyIsShownAtOnceAndItsRecordFollows) {
    std::optional<SessionSetting> first;
    setUp.Heard = [&] {
        if (!first && setUp.Session.Handle != 0) first = setUp.Session;
    };
    linux::ChildProcess flightGear = Start("118.300");
    ASSERT_TRUE(HasRecord("Keflavik Tower"));
    EXPECT_EQ(first->Frequency[0], "118.300");
    EXPECT_EQ(first->Callsign, "D-EABC");
    EXPECT_EQ(first->Voice[0], RadioVoiceSetting()) << "a record that nobody has waited for";

    flightGear.WriteLine("122.800");
    ASSERT_TRUE(Shows("122.800"));
    EXPECT_TRUE(HasRecord("Unicom"));
    EXPECT_EQ(setUp.Session.Handle, first->Handle);
}

TEST_F(FlightTest, AStoppedSimulatorLosesNothingAndAKilledOneItsSession) {
    UserStrokes user(server.Display());
    user.Press(KeyOfF8);
    EXPECT_TRUE(setUp.Until([&] { return setUp.Keys == std::vector<std::string>{"F8"}; }));
    std::optional<linux::ChildProcess> flightGear(
        std::in_place, std::vector<std::string>{FGFS, std::to_string(setUp.LinesPort()), "118.300"});
    ASSERT_TRUE(HasRecord("Keflavik Tower"));
    const SessionSetting flown = setUp.Session;
    const int sessions = setUp.Sessions, inputs = setUp.Inputs;
    bool isReleased = false;
    setUp.Heard = [&] { isReleased = isReleased || setUp.Keys.empty(); };

    flightGear->Kill(SIGSTOP);
    ServeFor(5000);
    EXPECT_EQ(setUp.Sessions, sessions) << "something was told of a session whose simulator is silent";
    EXPECT_EQ(setUp.Session, flown);
    EXPECT_FALSE(isReleased);
    EXPECT_GT(setUp.Inputs, inputs) << "the key's lease wasn't renewed";
    flightGear->Kill(SIGCONT);
    flightGear->WriteLine("119.100");
    ASSERT_TRUE(Shows("119.100"));
    EXPECT_EQ(setUp.Session.Handle, flown.Handle);

    const auto killed = std::chrono::steady_clock::now();
    flightGear->Kill(SIGKILL);
    ASSERT_TRUE(setUp.Until([&] { return setUp.Session.Handle == 0; }));
    const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - killed;
    std::cout << "from the kill to the end of the session: " << taken.count() << " ms\n";
    EXPECT_LT(taken.count(), 5000) << "it was not told by its process, but forgotten";
    EXPECT_FALSE(isReleased);

    flightGear.emplace(std::vector<std::string>{FGFS, std::to_string(setUp.LinesPort()), "118.300"});
    ASSERT_TRUE(HasRecord("Keflavik Tower"));
    EXPECT_NE(setUp.Session.Handle, flown.Handle);
    user.Release(KeyOfF8);
    EXPECT_TRUE(setUp.Until([&] { return setUp.Keys.empty(); }));
}

}  // namespace
}  // namespace orvelle::simulators
