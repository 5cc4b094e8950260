// X-Plane on another computer, beside one on this computer, and interfaces that come later. On a host of its own, as
// interfaces are made.
#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "tests/simulators/OtherHost.h"
#include "tests/simulators/XPlaneRig.h"

namespace orvelle::simulators {
namespace {

// A rig whose own X-Plane has not been started, and one there.
class XPlaneNetworkTest : public testing::Test {
protected:
    XPlaneNetworkTest() {
        rig.Server.Stop();
        there->BeaconInterface = "192.0.2.2";
        there->Values[Com1] = 119100;
    }
    // The kernel takes its time until a new interface carries packets, on its own clock.
    bool PassUntil(const std::function<bool()>& isSo) {
        for (int step = 0; step < 5000; ++step) {
            if (isSo()) return true;
            there->Pass(XPlaneRig::Step);
            rig.Pass(XPlaneRig::Step);
            rig.Loop.Serve();
        }
        return false;
    }
    std::unique_ptr<XPlaneServer> Started() {
        std::unique_ptr<XPlaneServer> made;
        other.Do([&] { made = std::make_unique<XPlaneServer>(rig.Server.BeaconPort()); });
        return made;
    }

    OtherHost other;
    XPlaneRig rig;
    std::unique_ptr<XPlaneServer> there = Started();
};

TEST_F(XPlaneNetworkTest, OneOfAnotherComputerIsFoundByAnInterfaceThatComesLater) {
    other.Join();
    EXPECT_TRUE(PassUntil([&] { return rig.Tells(119100); }));
    EXPECT_EQ(rig.Asked, 0) << "whose process it is";
    EXPECT_EQ(rig.Source.Name(), "X-Plane 12 on cockpit");
}

TEST_F(XPlaneNetworkTest, OneOfThisComputerTakesOverAndGivesBack) {
    other.Join();
    ASSERT_TRUE(PassUntil([&] { return rig.Tells(119100); }));
    const int run = rig.Source.Run();
    rig.Process = 41;
    rig.Server.Start();
    EXPECT_TRUE(PassUntil([&] { return rig.Tells(118305); }));
    EXPECT_EQ(rig.Source.Run(), run + 1);
    EXPECT_EQ(rig.Source.Name(), "X-Plane 12");
    EXPECT_TRUE(PassUntil([&] { return there->Subscriptions() == 0; })) << "nothing is asked there any more";
    rig.Kill();
    EXPECT_TRUE(PassUntil([&] { return rig.Tells(119100); }));
    EXPECT_EQ(rig.Source.Run(), run + 2);
}

TEST_F(XPlaneNetworkTest, OneOfThisComputerThatSendsItsBeaconOverTheNetworkIsAskedOverLoopback) {
    there->Stop();
    other.Join();
    rig.Process = 41;
    rig.Server.BeaconInterface = "192.0.2.1";
    rig.Server.Start();
    ASSERT_TRUE(PassUntil([&] { return rig.Tells(118305); }));
    EXPECT_EQ(rig.Asked, 1) << "it is this computer's";
    EXPECT_EQ(rig.Server.SubscribersAddress(), "127.0.0.1");

    // So it is asked again also without the network.
    other.Leave();
    rig.Server.SendsBeacons = false;
    rig.Server.Stop();
    rig.Server.Start();
    EXPECT_TRUE(PassUntil([&] { return rig.Server.Subscriptions() > 0; }));
}

TEST_F(XPlaneNetworkTest, OneThatDoesNotAnswerIsToldByItsAddress) {
    there->Answers = false;
    other.Join();
    EXPECT_TRUE(PassUntil([&] { return !rig.Source.Problem().empty(); }));
    EXPECT_EQ(rig.Source.Problem().rfind("X-Plane 12 is there at 192.0.2.2, but doesn't answer on port ", 0), 0U)
        << rig.Source.Problem();
}

}  // namespace
}  // namespace orvelle::simulators
