#include "panel/FrmOrvelle.h"

namespace orvelle {

FrmOrvelle::FrmOrvelle(const Platform& outside)
    : Platform(outside),
      handlers(outside.Settings),
      ST(*this, "ST", outside.Windows, outside.Tray, trayModule, cSysTray::Mode::Run),
      Stub1(*this, "Stub1", outside.Windows, trayModule),
      keySlots{{
          {RemoteSlot::Kind::Key, TSKeySet, TSKeyClear, TSFSKeyDisplay, TSFSKey, "TSFSKey"},
          {RemoteSlot::Kind::Key, VVLKeySet, VVLKeyClear, VVLFSKeyDisplay, VVLFSKey, "VVLFSKey"},
          {RemoteSlot::Kind::Key, VVLPrivKeySet, VVLPrivKeyClear, VVLPrivFSKeyDisplay, VVLPrivFSKey, "VVLPrivFSKey"},
          {RemoteSlot::Kind::Key, RWKeySet, RWKeyClear, RWFSKeyDisplay, RWFSKey, "RWFSKey"},
          {RemoteSlot::Kind::KeySequence, K2KFSKeySet, K2KFSKeyClear, K2KFSKeyDisplay, K2KFSKey, ""},
      }},
      joySlots{{
          {RemoteSlot::Kind::Button, TSJoySet, TSJoyClear, TSFSJoyDisplay, TSFSJoy, "TSFSJoy"},
          {RemoteSlot::Kind::Button, VVLJoySet, VVLJoyClear, VVLFSJoyDisplay, VVLFSJoy, "VVLFSJoy"},
          {RemoteSlot::Kind::Button, VVLPrivJoySet, VVLPrivJoyClear, VVLPrivFSJoyDisplay, VVLPrivFSJoy, "VVLPrivFSJoy"},
          {RemoteSlot::Kind::Button, RWJoySet, RWJoyClear, RWFSJoyDisplay, RWFSJoy, "RWFSJoy"},
          {RemoteSlot::Kind::WholeButton, J2KJoySet, J2KJoyClear, J2KJoyDisplay, J2KJoy, ""},
      }},
      localSlots{{
          {RWPTTKeySet, RWPTTKeyClear, RWPTTKeyDisplay, RWPTTKey, "RWPTTKey"},
          {TSPTTKeySet, TSPTTKeyClear, TSPTTKeyDisplay, TSPTTKey, "TSPTTKey"},
          {J2KKeySet, J2KKeyClear, J2KKeyDisplay, J2KKey, ""},
          {K2KKeySet, K2KKeyClear, K2KKeyDisplay, K2KKey, ""},
      }},
      joyToKey{ListJoyToKey,         J2KJoy,   J2KJoyDisplay, J2KKey,  J2KKeyDisplay, J2KToggle,
               "OrvelleCP\\Joy2Key", "J2KJoy", "J2KJoy",      "J2KKey"},
      keyToKey{ListKeyToKey,         K2KFSKey,   K2KFSKeyDisplay, K2KKey,  K2KKeyDisplay, K2KToggle,
               "OrvelleCP\\Key2Key", "K2KFSKey", "K2KJoy",        "K2KKey"} {
    ST.TrayTip("Orvelle Control Panel");
    WireWindow();
    WirePages();
    WireInputPages();
    WireAudioPages();
    WireSimulator();
    WireFramework();
    WireEngine();
}

FrmOrvelle::~FrmOrvelle() = default;

}  // namespace orvelle
