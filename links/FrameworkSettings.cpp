// What the user sets of the framework itself: the framework or the simulator reads it when it starts.
#include "panel/FrmOrvelle.h"
#include "platform/RegistryPaths.h"

namespace orvelle {

void FrmOrvelle::KestrineEmbedded_Click() { Tessaly.Embedded(KestrineEmbedded.Value); }

void FrmOrvelle::FS2004DPCompatible_Click() {
    Registry.WriteRegistryLong(LocalMachine, FrameworkPath, "FS2004Compatible", FS2004DPCompatible.Value);
}

}  // namespace orvelle
