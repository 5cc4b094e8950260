// Voice engines as a panel has them, on one loop, beside a sound server of the test's own with a mouth and an ear for
// each: null sinks, "mouth1" whose monitor is the first engine's microphone, "ear1" its headset and "speakers1".
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "adapters/linux/PollEventLoop.h"
#include "apps/voice/VoiceEngine.h"
#include "tests/linux/ServeUntil.h"
#include "tests/pulse/ServerHand.h"
#include "tests/pulse/SoundProbe.h"
#include "tests/pulse/SoundServers.h"
#include "tests/shared/EngineEvents.h"
#include "tests/shared/OwnFolder.h"

namespace orvelle {

// Devices by number, in the order that they are named here.
class NamedDevices : public VoiceDevices {
public:
    explicit NamedDevices(const std::string& number)
        : inputs{"mouth" + number + ".monitor", "missing"}, outputs{"ear" + number, "speakers" + number} {}

    std::string InputNames() const override { return inputs[0] + "\n" + inputs[1] + "\n"; }
    std::string OutputNames() const override { return outputs[0] + "\n" + outputs[1] + "\n"; }
    std::string Microphone(Long device) const override { return device < 0 ? "" : inputs.at(Index(device)); }
    std::string Output(Long device) const override { return device < 0 ? "" : outputs.at(Index(device)); }

private:
    static std::size_t Index(Long device) { return static_cast<std::size_t>(device); }

    const std::vector<std::string> inputs, outputs;
};

// Asked in the user's place.
class AnsweredDialogs : public VoiceDialogs {
public:
    std::optional<Squelch> Calibrate(VoiceTrial& trial, const Squelch& now) override {
        return Calibration ? Calibration(trial, now) : std::nullopt;
    }
    Ticket AskPassword(const std::string& server, PasswordQuestion,
                       std::function<void(const std::optional<std::string>&)> answer) override {
        Asked.push_back(server);
        return question.Begin(std::move(answer));
    }

    // The answer to the question that stands.
    void Answer(const std::optional<std::string>& password) { question(password); }
    bool IsAsked() const { return !question.HasEnded(); }

    std::function<std::optional<Squelch>(VoiceTrial& trial, const Squelch& now)> Calibration;
    std::vector<std::string> Asked;

private:
    Attachment<const std::optional<std::string>&> question;
};

struct Pilot {
    Pilot(linux::PollEventLoop& loop, const std::string& number)
        : Name("ABC" + number + " (me)"), Devices(number), Engine(loop, Devices, Dialogs, Folder.Path / "voice") {
        Engine.InputDevice(0);
        Engine.OutputDevice(Headset, 0);
        Engine.OutputDevice(Speakers, 1);
        for (const Long output : {Headset, Speakers}) Engine.SignalVolume(output, 0);
        Engine.InputSquelch(0);
        Engine.OutputSquelch(0);
    }

    const std::string Name;  // a server has each once
    OwnFolder Folder;
    NamedDevices Devices;
    AnsweredDialogs Dialogs;
    VoiceEngine Engine;
    EngineEvents Events{Engine};
};

class VoiceEngineRig : public testing::Test {
protected:
    VoiceEngineRig() {
        sound.Start();
        hand.emplace();
        for (const char* const sink : {"mouth1", "ear1", "speakers1", "mouth2", "ear2", "speakers2"})
            modules[sink] = hand->Load("module-null-sink", std::string("rate=48000 sink_name=") + sink);
    }

    bool Until(const std::function<bool()>& isSo) { return linux::ServeUntil(loop, isSo); }
    bool HasRaised(const Pilot& pilot, const std::string& event) {
        return Until([&] { return std::ranges::count(pilot.Events.Seen(), event) > 0; });
    }
    // Runs, and nothing of that is left to be told.
    void StartEngine(Pilot& pilot) {
        ASSERT_TRUE(pilot.Engine.Start(EngineMode));
        ASSERT_TRUE(HasRaised(pilot, "Started"));
        pilot.Events.Take();
    }
    void Enter(Pilot& pilot, Long room, const std::string& address) {
        ASSERT_TRUE(pilot.Engine.RoomJoin(room, pilot.Name, address));
        ASSERT_TRUE(HasRaised(pilot, "JoinSucceed " + std::to_string(room))) << pilot.Engine.RoomStatus(room);
        pilot.Events.Take();
    }

    pulse::SoundFolder soundFolder;
    pulse::PulseAudioServer sound;
    std::optional<pulse::ServerHand> hand;
    std::map<std::string, std::uint32_t> modules;  // by sink
    linux::PollEventLoop loop;
};

}  // namespace orvelle
