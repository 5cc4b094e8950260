// A file of the desktop's own form: groups in square brackets, in them keys with a value. Desktop entries, the user's
// choice of programs (mimeapps.list) and the caches of both are such files. What isn't a file, can't be read or has
// another form has no values; pipes and devices in its place are not opened.
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace orvelle::linux {

constexpr const char* DesktopEntryGroup = "Desktop Entry";

class KeyFile {
public:
    explicit KeyFile(std::string_view text);
    static KeyFile Read(const std::filesystem::path& file) { return KeyFile(TextOf(file)); }
    static std::string TextOf(const std::filesystem::path& file);

    // "" where there is none. Escapes stand for what they mean.
    std::string Text(const std::string& group, const std::string& key) const;
    bool IsTrue(const std::string& group, const std::string& key) const { return Text(group, key) == "true"; }
    // The parts of a value between semicolons, without empty ones.
    std::vector<std::string> List(const std::string& group, const std::string& key) const;

private:
    std::map<std::string, std::map<std::string, std::string>> groups;  // values as they are written
};

// The group's name if the line begins one, else "".
std::string_view GroupOfLine(std::string_view line);
// The line's key, "" for a line without one.
std::string_view KeyOfLine(std::string_view line);

}  // namespace orvelle::linux
