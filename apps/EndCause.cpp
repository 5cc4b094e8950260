#include "apps/EndCause.h"

#include "apps/EndSentences.h"
#include "input/Matching.h"
#include "input/ScanCodes.h"
#include "panel/FrmOrvelle.h"
#include "platform/RuntimeError.h"
#include "platform/VoiceSoftware.h"

namespace orvelle {

namespace {

bool CanBePressed(const std::string& keys) {
    try {
        for (ScanCodeReader codes(keys); !codes.AtEnd();) codes.Next();
    } catch (const RuntimeError&) {
        return false;
    }
    return true;
}

// No row without a text is ever used.
std::string CauseInTable(const std::string& page, const ListView& list) {
    for (Long row = 1; row <= list.Count(); ++row)
        if (!list.Row(row).Text.empty() && !CanBePressed(list.SubItem(row, KeyScanColumn)))
            return EndByTableRow(page, list.Row(row).Text);
    return "";
}

}  // namespace

std::string CauseInPanel(const FrmOrvelle& panel) {
    const PanelVariables& now = panel.Variables();
    const bool usesTeamSpeak = panel.TSEnable.Value == 1 &&
                               (now.ActiveVoiceSoftware == TeamSpeakHost || now.ActiveVoiceSoftware == TeamSpeakUrl);
    const bool usesRogerWilco = panel.RWEnable.Value == 1 && now.ActiveVoiceSoftware == RogerWilco;
    if ((usesTeamSpeak || now.TSPTTKeyState == Down) && !CanBePressed(now.TSPTTKey))
        return EndWithoutTalkKey("TeamSpeak");
    if ((usesRogerWilco || now.RWPTTKeyState == Down) && !CanBePressed(now.RWPTTKey))
        return EndWithoutTalkKey("RogerWilco");
    const std::string cause = CauseInTable("Joy to Key", panel.ListJoyToKey);
    return cause.empty() ? CauseInTable("Key to Key", panel.ListKeyToKey) : cause;
}

}  // namespace orvelle
