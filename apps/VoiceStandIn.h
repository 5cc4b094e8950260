// A voice program that a panel is given where the real one is not wanted: it writes down how it was called. For
// programs that show a panel at work by themselves.
#pragma once

#include <QDir>
#include <string>

#include "platform/SettingsStore.h"
#include "platform/Types.h"

namespace orvelle {

class VoiceStandIn {
public:
    static constexpr Long TalkKey = 88;  // F12, as a scan code

    // Makes the program in a folder that nobody else may write to, since a panel runs it.
    explicit VoiceStandIn(const QDir& workFolder);

    // Has a panel take it for RogerWilco, with its talk key; to be called before the panel starts.
    void Enter(SettingsStore& settings) const;
    std::string File() const;
    // How it was called so far, a line each: its file and its arguments.
    std::string Calls() const;

private:
    QDir folder;
};

}  // namespace orvelle
