// Joining and leaving as the programs do it: setup.json in the data folder, set-ups found by DNS-SD, an attempt at the
// broker. A set-up's name isn't in its code: it is that under which the set-up is found, or where it isn't found, its
// host's.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "adapters/avahi/ServiceBrowser.h"
#include "adapters/linux/FileWatch.h"
#include "adapters/mqtt/Joining.h"
#include "adapters/shared/Changes.h"
#include "adapters/shared/HostAndPort.h"
#include "platform/sides/JoinSide.h"

namespace orvelle {

class SetUpDesk : public JoinSide {
public:
    // Where this user's programs keep theirs, by the desktop's convention.
    static std::filesystem::path DataFolder();

    SetUpDesk(EventLoop& eventLoop, const std::filesystem::path& dataFolder);

    std::optional<JoinedSetUp> Joined() const override;
    void Look(Looking newLooking) override;
    std::vector<SeenSetUp> Seen() const override;
    bool IsCode(const std::string& text) const override { return mqtt::ReadJoinCode(text).has_value(); }
    void Join(const std::string& code, const std::string& place) override;
    void MoveTo(const std::string& place) override;
    void Leave() override;
    void Cancel() override;
    JoinState State() const override { return state; }
    std::string Sentence() const override;
    Ticket Observe(std::function<void()> observer) override { return changes.Observe(std::move(observer)); }

private:
    void Read();
    void StartBrowser();
    void Settle();
    void LookForName();
    void TakeTheOneSeen();
    void Try(const std::string& name, const HostAndPort& place);
    void End(JoinState how, const std::string& what);

    EventLoop& loop;
    const std::filesystem::path file;
    Changes changes{loop};
    mqtt::FoundSetUp found;
    Looking looking = Looking::No;
    JoinState state = JoinState::Idle;
    std::string sentence;
    std::string missing;  // why set-ups aren't found by themselves, "" where they are
    mqtt::SetUpSetting wanted;
    std::optional<HostAndPort> wantedPlace;
    std::optional<avahi::ServiceBrowser> browser;
    mqtt::Joining joining;
    linux::FileWatch watch;
    Ticket lookingEnds;
};

}  // namespace orvelle
