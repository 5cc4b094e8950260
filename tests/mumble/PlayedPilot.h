// The voice rooms of one pilot in a test, with all that they told written down.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "adapters/linux/PollEventLoop.h"
#include "adapters/mumble/VoiceRooms.h"
#include "tests/shared/OwnFolder.h"

namespace orvelle::mumble {

class PlayedPilot {
public:
    explicit PlayedPilot(linux::PollEventLoop& loop, std::string callsign, VoiceRoad road = VoiceRoad::Best);

    // "127.0.0.1:64738/122.8", as the panel writes it.
    void Join(Long room, const std::string& address);
    void Leave(Long room) { Rooms->Leave(room); }
    // Joins and serves the loop until the outcome; "joined", "failed" or what else came.
    std::string JoinAndWait(Long room, const std::string& address);
    // One block, whose Opus data is the text.
    void Say(const std::string& text, VoiceRooms::Squelched squelched = VoiceRooms::Squelched::No);

    // Serves the loop; false where it never is so.
    bool Until(const std::function<bool()>& isSo) const;
    bool HasTold(const std::string& what, int times = 1) const;
    bool WaitFor(const std::string& what, int times = 1) const;
    bool WaitToHear(const std::string& what);
    bool HasHeard(const std::string& what) const;
    // The program ends and starts anew, with the files that it has.
    void Restart();

    OwnFolder Folder;
    std::unique_ptr<VoiceRooms> Rooms;
    std::vector<std::string> Told;      // "joined 0", "failed 1", "kicked 2", "left 0", "password SERVER",
                                        // "another password SERVER"
    std::vector<std::string> Statuses;  // "0 In 122.8"
    std::vector<std::string> Heard;     // "0 data", "0 data." for the last one of a talk, "0 gone"
    std::string Status(Long room) const;
    // Given at once when asked, the second one where the server did not take the first; none of that gives up.
    std::optional<std::string> Password;
    std::optional<std::string> NextPassword;

private:
    void Make();

    linux::PollEventLoop& loop;
    std::string callsign;
    VoiceRoad road;
};

}  // namespace orvelle::mumble
