#include "simulators/flightgear/FlightGearLine.h"

#include <gtest/gtest.h>

#include "tests/simulators/FlightGearRig.h"

namespace orvelle::simulators {
namespace {

constexpr const char* Tuned = "COM1=118.305,COM2=121.500,CS=D-EABC\n";
constexpr const char* TunedAway = "COM1=119.100,COM2=121.500,CS=D-EABC\n";

TEST(FlightGearLineTest, ALineBringsTheSimulatorAndItsState) {
    FlightGearRig rig;
    LoopbackSocket flightGear;
    rig.Owners[flightGear.Port()] = 41;
    EXPECT_EQ(rig.Line.Stands(), Presence::Absent);
    EXPECT_FALSE(rig.Line.State());

    rig.Say(flightGear, Tuned);
    EXPECT_EQ(rig.Line.Stands(), Presence::Live);
    EXPECT_EQ(rig.Line.Run(), 1);
    ASSERT_TRUE(rig.Line.State());
    EXPECT_EQ(rig.Line.State()->Radios[0].Kilohertz, 118305);
    EXPECT_EQ(rig.Changes, 1);
}

TEST(FlightGearLineTest, AChangeIsToldOnceAndASameLineNever) {
    FlightGearRig rig;
    LoopbackSocket flightGear;
    rig.Owners[flightGear.Port()] = 41;
    for (int count = 0; count < 5; ++count) rig.Say(flightGear, Tuned);
    for (int count = 0; count < 5; ++count) rig.Say(flightGear, TunedAway);
    EXPECT_EQ(rig.Changes, 2);
    EXPECT_EQ(rig.Line.State()->Radios[0].Kilohertz, 119100);
    EXPECT_EQ(rig.Line.Lines(), 10U);
    EXPECT_EQ(rig.Asked, 1);
}

TEST(FlightGearLineTest, SeveralLinesOfADatagramAllCount) {
    FlightGearRig rig;
    LoopbackSocket flightGear;
    rig.Say(flightGear, std::string(Tuned) + "garbage\n" + TunedAway);
    EXPECT_EQ(rig.Line.Lines(), 3U);
    EXPECT_EQ(rig.Line.Refused(), 1U);
    EXPECT_EQ(rig.Line.State()->Radios[0].Kilohertz, 119100);
}

TEST(FlightGearLineTest, WhatIsNoLineBringsNothing) {
    FlightGearRig rig;
    LoopbackSocket stranger;
    for (const std::string& text :
         {std::string("hello"), std::string(2000, 'x'), std::string("COM1=nan\n"), std::string()})
        rig.Say(stranger, text);
    EXPECT_EQ(rig.Line.Stands(), Presence::Absent);
    EXPECT_EQ(rig.Line.Refused(), 3U);
    EXPECT_FALSE(rig.Line.State());
}

TEST(FlightGearLineTest, ThatLinesOfAnotherKindComeIsToldAsItBeginsAndEnds) {
    FlightGearRig rig;
    LoopbackSocket sender;
    for (int count = 0; count < 20; ++count) {
        rig.Say(sender, "118.305\n");
        rig.Loop.Run(100);
    }
    EXPECT_TRUE(rig.Line.IsOtherKind());
    EXPECT_EQ(rig.Changes, 1);
    rig.Loop.Run(2000);
    EXPECT_FALSE(rig.Line.IsOtherKind());
    EXPECT_EQ(rig.Changes, 2);

    rig.Say(sender, "118.305\n");
    rig.Say(sender, Tuned);
    EXPECT_FALSE(rig.Line.IsOtherKind());
    EXPECT_EQ(rig.Changes, 4);
    for (int count = 0; count < 20; ++count) rig.Say(sender, "118.305\nCOM1=118.305,COM2=121.500,CS=D-EABC\n");
    rig.Loop.Run(1000);
    EXPECT_EQ(rig.Changes, 4) << "a line among good ones is no news";
}

TEST(FlightGearLineTest, ALineThatIsTooLongIsCut) {
    FlightGearRig rig;
    LoopbackSocket flightGear;
    rig.Say(flightGear, "COM1=118.305,AIRCRAFT=c172p,CS=" + std::string(2000, 'x') + "\n");
    EXPECT_EQ(rig.Line.State()->Aircraft, "c172p");
    EXPECT_EQ(rig.Line.State()->Callsign, "");
}

TEST(FlightGearLineTest, SilenceIsBusyAndKeepsTheState) {
    FlightGearRig rig;
    LoopbackSocket flightGear;
    rig.Owners[flightGear.Port()] = 41;
    rig.Say(flightGear, Tuned);
    rig.Loop.Run(3'600'000);
    EXPECT_EQ(rig.Line.Stands(), Presence::Busy);
    EXPECT_TRUE(rig.Line.State());

    rig.Say(flightGear, Tuned);
    EXPECT_EQ(rig.Line.Stands(), Presence::Live);
    EXPECT_EQ(rig.Line.Run(), 1);
}

TEST(FlightGearLineTest, TheEndOfTheProcessIsTheEnd) {
    FlightGearRig rig;
    LoopbackSocket flightGear;
    rig.Owners[flightGear.Port()] = 41;
    rig.Say(flightGear, Tuned);
    flightGear.Send(rig.Line.Port(), Tuned);  // not read yet as its process ends
    rig.Owners[flightGear.Port()] = 0;
    rig.End(41);
    EXPECT_EQ(rig.Line.Stands(), Presence::Absent);
    EXPECT_FALSE(rig.Line.State());

    rig.BringLines();
    EXPECT_EQ(rig.Line.Stands(), Presence::Absent) << "what a process has left behind brings it back";
}

TEST(FlightGearLineTest, TheNextProcessIsAnotherRun) {
    FlightGearRig rig;
    LoopbackSocket first, second;
    rig.Owners = {{first.Port(), 41}, {second.Port(), 42}};
    rig.Say(first, Tuned);
    rig.End(41);
    rig.Say(second, Tuned);
    EXPECT_EQ(rig.Line.Run(), 2);
    EXPECT_EQ(rig.Line.Stands(), Presence::Live);
}

TEST(FlightGearLineTest, AResetIsTheSameRunFromAnotherPort) {
    FlightGearRig rig;
    LoopbackSocket before, after;
    rig.Owners = {{before.Port(), 41}, {after.Port(), 41}};
    rig.Say(before, Tuned);
    rig.Loop.Run(1690);
    rig.Say(after, TunedAway);
    EXPECT_EQ(rig.Line.Run(), 1);
    EXPECT_EQ(rig.Line.State()->Radios[0].Kilohertz, 119100);
}

TEST(FlightGearLineTest, OfTwoTheOneThatIsHeardCounts) {
    FlightGearRig rig;
    LoopbackSocket first, second;
    rig.Owners = {{first.Port(), 41}, {second.Port(), 42}};
    for (int count = 0; count < 20; ++count) {
        rig.Say(first, Tuned);
        rig.Say(second, TunedAway);
    }
    EXPECT_EQ(rig.Line.Run(), 1);
    EXPECT_EQ(rig.Line.State()->Radios[0].Kilohertz, 118305);
    EXPECT_EQ(rig.Asked, 2) << "who owns a port is asked too often";
    EXPECT_EQ(rig.Changes, 2) << "of the first one's state, and that there is a second one";
    EXPECT_EQ(rig.Line.Problem(), "Another FlightGear sends lines to port " + std::to_string(rig.Line.Port()) +
                                      ", too; they are left out while the first one is heard.");

    rig.Loop.Run(2500);
    rig.Say(second, TunedAway);
    EXPECT_EQ(rig.Line.Problem(), "") << "the first one is heard no more";
    EXPECT_EQ(rig.Line.Run(), 2);
    EXPECT_EQ(rig.Line.State()->Radios[0].Kilohertz, 119100);
}

TEST(FlightGearLineTest, ASecondOneIsToldOnceUntilItIsGone) {
    FlightGearRig rig;
    LoopbackSocket first, second;
    rig.Owners = {{first.Port(), 41}, {second.Port(), 42}};
    for (int count = 0; count < 10; ++count) {
        rig.Say(first, Tuned);
        if (count % 5 == 0) rig.Say(second, TunedAway);
        rig.Loop.Run(1000);
    }
    EXPECT_NE(rig.Line.Problem(), "");
    EXPECT_EQ(rig.Changes, 2) << "told again after a silence";
    for (int count = 0; count < 10; ++count) {
        rig.Say(first, Tuned);
        rig.Loop.Run(1000);
    }
    EXPECT_EQ(rig.Line.Problem(), "");
    EXPECT_EQ(rig.Changes, 3);
}

TEST(FlightGearLineTest, AResetOfAnUnknownProcessIsNoSecondOne) {
    FlightGearRig rig;
    LoopbackSocket before, after, other;
    rig.Owners[other.Port()] = 41;
    rig.Say(before, Tuned);
    rig.Say(after, TunedAway);
    EXPECT_EQ(rig.Line.Problem(), "");
    rig.Say(other, TunedAway);
    EXPECT_NE(rig.Line.Problem(), "") << "one that is known and one that isn't are two";
}

TEST(FlightGearLineTest, AnUnknownProcessIsGoneAfterTenSeconds) {
    FlightGearRig rig;
    LoopbackSocket tool;
    rig.Say(tool, Tuned);
    EXPECT_EQ(rig.Line.Stands(), Presence::Live);
    rig.Loop.Run(9900);
    EXPECT_EQ(rig.Line.Stands(), Presence::Busy);
    rig.Loop.Run(200);
    EXPECT_EQ(rig.Line.Stands(), Presence::Absent);
}

TEST(FlightGearLineTest, APortThatIsTakenIsToldAndTriedAgain) {
    auto holder = std::make_unique<LoopbackSocket>();
    FlightGearRig rig({}, holder->Port());
    EXPECT_EQ(rig.Line.Problem(), "FlightGear's lines can't be heard on port " + std::to_string(holder->Port()) +
                                      ", since another program has it; it is tried again each second.");
    EXPECT_EQ(rig.Line.PortProblem(), "FlightGear's lines can't be heard on port " + std::to_string(holder->Port()) +
                                          ", since another program has it.");
    rig.Loop.Run(5000);
    EXPECT_NE(rig.Line.Problem(), "");
    EXPECT_EQ(rig.Changes, 0);

    holder.reset();
    rig.Loop.Run(1000);
    EXPECT_EQ(rig.Line.Problem(), "");
    EXPECT_EQ(rig.Changes, 1);
    LoopbackSocket flightGear;
    rig.Say(flightGear, Tuned);
    EXPECT_TRUE(rig.Line.State());
}

TEST(FlightGearLineTest, NothingIsHeardButOverLoopback) {
    FlightGearRig rig;
    // The same port of another address would be taken by a socket that is bound to all of them.
    EXPECT_TRUE(BindUdp(OpenUdp(), {0x7F000002, rig.Line.Port()}));
}

TEST(FlightGearLineTest, AnAircraftsOwnPanelCounts) {
    AircraftOverrides aircraft;
    ASSERT_EQ(aircraft.Add(std::filesystem::path(FLIGHTGEAR_PACKAGED) / "aircraft.json"), "");
    FlightGearRig rig(std::move(aircraft));
    LoopbackSocket flightGear;
    rig.Say(flightGear, "COM1=118.305,COM2=121.500,/instrumentation/kma20/knob=0,AIRCRAFT=c172p,CS=\n");
    EXPECT_EQ(rig.Line.State()->Transmits, 2);
}

}  // namespace
}  // namespace orvelle::simulators
