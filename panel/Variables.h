// The variables of the panel: what it knows of the session, the rooms and the roles, and what the user mapped. The
// controller writes them; whoever looks at a panel from outside reads them (FrmOrvelle::Variables).
#pragma once

#include <string>

#include "panel/VoiceRecord.h"
#include "platform/CheckedArray.h"
#include "platform/PanelNumber.h"
#include "platform/VoiceEngine.h"

namespace orvelle {

struct PanelVariables {
    // Navigation
    Long CurrentPanel = OverviewPanel;  // shown in the place of the overview, or that itself

    // Session and radio set
    bool MultiplayerConnected = false;
    Long SessionHandle = 0;
    std::string Callsign;
    std::string ReceiveSelect;   // of RadioSelection.h
    std::string TransmitSelect;  // the same
    CheckedArray<VoiceRecord, 2> RadioVoice;

    // Rooms of the voice engine: 0 COM1, 1 COM2, 2 private
    CheckedArray<bool, Rooms> TransmitOff;
    CheckedArray<bool, Rooms> ReceiveOff;
    CheckedArray<bool, Rooms> RoomPriority;
    bool PriorityActive = false;
    Long PriorityStamp = 0;  // GetTickCount at the last mark of priority traffic
    bool VVLRunning = false;
    bool VVLTransmitting = false;
    bool VVLPrivTransmitting = false;

    // Voice routing
    Long ActiveVoiceSoftware = NoVoice;
    std::string RWServer;
    std::string RWChannel;
    std::string TSServer;
    std::string TSChannel;
    CheckedArray<std::string, 2> ATISSource;

    // Ids of the voice roles, 0 for none
    Long RWCom1 = 0;
    Long RWCom2 = 0;
    Long TSCom1 = 0;
    Long TSCom2 = 0;
    Long OwnVVL = 0;
    Long ForeignRWCom1 = 0;
    Long ForeignRWCom2 = 0;
    Long ForeignTSCom1 = 0;
    Long ForeignTSCom2 = 0;
    Long ForeignVVL = 0;

    // Key mappings: FS texts are the simulator's, the others scan-code sequences of this computer ("29+46")
    std::string TSFSJoy;
    std::string TSFSKey;
    std::string TSPTTKey;
    std::string TSPTTKeyState;  // "DOWN" while this program holds the sequence down
    std::string RWFSJoy;
    std::string RWFSKey;
    std::string RWPTTKey;
    std::string RWPTTKeyState;
    std::string VVLFSJoy;
    std::string VVLFSKey;
    std::string VVLPrivFSJoy;
    std::string VVLPrivFSKey;
    std::string J2KJoy;
    std::string J2KKey;
    std::string K2KFSKey;
    std::string K2KKey;
};

}  // namespace orvelle
