#include "adapters/ends/VoiceEngineEnd.h"

#include <gtest/gtest.h>

#include <vector>

#include "adapters/embedded/SoundDevices.h"
#include "adapters/embedded/VoiceEngine.h"
#include "tests/shared/EngineEvents.h"
#include "tests/shared/HandLoop.h"

namespace orvelle::ends {
namespace {

using Texts = std::vector<std::string>;

class VoiceEngineEndTest : public testing::Test {
protected:
    VoiceEngineEndTest() {
        end.VVL_RoomStatusChanged = [this](Long room) { events.Note(end.RoomStatus(room), room); };
    }

    Texts Run() {
        loop.Run();
        return events.Take();
    }

    HandLoop loop;
    embedded::SoundDevices devices;
    embedded::VoiceEngine first{loop, devices};
    embedded::VoiceEngine second{loop, devices};
    embedded::VoiceEngine* chosen = &first;
    int asked = 0;
    VoiceEngineEnd end{loop, ServingEngine::Of(first), [this] {
                           ++asked;
                           return ServingEngine::Of(*chosen);
                       }};
    EngineEvents events{end};
};

TEST_F(VoiceEngineEndTest, EveryCallAndEventPasses) {
    ASSERT_TRUE(end.Start(EngineMode));
    EXPECT_TRUE(end.IsStarting());
    EXPECT_EQ(Run(), Texts{"Started"});
    EXPECT_TRUE(end.Running() && end.IsRunning());
    ASSERT_TRUE(end.RoomJoin(1, "ABC123", "srv/ops"));
    EXPECT_EQ(Run(), (Texts{"Joining srv/ops 1", "JoinSucceed 1", "In srv/ops 1", "AudioStarted"}));
    EXPECT_TRUE(end.AudioRuns());
    EXPECT_EQ(end.Room(1).ClientName, "ABC123");
    first.SetRoomAudio(1, true);
    first.Kick(1);
    EXPECT_EQ(Run(), (Texts{"RoomAudioStarted 1", "RoomAudioStopped 1", " 1", "AudioStopped", "Kicked 1"}));
    first.SetJoinOutcome(0, JoinOutcome::Fails);
    ASSERT_TRUE(end.RoomJoin(0, "ABC123", "srv/ops"));
    EXPECT_EQ(Run(), (Texts{"Joining srv/ops 0", "JoinFailed 0", "Not joined 0"}));
    ASSERT_TRUE(end.RoomJoin(2, "ABC123", "srv/ops"));
    Run();
    end.RoomLeave(2);
    EXPECT_EQ(Run(), (Texts{" 2", "AudioStopped", "Left 2"}));
    EXPECT_EQ(end.InputDevices(), first.InputDevices());
    EXPECT_EQ(end.OutputDevices(), first.OutputDevices());
    first.FailInput(true);
    first.FailOutput(1, true);
    EXPECT_FALSE(end.InputStatus());
    EXPECT_TRUE(end.InputFailed());
    EXPECT_TRUE(end.OutputStatus(0));
    EXPECT_FALSE(end.OutputStatus(1));
    first.Fail();
    EXPECT_EQ(Run(), Texts{"Stopped"});
}

TEST_F(VoiceEngineEndTest, AChoiceIsAskedForBeforeAStartAndHoldsWhileTheEngineIsInARoom) {
    end.RoomMute(0, true);
    EXPECT_EQ(asked, 0);
    chosen = &second;
    second.SetStartDelay(10);
    ASSERT_TRUE(end.Start(EngineMode));
    chosen = &first;
    EXPECT_TRUE(end.Start(EngineMode)) << "it is starting";
    EXPECT_EQ(asked, 1);
    loop.Run(10);
    EXPECT_EQ(events.Take(), Texts{"Started"});
    ASSERT_TRUE(end.RoomJoin(0, "ABC123", "srv/ops"));
    EXPECT_FALSE(end.Start(EngineMode)) << "it is on its way into a room";
    Run();
    EXPECT_FALSE(end.Start(EngineMode)) << "it is in a room";
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(second.IsRunning());
    EXPECT_FALSE(first.IsRunning());
    first.Start(EngineMode);
    EXPECT_TRUE(Run().empty()) << "what does not serve is not heard of";
    first.Stop();
    end.Stop();
    ASSERT_TRUE(end.Start(EngineMode));
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(Run(), Texts{"Started"});
    EXPECT_TRUE(first.IsRunning());
}

TEST_F(VoiceEngineEndTest, WhatWasSetCountsForWhoeverServes) {
    end.InputSquelch(30);
    end.InputSquelch(12.5);
    end.OutputSquelch(7);
    end.InputDevice(1);
    end.OutputDevice(Headset, 2);
    end.OutputDevice(Speakers, 0);
    end.OutputVolume(Headset, 300);
    end.SignalVolume(Speakers, 40);
    end.OutputFilter(Headset, true);
    end.ChannelOutput(2, Speakers, true);
    end.RoomMute(1, false);
    end.RoomMute(7, false);
    EXPECT_EQ(first.InputSquelchValue(), 12.5);
    chosen = &second;
    end.Start(EngineMode);
    EXPECT_EQ(second.InputSquelchValue(), 12.5);
    EXPECT_EQ(second.OutputSquelchValue(), 7);
    EXPECT_EQ(second.Microphone(), 1);
    EXPECT_EQ(second.Output(Headset).Device, 2);
    EXPECT_EQ(second.Output(Speakers).Device, 0);
    EXPECT_EQ(second.Output(Headset).Volume, 300);
    EXPECT_EQ(second.Output(Speakers).Volume, 100);
    EXPECT_EQ(second.Output(Speakers).SignalVolume, 40);
    EXPECT_TRUE(second.Output(Headset).Filter);
    EXPECT_TRUE(second.Room(2).Output[1]);
    EXPECT_FALSE(second.Room(2).Output[0]);
    EXPECT_FALSE(second.Room(1).Muted);
    EXPECT_TRUE(second.Room(0).Muted);
}

TEST_F(VoiceEngineEndTest, ACalibrationIsThatOfWhoeverServesThenAndStays) {
    chosen = &second;
    const Ticket answer = second.AnswerCalibration([](Long, Long) { return std::optional<Squelch>(Squelch{11, 22}); });
    float input = 0;
    float output = 0;
    ASSERT_TRUE(end.Calibrate(-1, -1, input, output));
    EXPECT_EQ(input, 11);
    EXPECT_EQ(output, 22);
    EXPECT_EQ(end.InputSquelchValue(), 11);
    chosen = &first;
    end.Start(EngineMode);
    EXPECT_EQ(first.InputSquelchValue(), 11);
    EXPECT_EQ(first.OutputSquelchValue(), 22);
}

TEST_F(VoiceEngineEndTest, WhoWatchesSeesTheOneThatServes) {
    int seen = 0;
    const Ticket watch = end.Observe([&] { ++seen; });
    chosen = &second;
    end.Start(EngineMode);
    Run();
    EXPECT_GT(std::exchange(seen, 0), 0);
    first.FailInput(true);
    Run();
    EXPECT_EQ(seen, 0);
    second.FailInput(true);
    Run();
    EXPECT_EQ(seen, 1);
    EXPECT_TRUE(end.InputFailed());
}

TEST_F(VoiceEngineEndTest, AnEngineThatRestsInNoRoomGivesWayToAnotherOne) {
    ASSERT_TRUE(end.Start(EngineMode));
    Run();
    ASSERT_TRUE(end.RoomJoin(0, "ABC123", "srv/ops"));
    Run();
    chosen = &second;
    EXPECT_TRUE(end.Running()) << "it is in a room";
    EXPECT_TRUE(first.IsRunning());
    end.RoomLeave(0);
    Run();
    EXPECT_FALSE(end.Running());
    EXPECT_FALSE(first.IsRunning());
    ASSERT_TRUE(end.Start(EngineMode));
    EXPECT_EQ(Run(), Texts{"Started"});
    EXPECT_TRUE(second.IsRunning());
    EXPECT_TRUE(end.Running()) << "nobody else is chosen";
}

TEST_F(VoiceEngineEndTest, AnEngineThatRestsIsStoppedForACalibrationAndOneInARoomIsNot) {
    float input = 0;
    float output = 0;
    bool ran = false;
    const Ticket answer = first.AnswerCalibration([&](Long, Long) {
        ran = first.IsRunning();
        return std::optional<Squelch>(Squelch{20, 30});
    });
    ASSERT_TRUE(end.Start(EngineMode));
    Run();
    ASSERT_TRUE(end.RoomJoin(0, "ABC123", "srv/ops"));
    Run();
    EXPECT_TRUE(end.Calibrate(0, 0, input, output));
    EXPECT_TRUE(ran);
    end.RoomLeave(0);
    Run();
    EXPECT_TRUE(end.Calibrate(0, 0, input, output));
    EXPECT_FALSE(ran);
    EXPECT_FALSE(end.Running());
    EXPECT_TRUE(end.Start(EngineMode));
}

}  // namespace
}  // namespace orvelle::ends
