// A small file of the user's settings, mode 0600, that is never lost to a mistake in it: one that can't be read as it
// should be is kept aside under another name before it is written anew. For what the user enters about directories.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "simulators/directory/JsonEntries.h"

namespace orvelle::directory {

class KeptFile {
public:
    // `what` is it as in a sentence: "The addresses of directories".
    KeptFile(std::filesystem::path itsFile, std::string itsContent)
        : file(std::move(itsFile)), what(std::move(itsContent)) {}

    // Takes the JSON object's member `section`, a list or an object, entry by entry; `take` says whether one is as it
    // should be. "" for success or where there is no file, else one sentence.
    std::string Read(const std::string& section, const std::function<bool(const JsonMember&)>& take);
    // `content` is the section's list or object. "" for success, else one sentence.
    std::string Write(const std::string& section, const std::string& content);

private:
    const std::filesystem::path file;
    const std::string what;
    bool isDamaged = false;
};

// In quotation marks, as JSON has it. The text is UTF-8.
std::string JsonText(std::string_view text);

}  // namespace orvelle::directory
