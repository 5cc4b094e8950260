// The far side of the framework link: the user's session on the network with its radios, the interface records of all
// computers, and what other parties write into them. Acted on by whatever is, or plays, the framework.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>

#include "platform/SessionSetting.h"
#include "platform/Ticket.h"
#include "platform/Types.h"

namespace orvelle {

enum class ParameterWriter { Panel, OtherParty };

// The number of a write counts all writes to all records from 1, so that the greatest are the latest.
template <typename Value>
struct ParameterSetting {
    Value Content{};
    std::size_t WriteNumber = 0;
    ParameterWriter Writer = ParameterWriter::Panel;
};

struct InterfaceRecord {
    std::string Owner;  // the computer that made it, "" that of the panel
    std::string Type;
    std::string Role;
    bool IsLocal = false;  // the panel made it
    std::map<Long, ParameterSetting<Long>> Parameters{};
    std::map<Long, ParameterSetting<std::string>> Texts{};
};

class PlayedNetworkSide;

class NetworkSide {
public:
    virtual ~NetworkSide() = default;

    // The session outlives a loss of the link. Radios are 0 and 1; another one is ignored.
    virtual void StartSession() = 0;  // with the next handle; the rest as it was set
    virtual void EndSession() = 0;
    virtual const SessionSetting& Session() const = 0;
    virtual void SetStatus(Long status) = 0;
    virtual void SetCallsign(const std::string& callsign) = 0;
    virtual void SetFrequency(Long radio, const std::string& frequency) = 0;
    virtual void SetReceive(const std::string& selection) = 0;
    virtual void SetTransmit(const std::string& selection) = 0;
    virtual void SetVoice(Long radio, const RadioVoiceSetting& voice) = 0;
    // All of these at once, told as one change. The handle stays.
    virtual void SetAll(const SessionSetting& setting) = 0;

    // The records. What another party writes reaches a record while the link stands.
    virtual bool WriteParameter(Long id, Long index, Long value) = 0;
    virtual bool WriteText(Long id, Long index, const std::string& text) = 0;
    virtual std::map<Long, InterfaceRecord> Records() const = 0;  // by id
    virtual std::size_t Writes() const = 0;                       // so far, to all records

    // What can be done besides where the network is played; null for a real one.
    virtual PlayedNetworkSide* PlayedNetwork() = 0;

    // Called from the loop after changes.
    [[nodiscard]] virtual Ticket Observe(std::function<void()> observer) = 0;
};

}  // namespace orvelle
