// The stock client of the voice server's makers, by which the tests know that the rooms are what others hear: Debian's
// package mumble on the test's display, with its lowest settings, a home and a certificate of its own, and its
// microphone always open. It joins a channel that is there already. Ends with the object.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "tests/linux/ChildProcess.h"

namespace orvelle::heard {

struct StockUser {
    std::string Name;
    std::string Host;
    int Port = 0;
    std::string Channel;     // "" is the server's root
    std::string Microphone;  // the sound server's source and sink
    std::string Output;
};

class StockClient {
public:
    // It is there when the server says so; std::runtime_error where its home can't be made.
    explicit StockClient(const StockUser& user);
    StockClient(const StockClient&) = delete;
    StockClient& operator=(const StockClient&) = delete;
    ~StockClient();

    std::string Said() { return process->Errors(); }
    pid_t Id() const { return process->Id(); }

private:
    std::filesystem::path home;
    std::unique_ptr<linux::ChildProcess> process;
};

}  // namespace orvelle::heard
