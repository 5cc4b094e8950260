#include "deck/pages/SessionBox.h"

#include <QCheckBox>

#include "deck/fields/Fields.h"
#include "deck/fields/TextField.h"
#include "platform/Tessaly.h"
#include "platform/sides/NetworkSide.h"

namespace orvelle::deck {

SessionBox::SessionBox(NetworkSide& framework)
    : Section("Session", "Session", 2),
      network(framework),
      open(NewCheck("SessionOpen", "Session &open", "The user has a session on the network",
                    [this](bool on) { on ? network.StartSession() : network.EndSession(); })),
      connected(NewCheck("SessionConnected", "Connected to &multiplayer",
                         "The session's status: connected to the multiplayer network",
                         [this](bool on) { network.SetStatus(on ? ConnectedToMultiplayer : 0); })),
      callsign(NewEdit("Callsign", "The user's callsign; Enter applies it",
                       [this](const std::string& text) { network.SetCallsign(text); })),
      watch(network.Observe([this] { ShowState(); })) {
    // A click doesn't take the focus, so that keys stay held meanwhile.
    open->setFocusPolicy(Qt::TabFocus);
    connected->setFocusPolicy(Qt::TabFocus);
    AddRow("Session", {open, connected});
    AddRow("&Callsign", {callsign});
    ShowState();
}

void SessionBox::ShowState() {
    const SessionSetting& session = network.Session();
    open->setChecked(session.Handle != 0);
    connected->setChecked(session.Status == ConnectedToMultiplayer);
    callsign->Show(session.Callsign);
}

}  // namespace orvelle::deck
