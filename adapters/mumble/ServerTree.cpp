#include "adapters/mumble/ServerTree.h"

#include <algorithm>

#include "adapters/mumble/VoiceServer.pb.h"

namespace orvelle::mumble {

namespace {

constexpr std::size_t Most = 65536;  // channels, and users
constexpr std::size_t LongestName = 1024;

}  // namespace

// A message tells what has changed.
void ServerTree::Take(const wire::ChannelState& state) {
    if (!state.has_channel_id() || state.name().size() > LongestName || IsTooLarge()) return;
    Channel& channel = channels[state.channel_id()];
    if (state.has_parent()) channel.Parent = state.parent();
    if (state.has_name()) channel.Name = state.name();
}

void ServerTree::Take(const wire::UserState& state) {
    if (!state.has_session() || IsTooLarge()) return;
    const auto user = users.try_emplace(state.session(), RootChannel).first;
    if (state.has_channel_id()) user->second = state.channel_id();
}

bool ServerTree::IsTooLarge() const { return channels.size() > Most || users.size() > Most; }

std::optional<std::uint32_t> ServerTree::ChannelNamed(const std::string& name) const {
    const auto found = std::ranges::find_if(channels, [&name](const auto& each) {
        return each.first != RootChannel && each.second.Parent == RootChannel && each.second.Name == name;
    });
    return found != channels.end() ? std::optional(found->first) : std::nullopt;
}

std::optional<std::uint32_t> ServerTree::ChannelOf(std::uint32_t session) const {
    const auto found = users.find(session);
    return found != users.end() ? std::optional(found->second) : std::nullopt;
}

}  // namespace orvelle::mumble
