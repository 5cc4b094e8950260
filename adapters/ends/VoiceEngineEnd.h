// The voice engine that the panel has, in front of the one that serves, and what is shown of it. The program chooses
// who serves whenever the engine is started or calibrated, or asked whether it runs, while it is in no room; what the
// panel has set until then counts for that one as well. The panel leaves an engine that it has stopped up, without
// rooms: such a one rests, and gives way to another one and to a calibration. The engines outlive it.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <tuple>

#include "adapters/shared/Changes.h"
#include "platform/VoiceEngine.h"
#include "platform/sides/VoiceEngineView.h"

namespace orvelle::ends {

// One object by its two faces.
struct ServingEngine {
    template <typename Engine>
    static ServingEngine Of(Engine& engine) {
        return {&engine, &engine};
    }

    VoiceEngineControl* Control;
    VoiceEngineView* View;
};

class VoiceEngineEnd : public VoiceEngineControl, public VoiceEngineView {
public:
    VoiceEngineEnd(EventLoop& loop, ServingEngine first, std::function<ServingEngine()> choose);
    VoiceEngineEnd(const VoiceEngineEnd&) = delete;
    VoiceEngineEnd& operator=(const VoiceEngineEnd&) = delete;
    ~VoiceEngineEnd() override;

    // Asked by the panel before it starts or stops the engine, never in between.
    bool Running() override;
    bool Start(Long mode) override;
    void Stop() override { serving.Control->Stop(); }
    void InputSquelch(double value) override;
    void OutputSquelch(double value) override;
    std::string InputDevices() override { return serving.Control->InputDevices(); }
    std::string OutputDevices() override { return serving.Control->OutputDevices(); }
    void InputDevice(Long device) override;
    void OutputDevice(Long output, Long device) override;
    void OutputVolume(Long output, Long value) override;
    void SignalVolume(Long output, Long value) override;
    void OutputFilter(Long output, bool on) override;
    void ChannelOutput(Long room, Long output, bool on) override;
    bool InputStatus() override { return serving.Control->InputStatus(); }
    bool OutputStatus(Long output) override { return serving.Control->OutputStatus(output); }
    bool RoomJoin(Long room, const std::string& clientName, const std::string& roomAddress) override {
        return serving.Control->RoomJoin(room, clientName, roomAddress);
    }
    void RoomLeave(Long room) override { serving.Control->RoomLeave(room); }
    void RoomMute(Long room, bool mute) override;
    std::string RoomStatus(Long room) override { return serving.Control->RoomStatus(room); }
    bool Calibrate(Long inputDevice, Long outputDevice, float& inputSquelch, float& outputSquelch) override;

    bool IsRunning() const override { return serving.View->IsRunning(); }
    bool IsStarting() const override { return serving.View->IsStarting(); }
    bool AudioRuns() const override { return serving.View->AudioRuns(); }
    const VoiceRoom& Room(Long room) const override { return serving.View->Room(room); }
    const VoiceOutput& Output(Long output) const override { return serving.View->Output(output); }
    Long Microphone() const override { return serving.View->Microphone(); }
    bool InputFailed() const override { return serving.View->InputFailed(); }
    double InputSquelchValue() const override { return serving.View->InputSquelchValue(); }
    double OutputSquelchValue() const override { return serving.View->OutputSquelchValue(); }
    Ticket Observe(std::function<void()> observer) override { return changes.Observe(std::move(observer)); }

private:
    using Call = std::function<void(VoiceEngineControl& engine)>;
    enum class Setting {
        InputSquelch,
        OutputSquelch,
        InputDevice,
        OutputDevice,
        OutputVolume,
        SignalVolume,
        OutputFilter,
        ChannelOutput,
        RoomMute,
    };

    void Set(Setting setting, Long room, Long output, Call call);
    bool IsResting() const;
    void Choose();
    void Join();

    Changes changes;
    ServingEngine serving;
    const std::function<ServingEngine()> choose;
    std::map<std::tuple<Setting, Long, Long>, Call> kept;  // the last call of each
    Ticket watch;
};

}  // namespace orvelle::ends
