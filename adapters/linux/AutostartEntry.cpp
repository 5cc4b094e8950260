#include "adapters/linux/AutostartEntry.h"

#include <algorithm>

#include "adapters/linux/KeyFile.h"

namespace orvelle::linux {

namespace {

constexpr const char* Hidden = "Hidden";
constexpr const char* SwitchedOn = "X-GNOME-Autostart-enabled";

// Inside the quotes of a command line "\", "`" and "$" are escaped, each "\" again as every text of an entry's is, and
// "%" stands for fields.
std::string ExecOf(const std::string& commandLine) {
    std::string exec;
    for (const char letter : commandLine) {
        if (letter == '\\') exec += R"(\\\)";
        if (letter == '`' || letter == '$') exec += R"(\\)";
        if (letter == '%') exec += '%';
        exec += letter;
    }
    return exec;
}

// Back from an Exec whose escapes as a text are undone already.
std::string CommandLineOf(const std::string& exec) {
    std::string commandLine;
    for (std::size_t at = 0; at < exec.size(); ++at) {
        const bool isDoubled = exec[at] == '%' && at + 1 < exec.size() && exec[at + 1] == '%';
        if ((exec[at] == '\\' || isDoubled) && at + 1 < exec.size()) ++at;
        commandLine += exec[at];
    }
    return commandLine;
}

// What earlier versions wrote has neither comment nor icon.
std::string EarlierEntry(const std::string& commandLine) {
    return "[Desktop Entry]\nType=Application\nName=OrvelleCP\nExec=" + ExecOf(commandLine) + "\n";
}

bool SwitchesOff(std::string_view line) {
    const KeyFile alone("[Desktop Entry]\n" + std::string(line));
    return alone.IsTrue(DesktopEntryGroup, Hidden) || alone.Text(DesktopEntryGroup, SwitchedOn) == "false";
}

}  // namespace

std::string NewAutostartEntry(const std::string& commandLine) {
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Name=Orvelle Control Panel\n"
           "Comment=Joins the voice channel that the radios are tuned to, and takes push-to-talk keys to this "
           "computer\n"
           "Exec=" +
           ExecOf(commandLine) + "\nIcon=net.orvelle.orvellecp\n";
}

std::string CommandLineOfEntry(const std::string& entry) {
    const KeyFile file(entry);
    if (file.IsTrue(DesktopEntryGroup, Hidden) || file.Text(DesktopEntryGroup, SwitchedOn) == "false") return "";
    return CommandLineOf(file.Text(DesktopEntryGroup, "Exec"));
}

std::string ChangedAutostartEntry(std::string_view entry, const std::string& before, const std::string& commandLine) {
    const KeyFile file(entry);
    const std::string exec = file.Text(DesktopEntryGroup, "Exec");
    if (exec.empty() || entry == EarlierEntry(before)) return NewAutostartEntry(commandLine);

    const bool isOurs = CommandLineOf(exec) == before;
    std::string changed;
    bool isInside = false;  // the group of the entry itself; others are of its actions
    while (!entry.empty()) {
        const std::string_view line = entry.substr(0, entry.find('\n'));
        entry.remove_prefix(std::min(line.size() + 1, entry.size()));
        if (const std::string_view group = GroupOfLine(line); !group.empty()) isInside = group == DesktopEntryGroup;
        if (isInside && SwitchesOff(line)) continue;
        const bool isReplaced = isInside && isOurs && KeyOfLine(line) == "Exec";
        changed += (isReplaced ? "Exec=" + ExecOf(commandLine) : std::string(line)) + "\n";
    }
    return changed;
}

}  // namespace orvelle::linux
