// Input devices that no kernel has: nodes in a /dev/input of the test's own process, which answer what a device answers
// and tell what a test has them tell. The program is linked with the library that puts them before the system's own.
#pragma once

#include <linux/input.h>

#include <filesystem>
#include <string>
#include <vector>

// The library's own header can't stand beside those of windows.
struct _UMockdevTestbed;

namespace orvelle {

struct MockedDevice {
    std::string Name;
    std::vector<int> Keys;
    std::vector<int> Axes;
    std::vector<int> KeysDown = {};
};

class MockedDevices {
public:
    MockedDevices();
    MockedDevices(const MockedDevices&) = delete;
    MockedDevices& operator=(const MockedDevices&) = delete;
    ~MockedDevices();

    void Add(int number, const MockedDevice& device);
    void Remove(int number);
    void Tell(int number, int type, int code, int value);
    // How the system under it names the folder, past all mocking.
    std::filesystem::path RealFolder() const;

private:
    _UMockdevTestbed* testbed;
};

}  // namespace orvelle
