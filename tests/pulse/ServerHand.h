// Another program at the sound server: it makes and takes away devices and sets their volumes, each at once.
#pragma once

#include <pulse/context.h>
#include <pulse/mainloop.h>

#include <cstdint>
#include <functional>
#include <string>

#include "adapters/pulse/PulseDevices.h"

namespace orvelle::pulse {

class ServerHand {
public:
    ServerHand();
    ServerHand(const ServerHand&) = delete;
    ServerHand& operator=(const ServerHand&) = delete;
    ~ServerHand();

    // The module's number.
    std::uint32_t Load(const std::string& module, const std::string& arguments);
    void Unload(std::uint32_t module);
    // A sink, or a source that is none of a sink, with that description, and the number of its module.
    std::uint32_t AddSink(const std::string& name, const std::string& description);
    std::uint32_t AddSource(const std::string& module, const std::string& name, const std::string& description);

    void SetVolume(DeviceKind kind, const std::string& name, const pa_cvolume& volume);
    void SetPercent(DeviceKind kind, const std::string& name, Long percent);
    pa_cvolume Volume(DeviceKind kind, const std::string& name);
    Long Percent(DeviceKind kind, const std::string& name);
    std::string Description(DeviceKind kind, const std::string& name);
    void SetDefault(DeviceKind kind, const std::string& name);

private:
    struct Told {
        pa_cvolume Volume{};
        std::string Description;
    };

    void Finish(pa_operation* operation);
    Told Ask(DeviceKind kind, const std::string& name);

    pa_mainloop* loop;
    pa_context* context;
};

}  // namespace orvelle::pulse
