// The voice engine that is heard, as the panel has it: the half on the panel's thread, which answers at once and keeps
// what the panel reads back. The work is done on a thread of its own from Start to Stop; what comes of it is brought in
// order by the panel's loop, and nothing is after Stop. Nothing here waits but the end of that thread, which is prompt.
#pragma once

#include <array>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "adapters/shared/Changes.h"
#include "adapters/shared/LoopInbox.h"
#include "apps/voice/PanelRooms.h"
#include "apps/voice/VoiceModule.h"
#include "apps/voice/VoiceWork.h"
#include "apps/voice/WorkThread.h"

namespace orvelle {

class VoiceEngine : public HeardVoiceEngine {
public:
    // All of these outlive it.
    VoiceEngine(EventLoop& eventLoop, VoiceDevices& voiceDevices, VoiceDialogs& voiceDialogs,
                std::filesystem::path ownFolder);
    VoiceEngine(const VoiceEngine&) = delete;
    VoiceEngine& operator=(const VoiceEngine&) = delete;
    ~VoiceEngine() override;

    bool Running() override { return running; }
    bool Start(Long mode) override;
    void Stop() override;
    void InputSquelch(double value) override;
    void OutputSquelch(double value) override;
    std::string InputDevices() override { return devices.InputNames(); }
    std::string OutputDevices() override { return devices.OutputNames(); }
    void InputDevice(Long device) override;
    void OutputDevice(Long output, Long device) override;
    void OutputVolume(Long output, Long value) override;
    void SignalVolume(Long output, Long value) override;
    void OutputFilter(Long output, bool on) override;
    void ChannelOutput(Long room, Long output, bool on) override;
    bool InputStatus() override { return running && !failed.InputFailed; }
    bool OutputStatus(Long output) override;
    bool RoomJoin(Long room, const std::string& clientName, const std::string& roomAddress) override;
    void RoomLeave(Long room) override;
    void RoomMute(Long room, bool mute) override;
    std::string RoomStatus(Long room) override;
    bool Calibrate(Long inputDevice, Long outputDevice, float& inputSquelch, float& outputSquelch) override;

    bool IsRunning() const override { return running; }
    bool IsStarting() const override { return starting; }
    bool AudioRuns() const override { return rooms.AudioRuns(); }
    const VoiceRoom& Room(Long room) const override { return rooms.At(room); }
    const VoiceOutput& Output(Long output) const override { return outputs.at(static_cast<std::size_t>(output)); }
    Long Microphone() const override { return microphone; }
    bool InputFailed() const override { return failed.InputFailed; }
    double InputSquelchValue() const override { return inputSquelchValue; }
    double OutputSquelchValue() const override { return outputSquelchValue; }
    void Count(Long output, std::function<void(const speech::BlockCounts&)> answer) override;
    Ticket Observe(std::function<void()> observer) override { return changes.Observe(std::move(observer)); }

private:
    static constexpr double FirstSquelch = 50;

    std::unique_ptr<VoiceWork> NewWork(EventLoop& threadsLoop, const std::shared_ptr<LoopInbox>& toPanel);
    void Do(std::function<void(VoiceWork& work)> task);
    void HandOver();
    void Begun();
    void NotBegun(const std::string& why);
    void ShutDown();
    void TakeDevices(const DeviceNews& news);
    void AskPassword(const std::string& server, PasswordQuestion question);
    VoiceOutput* Find(Long output);
    std::string DeviceOf(Long output) const;

    EventLoop& loop;
    VoiceDevices& devices;
    VoiceDialogs& dialogs;
    const std::filesystem::path folder;
    Changes changes;
    bool starting = false;
    bool running = false;
    double inputSquelchValue = FirstSquelch;
    double outputSquelchValue = FirstSquelch;
    Long microphone = -1;
    std::array<VoiceOutput, 2> outputs;
    DeviceNews failed;
    PanelRooms rooms;
    std::map<std::string, Ticket> questions;  // by the server whose password the user is asked for
    std::shared_ptr<LoopInbox> inbox;         // for all events, from Start to Stop
    Ticket brought, notBegun;
    std::unique_ptr<WorkThread<VoiceWork>> work;
};

}  // namespace orvelle
