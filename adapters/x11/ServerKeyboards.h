// The keyboards of an X server, past its masters: which there are, and which keys each holds. Those of the server's
// test extension are left out, since what comes from them was sent by a program, maybe our own, and not by the user.
// Over a connection whose owner keeps it and hands on its events; where it fails there are none.
#pragma once

#include <xcb/xcb.h>

#include <map>
#include <vector>

namespace orvelle {

class ServerKeyboards {
public:
    explicit ServerKeyboards(xcb_connection_t* connection);

    // Asks again which there are; for when devices came or went.
    void Read();
    bool Has(int device) const { return maker.contains(device) && maker.at(device) == Maker::User; }
    std::vector<int> All() const;
    // The key codes that it holds now.
    std::vector<int> KeysDown(int device) const;

private:
    enum class Maker { User, TestExtension };

    Maker MakerOf(int device) const;

    xcb_connection_t* connection;
    xcb_atom_t testDevice = XCB_NONE;
    std::map<int, Maker> maker;  // of each device that is no master
};

}  // namespace orvelle
