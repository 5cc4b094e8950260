#include "adapters/embedded/SetUp.h"

#include <gtest/gtest.h>

#include <optional>

#include "adapters/ends/FrameworkEnd.h"
#include "adapters/ends/SimulatorEnd.h"
#include "tests/shared/HandLoop.h"
#include "tests/shared/MemoryValues.h"

namespace orvelle::embedded {
namespace {

// A set-up with the panel's ends of both links on it.
struct House {
    explicit House(HandLoop& loop) : Practice(loop) {}

    MemoryValues Values;
    SetUp Practice;
    ends::LineTable<SimulatorLine> SimulatorLines{Practice.SimulatorLink};
    ends::LineTable<FrameworkLine> FrameworkLines{Practice.NetworkLink};
};

class SetUpTest : public testing::Test {
protected:
    SetUpTest() {
        const auto count = [this](const auto&...) { ++raised; };
        velmarc->Connected = count;
        velmarc->Disconnected = count;
        velmarc->FSKeyDown = count;
        velmarc->FSKeyUp = count;
        tessaly->Connected = count;
        tessaly->SessionOpened = count;
        tessaly->InterfaceAppeared = count;
        house->Practice.VVL.VVL_Started = count;
        house->Practice.VolumeControl.InputOpened = count;
        house->Practice.VolumeControlHP.OutputOpened = count;
    }
    void SetAllGoing() {
        tessaly->LinkStart();
        tessaly->CreateInterface("VOICE", "RWCom1");
        house->Practice.NetworkLink.SetLink(LinkState::Up);
        house->Practice.NetworkLink.StartSession();
        house->Practice.SimulatorLink.SetLink(LinkState::Up);
        house->Practice.SimulatorLink.PressKey("A");
        house->Practice.VVL.SetStartDelay(100);
        house->Practice.VVL.Start(3);
        house->Practice.VolumeControl.Open();
        house->Practice.VolumeControlHP.Open();
    }

    HandLoop loop;
    std::optional<House> house{std::in_place, loop};
    std::optional<ends::SimulatorEnd> velmarc{std::in_place, loop, house->Values, house->SimulatorLines,
                                              std::vector<std::string>{}};
    std::optional<ends::FrameworkEnd> tessaly{std::in_place, loop, house->Values, house->FrameworkLines};
    int raised = 0;
};

TEST_F(SetUpTest, NothingIsRaisedIntoEndsThatAreGone) {
    SetAllGoing();
    house->Practice.VVL.Stop();
    house->Practice.VolumeControl.Close();
    house->Practice.VolumeControlHP.Close();
    velmarc.reset();
    tessaly.reset();
    house->Practice.SimulatorLink.SetLink(LinkState::Down);
    house->Practice.NetworkLink.SetLink(LinkState::Down);
    loop.Run(10000);
    EXPECT_EQ(raised, 0);
}

TEST_F(SetUpTest, NothingIsRaisedIntoASetUpThatIsGone) {
    SetAllGoing();
    velmarc.reset();
    tessaly.reset();
    house.reset();
    loop.Run(10000);
    EXPECT_EQ(raised, 0);
}

TEST_F(SetUpTest, AllItsSidesAreThere) {
    const FarSides sides = house->Practice.Sides();
    EXPECT_TRUE(sides.Simulator && sides.SimulatorLink && sides.Network && sides.NetworkLink && sides.VoiceEngine &&
                sides.HeadsetMixer && sides.SpeakersMixer && sides.TeamSpeak && sides.Devices);
    EXPECT_FALSE(sides.Notices);
}

}  // namespace
}  // namespace orvelle::embedded
