#include "deck/pages/SessionBox.h"

#include <QCheckBox>

#include "deck/fields/Fields.h"
#include "deck/fields/TextField.h"
#include "platform/Tessaly.h"
#include "platform/sides/NetworkSide.h"

namespace orvelle::deck {

SessionBox::SessionBox(NetworkSide& framework)
    : Section("Session", "Session", 2),
      tessaly(framework),
      open(NewCheck("SessionOpen", "Session &open", "The user has a session on the network",
                    [this](bool on) { on ? tessaly.StartSession() : tessaly.EndSession(); })),
      connected(NewCheck("SessionConnected", "Connected to &multiplayer",
                         "The session's status: connected to the multiplayer network",
                         [this](bool on) { tessaly.SetStatus(on ? ConnectedToMultiplayer : 0); })),
      callsign(NewEdit("Callsign", "The user's callsign; Enter applies it",
                       [this](const std::string& text) { tessaly.SetCallsign(text); })),
      watch(tessaly.Observe([this] { ShowState(); })) {
    // A click doesn't take the focus, so that keys stay held meanwhile.
    open->setFocusPolicy(Qt::TabFocus);
    connected->setFocusPolicy(Qt::TabFocus);
    AddRow("Session", {open, connected});
    AddRow("&Callsign", {callsign});
    ShowState();
}

void SessionBox::ShowState() {
    const SessionSetting& session = tessaly.Session();
    open->setChecked(session.Handle != 0);
    connected->setChecked(session.Status == ConnectedToMultiplayer);
    callsign->Show(session.Callsign);
}

}  // namespace orvelle::deck
