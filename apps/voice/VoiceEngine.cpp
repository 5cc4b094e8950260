#include "apps/voice/VoiceEngine.h"

#include <cerrno>
#include <exception>
#include <system_error>
#include <utility>

#include "apps/voice/DeviceTrial.h"

namespace orvelle {

VoiceEngine::VoiceEngine(EventLoop& eventLoop, VoiceDevices& voiceDevices, VoiceDialogs& voiceDialogs,
                         std::filesystem::path ownFolder)
    : loop(eventLoop),
      devices(voiceDevices),
      dialogs(voiceDialogs),
      folder(std::move(ownFolder)),
      changes(eventLoop),
      rooms(*this, [this](std::function<void()> event) {
          changes.Mark();
          if (inbox) inbox->Post(std::move(event));
      }) {
    rooms.Told = [this](const std::string& sentence) { Told(sentence); };
}

VoiceEngine::~VoiceEngine() { Stop(); }

bool VoiceEngine::Start(Long) {
    if (running) return false;
    if (std::exchange(starting, true)) return true;
    changes.Mark();
    try {
        inbox = std::make_shared<LoopInbox>();
        if (inbox->Descriptor() < 0) throw std::system_error(errno, std::generic_category(), "eventfd");
        brought = loop.WhenReadable(inbox->Descriptor(), [inbox = inbox] { inbox->Run(); });
        work = std::make_unique<WorkThread<VoiceWork>>(
            [this, toPanel = inbox](EventLoop& threadsLoop) { return NewWork(threadsLoop, toPanel); });
        HandOver();
    } catch (const std::exception& error) {
        notBegun = loop.After(0, [this, why = std::string(error.what())] { NotBegun(why); });
    }
    return true;
}

void VoiceEngine::Stop() {
    ShutDown();
    changes.Mark();
}

// On the voice thread. Whatever it tells it tells the panel's loop, in order.
std::unique_ptr<VoiceWork> VoiceEngine::NewWork(EventLoop& threadsLoop, const std::shared_ptr<LoopInbox>& toPanel) {
    std::unique_ptr<VoiceWork> made;
    try {
        made = std::make_unique<VoiceWork>(threadsLoop, folder);
    } catch (const std::exception& error) {
        toPanel->Post([this, why = std::string(error.what())] { NotBegun(why); });
        return nullptr;
    }
    made->RoomChanged = [this, toPanel](const RoomNews& news) {
        toPanel->Post([this, news] {
            rooms.Take(news);
            changes.Mark();
        });
    };
    made->DevicesChanged = [this, toPanel](const DeviceNews& news) {
        toPanel->Post([this, news] { TakeDevices(news); });
    };
    made->PasswordWanted = [this, toPanel](const std::string& server, PasswordQuestion question) {
        toPanel->Post([this, server, question] { AskPassword(server, question); });
    };
    toPanel->Post([this] { Begun(); });
    return made;
}

void VoiceEngine::Do(std::function<void(VoiceWork& work)> task) {
    changes.Mark();
    if (work) work->Do(std::move(task));
}

void VoiceEngine::Count(Long output, std::function<void(const speech::BlockCounts&)> answer) {
    if (!Find(output)) return;
    Do([output, toPanel = inbox, answer = std::move(answer)](VoiceWork& voice) {
        toPanel->Post([counted = voice.Incoming().Mix(output).Counted(), answer] { answer(counted); });
    });
}

void VoiceEngine::HandOver() {
    InputSquelch(inputSquelchValue);
    OutputSquelch(outputSquelchValue);
    InputDevice(microphone);
    for (Long output : {Headset, Speakers}) {
        const VoiceOutput set = Output(output);
        OutputDevice(output, set.Device);
        OutputVolume(output, set.Volume);
        SignalVolume(output, set.SignalVolume);
        OutputFilter(output, set.Filter);
    }
    for (Long room = 0; room < Rooms; ++room) {
        const VoiceRoom set = Room(room);
        for (Long output : {Headset, Speakers})
            ChannelOutput(room, output, set.Output.at(static_cast<std::size_t>(output)));
        RoomMute(room, set.Muted);
    }
}

void VoiceEngine::Begun() {
    starting = false;
    running = true;
    changes.Mark();
    VVL_Started();
}

void VoiceEngine::NotBegun(const std::string& why) {
    Stop();
    Told("The voice engine could not be started: " + why + ".");
    VVL_Stopped();
}

// What the thread still says goes nowhere.
void VoiceEngine::ShutDown() {
    if (inbox) inbox->Close();
    brought.End();
    notBegun.End();
    questions.clear();
    work.reset();
    inbox.reset();
    starting = running = false;
    rooms.Clear();
    TakeDevices({});
}

void VoiceEngine::TakeDevices(const DeviceNews& news) {
    failed = news;
    for (std::size_t output = 0; output < outputs.size(); ++output)
        outputs.at(output).Failed = news.OutputFailed.at(output);
    changes.Mark();
}

// One question for all rooms at that server.
void VoiceEngine::AskPassword(const std::string& server, PasswordQuestion question) {
    if (questions.contains(server)) return;
    const auto answer = [this, server](const std::optional<std::string>& password) {
        Do([server, password](VoiceWork& rooms) { rooms.GivePassword(server, password); });
        questions.erase(server);
    };
    questions[server] = dialogs.AskPassword(server, question, answer);
}

bool VoiceEngine::RoomJoin(Long room, const std::string& clientName, const std::string& roomAddress) {
    if (!running || !rooms.Find(room)) return false;
    RoomLeave(room);
    std::string why;
    const std::optional<mumble::RoomAddress> address = mumble::ReadRoomAddress(roomAddress, why);
    if (!address) {
        rooms.Refuse(room, clientName, roomAddress, why);
        return false;
    }
    Do([room, clientName, address = *address, attempt = rooms.Join(room, clientName, roomAddress)](VoiceWork& voice) {
        voice.Join(room, attempt, clientName, address);
    });
    return true;
}

void VoiceEngine::RoomLeave(Long room) {
    if (!rooms.Find(room)) return;
    rooms.Leave(room);
    Do([room](VoiceWork& voice) { voice.Leave(room); });
}

std::string VoiceEngine::RoomStatus(Long room) {
    const VoiceRoom* place = rooms.Find(room);
    return place ? place->Status : "";
}

bool VoiceEngine::Calibrate(Long inputDevice, Long outputDevice, float& inputSquelch, float& outputSquelch) {
    if (running || starting) return false;
    std::optional<Squelch> found;
    try {
        DeviceTrial trial(devices.Microphone(inputDevice), devices.Output(outputDevice));
        found =
            dialogs.Calibrate(trial, {static_cast<float>(inputSquelchValue), static_cast<float>(outputSquelchValue)});
    } catch (const std::exception& error) {
        Told("The devices could not be tried: " + std::string(error.what()) + ".");
    }
    if (!found) return false;
    InputSquelch(inputSquelch = found->Input);
    OutputSquelch(outputSquelch = found->Output);
    return true;
}

}  // namespace orvelle
