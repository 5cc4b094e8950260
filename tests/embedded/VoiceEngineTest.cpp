#include "adapters/embedded/SoundDevices.h"
#include "adapters/embedded/VoiceEngine.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/shared/EngineEvents.h"
#include "tests/shared/HandLoop.h"

namespace orvelle::embedded {
namespace {

using Texts = std::vector<std::string>;

class VoiceEngineTest : public testing::Test {
protected:
    VoiceEngineTest() {
        engine.VVL_RoomStatusChanged = [this](Long room) { statuses.push_back(engine.RoomStatus(room)); };
    }

    void StartEngine() {
        ASSERT_TRUE(engine.Start(3));
        Run();
    }
    void Enter(Long room) {
        ASSERT_TRUE(engine.RoomJoin(room, "ABC123 (me)", "srv1/ops"));
        Run();
    }
    Texts Run(Long milliseconds = 0) {
        loop.Run(milliseconds);
        return events.Take();
    }

    HandLoop loop;
    SoundDevices devices;
    VoiceEngine engine{loop, devices};
    EngineEvents events{engine};
    Texts statuses;
};

TEST_F(VoiceEngineTest, StartIsAnsweredFromTheLoopAfterItsDelay) {
    engine.SetStartDelay(300);
    EXPECT_FALSE(engine.IsStarting());
    EXPECT_TRUE(engine.Start(3));
    EXPECT_TRUE(engine.IsStarting());
    EXPECT_TRUE(engine.Start(3));
    EXPECT_FALSE(engine.Running());
    EXPECT_TRUE(Run(299).empty());
    EXPECT_EQ(Run(1), Texts{"Started"});
    EXPECT_TRUE(engine.Running());
    EXPECT_FALSE(engine.IsStarting());
    EXPECT_FALSE(engine.Start(3));
    EXPECT_TRUE(Run(1000).empty());
}

TEST_F(VoiceEngineTest, StartIsRefusedOrDiesOnDemand) {
    engine.SetStartOutcome(StartOutcome::Refused);
    EXPECT_FALSE(engine.Start(3));
    EXPECT_TRUE(loop.Idle());
    engine.SetStartOutcome(StartOutcome::Dies);
    EXPECT_TRUE(engine.Start(3));
    EXPECT_EQ(Run(), Texts{"Stopped"});
    EXPECT_FALSE(engine.Running());
}

TEST_F(VoiceEngineTest, AJoinSucceedsAfterItsDelay) {
    StartEngine();
    engine.SetJoinDelay(300);
    EXPECT_TRUE(engine.RoomJoin(1, "ABC123 (me)", "srv1/ops"));
    EXPECT_EQ(engine.Room(1).Presence, RoomPresence::Joining);
    EXPECT_EQ(engine.Room(1).ClientName, "ABC123 (me)");
    EXPECT_EQ(engine.Room(1).Address, "srv1/ops");
    EXPECT_TRUE(Run(299).empty());
    EXPECT_EQ(Run(1), (Texts{"JoinSucceed 1", "AudioStarted"}));
    EXPECT_EQ(engine.Room(1).Presence, RoomPresence::In);
    EXPECT_TRUE(engine.AudioRuns());
    EXPECT_EQ(statuses, (Texts{"Joining srv1/ops", "In srv1/ops"}));
}

TEST_F(VoiceEngineTest, AJoinIsRefusedOrFailsOnDemand) {
    EXPECT_FALSE(engine.RoomJoin(0, "ABC123", "srv1/ops"));
    StartEngine();
    EXPECT_FALSE(engine.RoomJoin(3, "ABC123", "srv1/ops"));
    EXPECT_FALSE(engine.RoomJoin(-1, "ABC123", "srv1/ops"));
    engine.SetJoinOutcome(0, JoinOutcome::Refused);
    EXPECT_FALSE(engine.RoomJoin(0, "ABC123", "srv1/ops"));
    EXPECT_TRUE(Run().empty());
    engine.SetJoinOutcome(0, JoinOutcome::Fails);
    EXPECT_TRUE(engine.RoomJoin(0, "ABC123", "srv1/ops"));
    EXPECT_EQ(Run(), Texts{"JoinFailed 0"});
    EXPECT_EQ(engine.Room(0).Presence, RoomPresence::Out);
    EXPECT_EQ(engine.RoomStatus(0), "Not joined");
}

TEST_F(VoiceEngineTest, LeavingTellsOnlyWhoWasIn) {
    StartEngine();
    engine.RoomLeave(0);
    engine.RoomLeave(9);
    EXPECT_TRUE(Run().empty());
    Enter(0);
    engine.RoomLeave(0);
    EXPECT_TRUE(events.Seen().empty());
    EXPECT_EQ(Run(), (Texts{"AudioStopped", "Left 0"}));
    EXPECT_EQ(engine.RoomStatus(0), "");
}

TEST_F(VoiceEngineTest, AJoinThatIsGivenUpNeverEnds) {
    StartEngine();
    engine.SetJoinDelay(300);
    engine.RoomJoin(0, "ABC123", "srv1/ops");
    engine.RoomLeave(0);
    EXPECT_TRUE(Run(1000).empty());
    engine.RoomJoin(0, "ABC123", "srv1/ops");
    Run(200);
    engine.RoomLeave(0);
    engine.RoomJoin(0, "ABC123", "srv1/other");
    EXPECT_TRUE(Run(299).empty());
    EXPECT_EQ(Run(1), (Texts{"JoinSucceed 0", "AudioStarted"}));
    EXPECT_EQ(engine.Room(0).Address, "srv1/other");
}

TEST_F(VoiceEngineTest, LeavingAndJoiningInOneGoTellsNothingOfTheLeaving) {
    StartEngine();
    Enter(0);
    engine.RoomLeave(0);
    engine.RoomJoin(0, "ABC123", "srv1/other");
    EXPECT_EQ(Run(), (Texts{"AudioStopped", "JoinSucceed 0", "AudioStarted"}));
    engine.RoomJoin(0, "ABC123", "srv1/ops");
    EXPECT_EQ(Run(), (Texts{"AudioStopped", "JoinSucceed 0", "AudioStarted"}));
    engine.RoomLeave(0);
    engine.RoomJoin(0, "ABC123", "srv1/ops");
    engine.RoomLeave(0);
    EXPECT_EQ(Run(), (Texts{"AudioStopped", "Left 0"}));
}

TEST_F(VoiceEngineTest, AKickTakesWhoIsInTheRoom) {
    StartEngine();
    engine.Kick(1);
    EXPECT_TRUE(Run().empty());
    Enter(1);
    engine.SetRoomAudio(1, true);
    Run();
    engine.Kick(1);
    EXPECT_EQ(Run(), (Texts{"RoomAudioStopped 1", "AudioStopped", "Kicked 1"}));
    EXPECT_EQ(engine.Room(1).Presence, RoomPresence::Out);
    engine.SetJoinDelay(100);
    engine.RoomJoin(1, "ABC123", "srv1/ops");
    engine.Kick(1);
    EXPECT_EQ(Run(100), (Texts{"JoinSucceed 1", "AudioStarted"}));
}

TEST_F(VoiceEngineTest, ARoomCarriesAudioWhileOneIsInIt) {
    StartEngine();
    engine.SetRoomAudio(2, true);
    EXPECT_TRUE(Run().empty());
    Enter(2);
    engine.SetRoomAudio(2, true);
    engine.SetRoomAudio(2, true);
    engine.SetRoomAudio(2, false);
    EXPECT_EQ(Run(), (Texts{"RoomAudioStarted 2", "RoomAudioStopped 2"}));
}

TEST_F(VoiceEngineTest, AStatusTextIsTold) {
    StartEngine();
    engine.SetRoomStatus(0, "three listeners");
    engine.SetRoomStatus(0, "three listeners");
    engine.SetRoomStatus(7, "nowhere");
    Run();
    EXPECT_EQ(statuses, Texts{"three listeners"});
}

TEST_F(VoiceEngineTest, StopsForGoodWithoutAWord) {
    StartEngine();
    Enter(0);
    engine.RoomJoin(1, "ABC123", "srv1/ops");
    engine.RoomLeave(0);
    engine.Stop();
    EXPECT_FALSE(engine.Running());
    engine.Kick(0);
    engine.Fail();
    EXPECT_TRUE(Run(1000).empty());
    EXPECT_EQ(engine.Room(0).Presence, RoomPresence::Out);
}

TEST_F(VoiceEngineTest, AFailureStopsTheEngineAndEmptiesTheRooms) {
    StartEngine();
    Enter(0);
    engine.RoomJoin(1, "ABC123", "srv1/ops");
    engine.Fail();
    EXPECT_FALSE(engine.Running());
    EXPECT_EQ(Run(1000), Texts{"Stopped"});
    EXPECT_EQ(engine.Room(1).Presence, RoomPresence::Out);
    StartEngine();
    EXPECT_TRUE(engine.Running());
}

TEST_F(VoiceEngineTest, KeepsWhatThePanelSets) {
    engine.InputSquelch(12.5);
    engine.OutputSquelch(30);
    engine.InputDevice(1);
    engine.OutputDevice(1, 2);
    engine.OutputVolume(0, 400);
    engine.SignalVolume(1, 70);
    engine.OutputFilter(1, true);
    engine.ChannelOutput(2, 1, true);
    engine.RoomMute(2, false);
    EXPECT_EQ(engine.InputSquelchValue(), 12.5);
    EXPECT_EQ(engine.OutputSquelchValue(), 30);
    EXPECT_EQ(engine.Microphone(), 1);
    EXPECT_EQ(engine.Output(1).Device, 2);
    EXPECT_EQ(engine.Output(0).Volume, 400);
    EXPECT_EQ(engine.Output(1).SignalVolume, 70);
    EXPECT_TRUE(engine.Output(1).Filter);
    EXPECT_FALSE(engine.Output(0).Filter);
    EXPECT_TRUE(engine.Room(2).Output[1]);
    EXPECT_FALSE(engine.Room(2).Output[0]);
    EXPECT_FALSE(engine.Room(2).Muted);
    EXPECT_TRUE(engine.Room(0).Muted);
}

TEST_F(VoiceEngineTest, NumbersOutOfRangeDoNothing) {
    engine.OutputDevice(2, 1);
    engine.OutputVolume(-1, 1);
    engine.ChannelOutput(3, 0, true);
    engine.ChannelOutput(0, 2, true);
    engine.RoomMute(3, false);
    engine.SetJoinOutcome(3, JoinOutcome::Fails);
    EXPECT_EQ(engine.RoomStatus(3), "");
    EXPECT_FALSE(engine.OutputStatus(2));
}

TEST_F(VoiceEngineTest, DevicesWorkWhileTheEngineRunsAndTheyDoNotFail) {
    EXPECT_FALSE(engine.InputStatus());
    EXPECT_FALSE(engine.OutputStatus(0));
    StartEngine();
    EXPECT_TRUE(engine.InputStatus());
    EXPECT_TRUE(engine.OutputStatus(0));
    EXPECT_TRUE(engine.OutputStatus(1));
    engine.FailInput(true);
    engine.FailOutput(1, true);
    EXPECT_FALSE(engine.InputStatus());
    EXPECT_TRUE(engine.OutputStatus(0));
    EXPECT_FALSE(engine.OutputStatus(1));
}

TEST_F(VoiceEngineTest, DeviceNamesEndWithALineFeedEach) {
    devices.SetInputs({"One", "Two"});
    devices.SetOutputs({});
    EXPECT_EQ(engine.InputDevices(), "One\nTwo\n");
    EXPECT_EQ(engine.OutputDevices(), "");
}

TEST_F(VoiceEngineTest, CalibratesByTheDialogueItIsGiven) {
    float input = 1;
    float output = 2;
    EXPECT_FALSE(engine.Calibrate(-1, 0, input, output));
    Ticket answers = engine.AnswerCalibration([](Long, Long) { return std::nullopt; });
    EXPECT_FALSE(engine.Calibrate(-1, 0, input, output));
    EXPECT_EQ(input, 1);
    answers = engine.AnswerCalibration([](Long microphone, Long headset) {
        return Squelch{static_cast<float>(microphone) + 0.5F, static_cast<float>(headset)};
    });
    EXPECT_TRUE(engine.Calibrate(-1, 3, input, output));
    EXPECT_EQ(input, -0.5F);
    EXPECT_EQ(output, 3);
    EXPECT_EQ(engine.InputSquelchValue(), -0.5);
    EXPECT_EQ(engine.OutputSquelchValue(), 3);
    answers.End();
    EXPECT_FALSE(engine.Calibrate(-1, 3, input, output));
}

}  // namespace
}  // namespace orvelle::embedded
