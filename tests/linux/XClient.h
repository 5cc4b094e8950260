// A second client of the X server, with a window that has the keyboard focus: what it sees is what happened.
#pragma once

#include <xcb/xcb.h>

#include <memory>
#include <string>
#include <vector>

namespace orvelle::linux {

struct SeenStroke {
    int KeyCode;
    bool IsDown;
    bool operator==(const SeenStroke&) const = default;
};

class XClient {
public:
    explicit XClient(const std::string& display);

    // The next strokes that reached the window; fewer if they don't come.
    std::vector<SeenStroke> NextStrokes(std::size_t count);
    // The keys that are down on the server now.
    std::vector<int> KeysDown();
    // Makes another of the layouts that are set the current one; counted from 0.
    void ChooseLayout(int layout);
    // One that is ready to manage windows.
    bool HasWindowManager();

private:
    struct Disconnect {
        void operator()(xcb_connection_t* server) const { xcb_disconnect(server); }
    };

    std::unique_ptr<xcb_connection_t, Disconnect> connection;
    std::vector<SeenStroke> seen;
};

}  // namespace orvelle::linux
