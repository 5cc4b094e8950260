// Under which topic a program of the set-up says what, and what computers and records are called there. Called by
// whoever publishes or subscribes. A topic that is not the protocol's gives nothing: other programs may use the broker.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Types.h"

namespace orvelle::mqtt {

constexpr int LastIdentity = 99;
constexpr Long LastRecord = 65535;
constexpr std::size_t LongestDirectoryName = 100;  // characters

enum class Program { Panel, Simulator };
enum class TopicKind { Presence, Sync, Input, Play, Session, Record, Write, Directory };

struct Topic {
    int Identity = 0;  // number of the computer that publishes, 1 to LastIdentity
    Program From = Program::Panel;
    TopicKind Kind = TopicKind::Presence;
    Long Record = 0;        // 1 to LastRecord for TopicKind::Record, else 0
    std::string Name = "";  // of TopicKind::Directory, which any program of the computer may write, else ""
    bool operator==(const Topic&) const = default;
};

std::optional<Topic> ReadTopic(std::string_view text);
// "" for a kind that the program does not publish.
std::string WriteTopic(const Topic& topic);

// "c07" for 7; a text that is none gives nothing.
std::optional<int> ReadIdentity(std::string_view text);
std::string WriteIdentity(int identity);

// "c07.panel": what a program calls itself at the broker.
std::string ClientId(int identity, Program program);

// The id by which the panels know a record: of its computer and of its number there, and back.
constexpr Long RecordId(int identity, Long record) { return identity * (LastRecord + 1) + record; }
constexpr int IdentityOf(Long id) { return id / (LastRecord + 1); }
constexpr Long RecordOf(Long id) { return id % (LastRecord + 1); }

}  // namespace orvelle::mqtt
