#include "simulators/directory/DirectoryAddresses.h"

#include <algorithm>
#include <set>
#include <utility>

#include "simulators/directory/AddressText.h"
#include "simulators/directory/FetchedDirectory.h"
#include "simulators/directory/KeptFile.h"

namespace orvelle::directory {

namespace {

namespace fs = std::filesystem;

constexpr const char* Section = "addresses";

}  // namespace

struct DirectoryAddresses::Parts {
    using Place = std::unique_ptr<FetchedDirectory>;

    Parts(DirectoryAddresses& whole, EventLoop& eventLoop, const fs::path& data)
        : Whole(whole),
          Loop(eventLoop),
          Copies(data / "directory-copies"),
          File(data / "directory-addresses.json", "The addresses of directories") {}

    void Add(const std::string& address) {
        Place place = std::make_unique<FetchedDirectory>(Loop, Copies, address);
        place->Told = [this](const std::string& sentence) { Whole.Told(sentence); };
        place->Changed = [this] { TellChange(); };
        Places.push_back(std::move(place));
    }

    void TellChange() {
        Gather();
        Whole.Changed();
    }

    void Gather() {
        Found.clear();
        for (const Place& place : Places) Found.push_back(place->Now());
    }

    void FetchAll() {
        IsPeriodic = !Places.empty();
        Next = IsPeriodic ? Loop.After(PeriodMilliseconds, [this] { FetchAll(); }) : Ticket();
        for (const Place& place : Places) place->Fetch();
        New.clear();
    }

    void FetchNew() {
        if (!IsPeriodic || Places.empty()) return FetchAll();
        for (const Place& place : Places)
            if (New.contains(place->Address())) place->Fetch();
        New.clear();
    }

    DirectoryAddresses& Whole;
    EventLoop& Loop;
    const fs::path Copies;
    KeptFile File;
    std::vector<Place> Places;
    std::set<std::string> New;  // entered, and not fetched yet
    std::vector<DirectorySource::Found> Found;
    bool IsPeriodic = false;  // the next fetch of all is awaited
    Ticket Begun, Entered, Next;
};

DirectoryAddresses::DirectoryAddresses(EventLoop& eventLoop, fs::path data)
    : parts(std::make_unique<Parts>(*this, eventLoop, data)) {
    const std::string sentence = parts->File.Read(Section, [this](const JsonMember& entry) {
        const AddressText read = ReadAddress(entry.Value.Text);
        if (read.Address.empty() || parts->Places.size() >= MostAddresses) return false;
        parts->Add(read.Address);
        return true;
    });
    parts->Gather();
    parts->Begun = eventLoop.After(0, [this, sentence] {
        parts->FetchAll();
        if (!sentence.empty()) Told(sentence);
    });
}

DirectoryAddresses::~DirectoryAddresses() = default;

const std::vector<DirectorySource::Found>& DirectoryAddresses::Directories() const { return parts->Found; }

std::vector<std::string> DirectoryAddresses::Addresses() const {
    std::vector<std::string> addresses;
    for (const auto& place : parts->Places) addresses.push_back(place->Address());
    return addresses;
}

std::string DirectoryAddresses::Enter(const std::vector<std::string>& addresses) {
    std::vector<std::string> entered;
    std::string content;
    for (const std::string& text : addresses) {
        const AddressText read = ReadAddress(text);
        if (read.Address.empty()) return read.Sentence;
        if (std::ranges::find(entered, read.Address) != entered.end()) continue;
        entered.push_back(read.Address);
        content += (content.empty() ? "" : ", ") + JsonText(read.Address);
    }
    if (entered.size() > MostAddresses)
        return "More than " + std::to_string(MostAddresses) + " addresses of directories can't be kept.";
    std::string sentence = parts->File.Write(Section, "[" + content + "]");
    if (!sentence.empty()) return sentence;

    auto before = std::exchange(parts->Places, {});
    for (const std::string& address : entered) {
        const auto known = std::ranges::find_if(
            before, [&address](const auto& place) { return place && place->Address() == address; });
        if (known == before.end()) {
            parts->Add(address);
            parts->New.insert(address);
        } else {
            parts->Places.push_back(std::move(*known));
        }
    }
    for (const auto& place : before)
        if (place) place->Remove();
    parts->Gather();
    parts->Entered = parts->Loop.After(0, [this] {
        parts->FetchNew();
        Changed();
    });
    return "";
}

void DirectoryAddresses::FetchNow() { parts->FetchAll(); }

}  // namespace orvelle::directory
