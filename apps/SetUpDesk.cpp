#include "apps/SetUpDesk.h"
#include "adapters/mqtt/SetUpFile.h"

#include <QStandardPaths>
#include <algorithm>
#include <cctype>
#include <utility>

#include "adapters/mqtt/OwnSetUp.h"

namespace orvelle {

namespace {

constexpr Long LookMilliseconds = 2000;
constexpr std::string_view LocalDomain = ".local";

// Without the domain that a name has on the network alone.
std::string PlainHost(std::string host) {
    std::ranges::transform(host, host.begin(), [](unsigned char each) { return std::tolower(each); });
    if (host.ends_with(LocalDomain)) host.resize(host.size() - LocalDomain.size());
    return host;
}

HostAndPort PlaceOf(const avahi::FoundService& service) { return {service.Host, service.Port}; }

bool IsAt(const avahi::FoundService& service, const HostAndPort& place) {
    return service.Port == place.Port && PlainHost(service.Host) == PlainHost(place.Host);
}

}  // namespace

std::filesystem::path SetUpDesk::DataFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation).toStdString() + "/OrvelleCP";
}

SetUpDesk::SetUpDesk(EventLoop& eventLoop, const std::filesystem::path& dataFolder)
    : loop(eventLoop), file(dataFolder / "setup.json"), joining(eventLoop, file), watch(eventLoop, file) {
    watch.Changed = [this] { Read(); };
    joining.Ended = [this](mqtt::JoinOutcome outcome, const std::string& what) {
        End(outcome == mqtt::JoinOutcome::Joined ? JoinState::Succeeded : JoinState::Failed, what);
    };
    Read();
}

std::optional<JoinedSetUp> SetUpDesk::Joined() const {
    if (!found.Setting) return std::nullopt;
    const mqtt::SetUpSetting& setUp = *found.Setting;
    return JoinedSetUp{setUp.Name, WriteHostAndPort({setUp.Host, setUp.Port}, mqtt::UsualPort), setUp.Identity};
}

void SetUpDesk::Look(Looking newLooking) {
    looking = newLooking;
    if (looking == Looking::Yes)
        StartBrowser();
    else
        Settle();
}

std::vector<SeenSetUp> SetUpDesk::Seen() const {
    std::vector<SeenSetUp> seen;
    if (browser)
        for (const avahi::FoundService& each : browser->Found())
            seen.push_back({each.SetUp, WriteHostAndPort(PlaceOf(each), mqtt::UsualPort)});
    return seen;
}

void SetUpDesk::Join(const std::string& code, const std::string& place) {
    Cancel();
    const std::optional<mqtt::JoinCode> read = mqtt::ReadJoinCode(code);
    if (!read) return End(JoinState::Failed, "The code is mistyped; please compare it with the one that was given.");
    wantedPlace = ReadHostAndPort(place, mqtt::UsualPort);
    if (!place.empty() && !wantedPlace) return End(JoinState::Failed, "\"" + place + "\" is no name of a host.");
    wanted.Identity = read->Number;
    wanted.Key = read->Key;
    state = JoinState::Trying;
    StartBrowser();
    lookingEnds = loop.After(LookMilliseconds, [this] { TakeTheOneSeen(); });
    if (wantedPlace) LookForName();
    changes.Mark();
}

void SetUpDesk::MoveTo(const std::string& place) {
    Cancel();
    const std::optional<HostAndPort> read = ReadHostAndPort(place, mqtt::UsualPort);
    if (!found.Setting) return End(JoinState::Failed, "This computer is in no set-up.");
    if (!read) return End(JoinState::Failed, "\"" + place + "\" is no name of a host.");
    wanted = *found.Setting;
    Try(wanted.Name, *read);
}

void SetUpDesk::Leave() {
    Cancel();
    const mqtt::OwnSetUp own(file.parent_path());
    const std::optional<mqtt::OwnSetting> made = own.Read().Setting;
    const std::string left = !found.Setting ? "This computer is in no set-up."
                             : made && own.OfThisComputer(*made)
                                 ? "The panel of this computer has left the set-up " + found.Setting->Name +
                                       ", which orvelle-sim serves whenever it runs."
                                 : "This computer has left the set-up " + found.Setting->Name + ".";
    const std::string why = mqtt::RemoveSetUpFile(file);
    End(why.empty() ? JoinState::Succeeded : JoinState::Failed, why.empty() ? left : why);
}

void SetUpDesk::Cancel() {
    joining.Cancel();
    state = JoinState::Idle;
    sentence.clear();
    Settle();
    changes.Mark();
}

// What is wrong with the file, or with finding, is of interest while there is nothing else to tell.
std::string SetUpDesk::Sentence() const {
    if (!sentence.empty() || state != JoinState::Idle) return sentence;
    return found.Sentence.empty() ? missing : found.Sentence;
}

// What was told here is of the past once somebody else has changed it.
void SetUpDesk::Read() {
    const auto before = std::exchange(found, mqtt::ReadSetUpFile(file)).Setting;
    if (found.Setting != before && state == JoinState::Succeeded) {
        state = JoinState::Idle;
        sentence.clear();
    }
    changes.Mark();
}

void SetUpDesk::StartBrowser() {
    if (browser) return;
    browser.emplace(loop);
    missing.clear();
    browser->Came = [this](const avahi::FoundService&) {
        LookForName();
        changes.Mark();
    };
    browser->Went = [this](const avahi::FoundService&) { changes.Mark(); };
    browser->Told = [this](const std::string& what) {
        missing = what;
        // Nothing will be found by then.
        if (state == JoinState::Trying && !joining.IsUnderWay())
            lookingEnds = loop.After(0, [this] { TakeTheOneSeen(); });
        changes.Mark();
    };
}

// Ends what was looked for an attempt, and looking itself where nobody watches.
void SetUpDesk::Settle() {
    lookingEnds.End();
    wantedPlace.reset();
    if (looking == Looking::No && state != JoinState::Trying) browser.reset();
}

// At a host that was named, the name of the set-up is all that is looked for.
void SetUpDesk::LookForName() {
    if (!wantedPlace || !browser) return;
    const auto at =
        std::ranges::find_if(browser->Found(), [this](const auto& each) { return IsAt(each, *wantedPlace); });
    if (at != browser->Found().end()) Try(at->SetUp, *wantedPlace);
}

void SetUpDesk::TakeTheOneSeen() {
    if (wantedPlace) return Try(wantedPlace->Host, *wantedPlace);
    const auto& seen = browser->Found();
    if (seen.size() == 1) return Try(seen.begin()->SetUp, PlaceOf(*seen.begin()));
    if (seen.empty())
        return End(JoinState::Failed,
                   missing.empty() ? "No set-up is found on the network; please name its host." : missing);
    std::string names;
    for (const avahi::FoundService& each : seen)
        names += (names.empty() ? "" : ", ") + each.SetUp + " at " + WriteHostAndPort(PlaceOf(each), mqtt::UsualPort);
    End(JoinState::Failed, "Several set-ups are found; please name the host of one: " + names + ".");
}

void SetUpDesk::Try(const std::string& name, const HostAndPort& place) {
    wanted.Name = name;
    wanted.Host = place.Host;
    wanted.Port = place.Port;
    state = JoinState::Trying;
    lookingEnds.End();
    wantedPlace.reset();
    joining.Try(wanted);
    changes.Mark();
}

void SetUpDesk::End(JoinState how, const std::string& what) {
    Read();
    state = how;
    sentence = what;
    // The browser may be what ends it.
    lookingEnds = loop.After(0, [this] { Settle(); });
}

}  // namespace orvelle
