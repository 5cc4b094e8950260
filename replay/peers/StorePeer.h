// The settings store of a run: empty at its start, keeping what the panel and the scenario write. A value of the other
// type reads as none.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/SettingsStore.h"
#include "replay/Peer.h"

namespace orvelle::replay {

class StorePeer final : public SettingsStore, private Peer {
public:
    using Peer::Peer;

    Long GetSettingLong(const std::string& section, const std::string& key, Long defaultValue) override;
    std::string GetSettingString(const std::string& section, const std::string& key,
                                 const std::string& defaultValue) override;
    void SaveSettingLong(const std::string& section, const std::string& key, Long value) override;
    void SaveSettingString(const std::string& section, const std::string& key, const std::string& value) override;
    void DeleteSettingSection(const std::string& section) override;
    void OpenSettingList(const std::string& section) override;
    Long SettingListCount() override;
    bool SettingListItem(Long index, std::string& name) override;
    void CloseSettingList() override;
    void HandlerEnded() override {}

    // Texts and whole numbers, as the scenario puts and looks at them.
    void Put(const std::string& section, const std::string& key, const Value& value);
    std::optional<Value> Find(const std::string& section, const std::string& key) const;

private:
    template <typename T>
    T Get(const char* member, const std::string& section, const std::string& key, const T& defaultValue);
    const Kept<Value>* Entry(const std::string& section, const std::string& key) const;

    std::map<std::string, std::map<std::string, Kept<Value>>> sections;
    std::vector<std::string> listing;
};

}  // namespace orvelle::replay
