// A stretch of network for programs that are not on the test's thread: a relay on a thread of its own, told what to do
// and asked by the test's.
#pragma once

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <string>

#include "adapters/linux/LoopThread.h"
#include "tests/mumble/VoiceRelay.h"

namespace orvelle::heard {

class RelayThread {
public:
    explicit RelayThread(std::uint16_t serverPort) {
        auto made = std::make_shared<std::promise<mumble::VoiceRelay*>>();
        auto relayMade = made->get_future();
        thread = std::make_unique<linux::LoopThread>([serverPort, made](EventLoop& loop) {
            auto own = std::make_shared<mumble::VoiceRelay>(loop, serverPort);
            made->set_value(own.get());
            return own;
        });
        relay = relayMade.get();
    }
    RelayThread(const RelayThread&) = delete;
    RelayThread& operator=(const RelayThread&) = delete;
    ~RelayThread() = default;

    std::string Room(const std::string& channel) const { return relay->Room(channel); }

    // Done on the relay's thread when this returns.
    template <typename Value = void>
    Value Ask(const std::function<Value(mumble::VoiceRelay&)>& question) {
        auto answer = std::make_shared<std::promise<Value>>();
        auto answered = answer->get_future();
        thread->Post([this, answer, question] {
            if constexpr (std::is_void_v<Value>) {
                question(*relay);
                answer->set_value();
            } else {
                answer->set_value(question(*relay));
            }
        });
        return answered.get();
    }

private:
    mumble::VoiceRelay* relay = nullptr;
    std::unique_ptr<linux::LoopThread> thread;
};

}  // namespace orvelle::heard
