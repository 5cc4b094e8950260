// Rows for both mapping tables in a settings store, push rows of one key sequence each.
#pragma once

#include <string>

#include "platform/SettingsStore.h"

namespace orvelle {

inline void SaveMappingRows(SettingsStore& store, Long rows) {
    for (Long row = 1; row <= rows; ++row) {
        const std::string number = std::to_string(row);
        store.SaveSettingString("OrvelleCP\\Joy2Key\\" + number, "J2KJoy", "Stick." + number);
        store.SaveSettingString("OrvelleCP\\Joy2Key\\" + number, "J2KKey", "29+46");
        store.SaveSettingString("OrvelleCP\\Joy2Key\\" + number, "Toggle", "Push");
        store.SaveSettingString("OrvelleCP\\Key2Key\\" + number, "K2KFSKey", "Key " + number);
        store.SaveSettingString("OrvelleCP\\Key2Key\\" + number, "K2KKey", "29+46");
        store.SaveSettingString("OrvelleCP\\Key2Key\\" + number, "Toggle", "Push");
    }
    store.HandlerEnded();
}

}  // namespace orvelle
