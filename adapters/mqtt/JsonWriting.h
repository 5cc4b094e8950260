// Writes a JSON object member by member, in the order of the calls and without blanks. What is beyond the bounds of the
// protocol is cut, so that the readers take all that is written. Used by the writers of the payloads and of the file
// setup.json.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Types.h"

namespace orvelle::mqtt {

class JsonWriting {
public:
    void Number(std::string_view name, Long number);
    void Flag(std::string_view name, bool flag);
    void Text(std::string_view name, const std::string& text);
    void Texts(std::string_view name, const std::vector<std::string>& texts);
    // The names as they were written: as many as fit, each once.
    std::vector<std::string> HeldNames(std::string_view name, const std::vector<std::string>& names);
    void Objects(std::string_view name, const std::vector<JsonWriting>& objects);
    // Parameters by their index: as many as fit.
    void Indexed(std::string_view name, const std::map<Long, Long>& numbers);
    void Indexed(std::string_view name, const std::map<Long, std::string>& texts);

    std::string Whole() const { return '{' + members + '}'; }

private:
    void Begin(std::string_view name);
    void List(std::string_view name, const std::string& entries, char opening, char closing);
    bool Fits(const std::string& list, const std::string& entry) const;

    std::string members;
};

// What a text is written as: in UTF-8, and no longer than a text may be.
std::string WrittenText(const std::string& text);

}  // namespace orvelle::mqtt
