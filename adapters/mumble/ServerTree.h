// The channels and users of a server as its messages told them, by their numbers. What no server has is not believed.
// Held by a session.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace orvelle::mumble {

namespace wire {
class ChannelState;
class UserState;
}  // namespace wire

constexpr std::uint32_t RootChannel = 0;

class ServerTree {
public:
    void Take(const wire::ChannelState& state);
    void Take(const wire::UserState& state);
    void RemoveChannel(std::uint32_t channel) { channels.erase(channel); }
    void RemoveUser(std::uint32_t session) { users.erase(session); }
    // More than any server has.
    bool IsTooLarge() const;

    // Below the root.
    std::optional<std::uint32_t> ChannelNamed(const std::string& name) const;
    bool HasChannel(std::uint32_t channel) const { return channels.contains(channel); }
    std::optional<std::uint32_t> ChannelOf(std::uint32_t session) const;

private:
    struct Channel {
        std::uint32_t Parent = RootChannel;
        std::string Name;
    };

    std::map<std::uint32_t, Channel> channels;
    std::map<std::uint32_t, std::uint32_t> users;  // channels by session
};

}  // namespace orvelle::mumble
