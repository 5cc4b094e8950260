// What is read in its simplest form: directories from the files of the folder as they are at the start and from what
// topics hold, from no addresses, no own logins, and no X-Plane.
#include <fstream>
#include <iterator>
#include <set>

#include "simulators/directory/Directories.h"
#include "simulators/directory/DirectoryAddresses.h"
#include "simulators/directory/DirectoryFolder.h"
#include "simulators/directory/DirectoryReading.h"
#include "simulators/directory/DirectoryTopics.h"
#include "simulators/directory/OwnLogins.h"
#include "simulators/xplane/XPlaneRref.h"

namespace orvelle::directory {

namespace {

DirectorySource::Found Read(const std::string& source, const std::string& text) {
    ReadText read = ReadDirectory(text);
    DirectorySource::Found found;
    if (read.Content) {
        found.Told.Name = read.Content->Name;
        found.Told.Stations = read.Content->Stations.size();
        found.Content = std::make_shared<const Directory>(std::move(*read.Content));
    }
    found.Told.Source = source;
    found.Told.Faults = std::move(read.Faults);
    found.Told.FaultCount = read.FaultCount;
    return found;
}

}  // namespace

Directories::Directories(std::vector<DirectorySource*> inOrder) : sources(std::move(inOrder)) {
    for (DirectorySource* source : sources) source->Changed = [this] { Gather(); };
    Gather();
}

std::vector<DirectoryTold> Directories::Told() const {
    std::vector<DirectoryTold> told;
    for (const DirectorySource* source : sources)
        for (const DirectorySource::Found& found : source->Directories()) told.push_back(found.Told);
    return told;
}

void Directories::Gather() {
    std::vector<std::shared_ptr<const Directory>> all;
    for (const DirectorySource* source : sources)
        for (const DirectorySource::Found& found : source->Directories())
            if (found.Content) all.push_back(found.Content);
    index = StationIndex(std::move(all));
    Changed();
}

DirectoryFolder::DirectoryFolder(EventLoop& eventLoop, std::filesystem::path itsFolder)
    : loop(eventLoop), folder(std::move(itsFolder)) {
    std::error_code failed;
    std::set<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder, failed))
        if (entry.path().extension() == ".json") files.insert(entry.path());
    for (const auto& file : files) {
        std::ifstream stream(file);
        found.push_back(Read(file.filename(), {std::istreambuf_iterator<char>(stream), {}}));
    }
}

void DirectoryTopics::Hear(const std::string& holder, const std::string& name, const std::string& text) {
    if (text.empty())
        heard.erase({name, holder});
    else
        heard[{name, holder}] = Read("topic " + name + " of " + holder, text);
    Gather();
}

void DirectoryTopics::Forget() {
    heard.clear();
    Gather();
}

void DirectoryTopics::Gather() {
    found.clear();
    for (const auto& [key, each] : heard) found.push_back(each);
    Changed();
}

struct DirectoryAddresses::Parts {
    std::vector<Found> Directories;
};

DirectoryAddresses::DirectoryAddresses(EventLoop&, const std::filesystem::path) : parts(std::make_unique<Parts>()) {}
DirectoryAddresses::~DirectoryAddresses() = default;
const std::vector<DirectorySource::Found>& DirectoryAddresses::Directories() const { return parts->Directories; }
std::vector<std::string> DirectoryAddresses::Addresses() const { return {}; }
std::string DirectoryAddresses::Enter(const std::vector<std::string>&) { return "No addresses are kept."; }
void DirectoryAddresses::FetchNow() {}

std::string OwnLogins::Read() { return ""; }

}  // namespace orvelle::directory

namespace orvelle::simulators {

struct XPlaneRref::Parts {
    std::optional<SimulatorState> State;
};

XPlaneRref::XPlaneRref(EventLoop&, ProcessQuestions, XPlaneSetting) : parts(std::make_unique<Parts>()) {}
XPlaneRref::~XPlaneRref() = default;
std::string XPlaneRref::Name() const { return "X-Plane"; }
Presence XPlaneRref::Stands() const { return Presence::Absent; }
int XPlaneRref::Run() const { return 0; }
const std::optional<SimulatorState>& XPlaneRref::State() const { return parts->State; }
bool XPlaneRref::IsProgram(const std::string&) const { return false; }
std::string XPlaneRref::Problem() const { return ""; }

}  // namespace orvelle::simulators
