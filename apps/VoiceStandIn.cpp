#include "apps/VoiceStandIn.h"

#include <QFile>

#include "adapters/looks/Text.h"

namespace orvelle {

VoiceStandIn::VoiceStandIn(const QDir& workFolder) : folder(workFolder) {
    QFile program(ToQt(File()));
    if (program.open(QFile::WriteOnly)) program.write("#!/bin/sh\necho \"$0 $*\" >>\"${0%/*}/calls\"\n");
    program.close();
    program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void VoiceStandIn::Enter(SettingsStore& settings) const {
    settings.SaveSettingString("OrvelleCP", "RWPath", File());
    settings.SaveSettingString("OrvelleCP", "RWPTTKey", std::to_string(TalkKey));
}

std::string VoiceStandIn::File() const { return FromQt(folder.filePath("voice-program")); }

std::string VoiceStandIn::Calls() const {
    QFile calls(folder.filePath("calls"));
    return calls.open(QFile::ReadOnly) ? calls.readAll().trimmed().toStdString() : "";
}

}  // namespace orvelle
