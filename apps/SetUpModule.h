// What the panel has of a set-up of several computers, in a module of its own: a computer that practises needs neither
// the broker's library with its encryption nor the network's directory, and does not load them. The panel loads the
// module when it joins a set-up, or opens what lets its user join one, and deletes what the functions give.
#pragma once

#include <filesystem>
#include <string>

#include "adapters/mqtt/SetUpFile.h"
#include "platform/Event.h"
#include "platform/EventLoop.h"
#include "platform/FrameworkLine.h"
#include "platform/SimulatorLine.h"
#include "platform/sides/JoinSide.h"

namespace orvelle {

constexpr const char* SetUpModuleName = "orvelle-links.so";

// This computer as it is told to the others of a set-up, and to the panel.
struct ComputerNames {
    std::string Name;
    std::string Desktop;
};

// The two lines over a set-up's broker, which is looked for on the network, too, while a set-up is joined.
class SetUpLinks {
public:
    SetUpLinks() = default;
    SetUpLinks(const SetUpLinks&) = delete;
    SetUpLinks& operator=(const SetUpLinks&) = delete;
    virtual ~SetUpLinks() = default;

    // Lines that are open are to be opened anew.
    virtual void Join(const mqtt::SetUpSetting& setUp) = 0;
    virtual void Leave() = 0;
    // To be called at the program's end, where the loop runs no more.
    virtual void SayGoodbye() = 0;
    virtual orvelle::SimulatorLine& SimulatorLine() = 0;
    virtual orvelle::FrameworkLine& FrameworkLine() = 0;

    // A sentence for the user about what the links can't have for now; it needs no answer.
    Event<const std::string&> Told;
};

}  // namespace orvelle

extern "C" {
using NewOrvelleSetUpLinksFunction = orvelle::SetUpLinks*(orvelle::EventLoop& loop,
                                                          const orvelle::ComputerNames& thisComputer);
using NewOrvelleSetUpDeskFunction = orvelle::JoinSide*(orvelle::EventLoop& loop,
                                                       const std::filesystem::path& dataFolder);
__attribute__((visibility("default"))) NewOrvelleSetUpLinksFunction NewOrvelleSetUpLinks;
__attribute__((visibility("default"))) NewOrvelleSetUpDeskFunction NewOrvelleSetUpDesk;
}
