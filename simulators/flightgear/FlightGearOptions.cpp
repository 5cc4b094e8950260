#include "simulators/flightgear/FlightGearOptions.h"

#include <algorithm>
#include <string_view>
#include <system_error>
#include <utility>

#include "adapters/shared/PrivateFile.h"
#include "adapters/shared/WholeFile.h"
#include "simulators/PlainFile.h"
#include "simulators/flightgear/OptionLines.h"

namespace orvelle::simulators {

namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t LongestFile = 16 * 1024 * 1024;  // bytes
constexpr int MostLinks = 40;

fs::path ProtocolIn(const fs::path& folder) { return folder / "Protocol" / "orvelle.xml"; }

PlainText ReadFile(const fs::path& file) { return ReadPlainFile(file, LongestFile); }

// Where a file is kept that may be a link, also one to a file that isn't there yet.
fs::path BehindLinks(fs::path file) {
    std::error_code error;
    for (int count = 0; count < MostLinks && fs::is_symlink(file, error); ++count)
        file = file.parent_path() / fs::read_symlink(file, error);
    return file;
}

// With the rights that the file, or the one that it is a copy of, has had.
std::string WriteKeepingRights(const fs::path& file, std::string_view text, const fs::path& like) {
    std::error_code error;
    const fs::file_status before = fs::status(like, error);
    const bool isThere = before.type() == fs::file_type::regular;
    if (const std::error_code failed = WriteWholeFile(file, text)) return WhyNot(file, "written", failed.message());
    if (isThere) fs::permissions(file, before.permissions(), error);
    return "";
}

}  // namespace

FlightGearOptions::FlightGearOptions(fs::path installedFolder, fs::path ownFolder, fs::path homeFolder,
                                     std::uint16_t usedPort)
    : installed(std::move(installedFolder)), own(std::move(ownFolder)), home(std::move(homeFolder)), port(usedPort) {}

std::array<std::string, 2> FlightGearOptions::Lines() const {
    std::error_code error;
    const fs::path& folder = fs::exists(ProtocolIn(own), error) ? own : installed;
    return {"--data=" + folder.string(), "--generic=socket,out,20,127.0.0.1," + std::to_string(port) + ",udp,orvelle"};
}

fs::path FlightGearOptions::File() const { return home / ".fgfsrc"; }

std::string FlightGearOptions::Prepare(const AircraftOverrides& aircraft) {
    const std::string text = FlightGearProtocol(aircraft.Properties(AircraftOf::FlightGear));
    const fs::path made = ProtocolIn(own);
    if (ReadFile(ProtocolIn(installed)).Text == text) {
        const std::string reason = RemovePrivateFile(made);
        return reason.empty() ? "" : WhyNot(made, "removed", reason);
    }
    if (ReadFile(made).Text == text) return "";
    const std::error_code error = WriteWholeFile(made, text);
    return error ? WhyNot(made, "written", error.message()) : "";
}

bool FlightGearOptions::AreAdded() const {
    const OptionLines lines(ReadFile(File()).Text.value_or(""));
    const std::array<std::string, 2> wanted = Lines();
    return std::all_of(wanted.begin(), wanted.end(), [&](const std::string& line) { return lines.Has(line); });
}

std::string FlightGearOptions::Add() const {
    const std::array<std::string, 2> wanted = Lines();
    return Change({wanted.begin(), wanted.end()});
}

std::string FlightGearOptions::TakeOut() const { return Change({}); }

std::string FlightGearOptions::Change(const std::vector<std::string>& wanted) const {
    const PlainText read = ReadFile(File());
    if (!read.Sentence.empty()) return read.Sentence;
    OptionLines lines(read.Text.value_or(""));
    const std::vector<std::string> before = lines.TakeOut([this](const std::string& line) { return IsOurs(line); });
    if (before == wanted) return "";

    // One that holds lines of ours is not what it was before them.
    const fs::path copy = home / ".fgfsrc.before-orvelle";
    if (read.Text && before.empty())
        if (std::string sentence = WriteKeepingRights(copy, *read.Text, File()); !sentence.empty()) return sentence;
    for (const std::string& line : wanted) lines.Append(line);
    std::error_code error;
    const bool wasMade = !fs::exists(copy, error) && !fs::is_symlink(File(), error);
    if (wasMade && lines.Text().empty()) {
        const std::string reason = RemovePrivateFile(File());
        return reason.empty() ? "" : WhyNot(File(), "removed", reason);
    }
    const fs::path file = BehindLinks(File());
    return WriteKeepingRights(file, lines.Text(), file);
}

// Also those of a folder where this program was before.
bool FlightGearOptions::IsOurs(const std::string& line) const {
    if (line.starts_with("--generic=")) return line.ends_with(",udp,orvelle");
    constexpr std::string_view Data = "--data=";
    if (!line.starts_with(Data)) return false;
    const std::string folder = line.substr(Data.size());
    return folder == installed || folder == own || folder.ends_with("/orvellecp/flightgear") ||
           folder.ends_with("/OrvelleCP/flightgear");
}

}  // namespace orvelle::simulators
