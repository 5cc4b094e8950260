// The panel's own section of the settings store.
#include "panel/FrmOrvelle.h"

namespace orvelle {

namespace {

const std::string Section = "OrvelleCP";

}  // namespace

Long FrmOrvelle::GetSettingLong(const std::string& key, Long defaultValue) {
    return Settings.GetSettingLong(Section, key, defaultValue);
}

std::string FrmOrvelle::GetSettingString(const std::string& key, const std::string& defaultValue) {
    return Settings.GetSettingString(Section, key, defaultValue);
}

void FrmOrvelle::SaveSettingLong(const std::string& key, Long value) { Settings.SaveSettingLong(Section, key, value); }

void FrmOrvelle::SaveSettingString(const std::string& key, const std::string& value) {
    Settings.SaveSettingString(Section, key, value);
}

}  // namespace orvelle
