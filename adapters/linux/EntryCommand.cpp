#include "adapters/linux/EntryCommand.h"

#include <optional>
#include <utility>
#include <vector>

#include "adapters/linux/KeyFile.h"
#include "adapters/linux/SearchPath.h"

namespace orvelle::linux {

namespace {

// Quotes keep an argument together, and inside them "\" stands before what is meant as itself. Nothing where a quote
// isn't closed.
std::optional<std::vector<std::string>> ArgumentsOf(const std::string& exec) {
    std::vector<std::string> arguments;
    bool isInside = false;  // an argument
    bool isQuoted = false;
    for (std::size_t at = 0; at < exec.size(); ++at) {
        const char letter = exec[at];
        if (!isQuoted && (letter == ' ' || letter == '\t' || letter == '\n')) {
            isInside = false;
            continue;
        }
        if (!std::exchange(isInside, true)) arguments.emplace_back();
        if (letter == '"')
            isQuoted = !isQuoted;
        else if (letter == '\\' && at + 1 < exec.size())
            arguments.back() += exec[++at];
        else
            arguments.back() += letter;
    }
    return isQuoted ? std::nullopt : std::optional(arguments);
}

// The argument with its fields filled in, as a list since one field may be two arguments and another none.
std::vector<std::string> Filled(const std::string& argument, const KeyFile& entry, const std::filesystem::path& file) {
    if (argument == "%u" || argument == "%U" || argument == "%f" || argument == "%F") return {"%1"};
    if (argument == "%i") {
        const std::string icon = entry.Text(DesktopEntryGroup, "Icon");
        return icon.empty() ? std::vector<std::string>{} : std::vector<std::string>{"--icon", icon};
    }
    std::string filled;
    for (std::size_t at = 0; at < argument.size(); ++at) {
        if (argument[at] != '%' || at + 1 == argument.size()) {
            filled += argument[at];
            continue;
        }
        switch (argument[++at]) {
            case '%':
                filled += '%';
                break;
            case 'u':
            case 'U':
            case 'f':
            case 'F':
                filled += "%1";
                break;
            case 'c':
                filled += entry.Text(DesktopEntryGroup, "Name");
                break;
            case 'k':
                filled += file.string();
                break;
            default:  // fields that are no more
                break;
        }
    }
    if (filled.empty() && !argument.empty()) return {};
    return {filled};
}

std::string FullPath(const std::string& program) {
    if (program.find('/') == std::string::npos) return SearchPath(program);
    return program.starts_with('/') && IsProgram(program) ? program : "";
}

bool IsForbidden(const std::string& argument) { return argument.find_first_of("\"\n") != std::string::npos; }

std::string Quoted(const std::string& text) { return '"' + text + '"'; }

}  // namespace

std::string ShellCommandOf(const std::filesystem::path& file) {
    const KeyFile entry = KeyFile::Read(file);
    const std::string tried = entry.Text(DesktopEntryGroup, "TryExec");
    if (entry.Text(DesktopEntryGroup, "Type") != "Application" || entry.IsTrue(DesktopEntryGroup, "Hidden") ||
        (!tried.empty() && FullPath(tried).empty()))
        return "";
    const auto arguments = ArgumentsOf(entry.Text(DesktopEntryGroup, "Exec"));
    if (!arguments || arguments->empty()) return "";
    const std::string program = FullPath(arguments->front());
    if (program.empty() || IsForbidden(program)) return "";

    std::string command = Quoted(program);
    for (std::size_t index = 1; index < arguments->size(); ++index)
        for (const std::string& argument : Filled((*arguments)[index], entry, file)) {
            if (IsForbidden(argument)) return "";
            const bool isPlain =
                !argument.empty() && argument != "%1" && argument.find_first_of(" \t") == std::string::npos;
            command += ' ' + (isPlain ? argument : Quoted(argument));
        }
    return command;
}

}  // namespace orvelle::linux
