// The store of named values, ordered in sections of path form ("OrvelleCP\Joy2Key\1"). The panel reads it at load and
// writes each setting through at once. No operation fails towards the caller: what can't be read is the default.
// A key is used with one type only.
#pragma once

#include <string>

#include "platform/Types.h"

namespace orvelle {

class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    virtual Long GetSettingLong(const std::string& section, const std::string& key, Long defaultValue) = 0;
    virtual std::string GetSettingString(const std::string& section, const std::string& key,
                                         const std::string& defaultValue) = 0;
    virtual void SaveSettingLong(const std::string& section, const std::string& key, Long value) = 0;
    virtual void SaveSettingString(const std::string& section, const std::string& key, const std::string& value) = 0;

    // Removes the section with all its keys and sub-sections; a missing section is no error.
    virtual void DeleteSettingSection(const std::string& section) = 0;

    // One listing of direct sub-sections is open at a time, in numeric order where the names are numbers.
    virtual void OpenSettingList(const std::string& section) = 0;
    virtual Long SettingListCount() = 0;
    // `index` counts from 0. True and the sub-section's name, or False and "".
    virtual bool SettingListItem(Long index, std::string& name) = 0;
    virtual void CloseSettingList() = 0;

    // Called when the outermost handler is done, or is about to wait for the user: all writes since the last call
    // are one unit, which is on disk when this returns and survives a kill whole or not at all.
    virtual void HandlerEnded() = 0;
};

}  // namespace orvelle
