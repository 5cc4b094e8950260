// The input devices that the kernel offers in a folder of nodes, "event0" and so on: which of them somebody wants,
// found at the start and as they come, and what they tell. Nothing is grabbed, so other programs hear the same. A node
// that may not be opened is tried again when its rights change, since those come after the node. What a device was not
// heard telling is made up for. Loop and handlers outlive this object.
#pragma once

#include <libevdev/libevdev.h>

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>

#include "adapters/shared/FileDescriptor.h"
#include "platform/Event.h"
#include "platform/EventLoop.h"

namespace orvelle::linux {

class EventDevices {
public:
    using Wanted = bool(const libevdev&);

    EventDevices(EventLoop& eventLoop, std::filesystem::path folder, Wanted* isWanted);

    // Looks for devices; the events come from now on, the first of them at once.
    void Begin();
    // Nodes that may not be opened now.
    bool SomeAreForbidden() const { return !forbidden.empty(); }

    // By the number of the device's node, which no two have at a time.
    Event<int, const libevdev&> Came;
    Event<int, const input_event&> Happened;
    Event<int> Gone;

private:
    struct Device {
        FileDescriptor Node;
        std::unique_ptr<libevdev, void (*)(libevdev*)> Reader{nullptr, &libevdev_free};
        Ticket Served;
    };

    void Watch();
    void ServeWatch();
    void LookAtFolder();
    void LookAt(const std::string& name);
    void Open(int number, const std::filesystem::path& node);
    void Serve(int number);
    void Lose(int number);

    EventLoop& loop;
    const std::filesystem::path folder;
    Wanted* const isWanted;
    FileDescriptor watch;
    int parent = -1;  // the watch over the folder that holds the folder, while this one is not there
    std::map<int, Device> devices;
    std::map<int, std::filesystem::path> forbidden;
    Ticket watched;
};

}  // namespace orvelle::linux
