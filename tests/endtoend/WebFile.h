// A file on a web server of the test's own, at http://127.0.0.1:PORT/, which is there for as long as the object is.
#pragma once

#include <atomic>
#include <string>
#include <thread>

#include "tests/mqtt/broker/LoopbackPorts.h"

namespace orvelle {

class WebFile {
public:
    explicit WebFile(std::string content);
    WebFile(const WebFile&) = delete;
    WebFile& operator=(const WebFile&) = delete;
    ~WebFile();

    std::string Address() const;
    int TimesAsked() const { return asked; }

private:
    void Serve();

    const std::string content;
    const mqtt::LoopbackListener listener;
    std::atomic<int> asked = 0;
    std::thread serving;
};

}  // namespace orvelle
