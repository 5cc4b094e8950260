// Reads a JSON object member by member and holds each against the bounds of the protocol. A breach is noted, not told
// at once: the caller reads all that it wants, then asks whether all was sound. Used by the readers of the payloads and
// of the file setup.json. Nothing throws.
#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Types.h"

namespace orvelle::mqtt {

// The members of one object. Members that are not asked for are ignored. What is asked for by name must be there and
// must be as told; else the breach is noted and 0, "" or nothing is returned.
class Members {
public:
    Members(const nlohmann::json& from, bool& noted) : object(from), sound(noted) {}

    bool Has(const char* name) const;

    Long Number(const char* name, Long least, Long greatest) const;
    bool Flag(const char* name) const;
    std::string Text(const char* name) const;
    int Identity(const char* name) const;  // its number
    std::vector<std::string> Texts(const char* name) const;
    std::vector<std::string> HeldNames(const char* name) const;  // not too many, none empty or there twice
    std::vector<Members> Objects(const char* name, std::size_t count) const;
    // Parameters by their index; nothing where there is no such member.
    std::map<Long, Long> IndexedNumbers(const char* name) const;
    std::map<Long, std::string> IndexedTexts(const char* name) const;

    void Refuse() const { sound = false; }  // a rule is broken that the caller knows

private:
    const nlohmann::json& Find(const char* name) const;
    Long NumberOf(const nlohmann::json& value, Long least, Long greatest) const;
    std::string TextOf(const nlohmann::json& value) const;
    Long IndexOf(std::string_view name) const;

    const nlohmann::json& object;
    bool& sound;
};

class JsonReading {
public:
    explicit JsonReading(std::string_view text);
    ~JsonReading();
    JsonReading(const JsonReading&) = delete;
    JsonReading& operator=(const JsonReading&) = delete;

    Members Object();  // empty if the text is no object

    // What was read, if nothing was wrong with the text or with any member that was asked for.
    template <typename Content>
    std::optional<Content> Taken(Content content) const {
        return sound ? std::optional<Content>(std::move(content)) : std::nullopt;
    }

private:
    std::unique_ptr<nlohmann::json> whole;
    bool sound = true;
};

}  // namespace orvelle::mqtt
