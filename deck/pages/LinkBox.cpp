#include "deck/pages/LinkBox.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

#include "adapters/looks/Text.h"
#include "deck/fields/Fields.h"
#include "deck/fields/Readout.h"
#include "deck/fields/SignalLight.h"
#include "platform/sides/PlayedLinkSide.h"

namespace orvelle::deck {

namespace {

QString Joined(const std::vector<std::string>& names) {
    QStringList list;
    for (const std::string& name : names) list << ToQt(name);
    return list.isEmpty() ? "None yet" : list.join(", ");
}

}  // namespace

LinkBox::LinkBox(const QString& name, const QString& title, const QString& switchLabel, LinkSide& linkSide)
    : Section(name, title, 3),
      link(linkSide),
      played(link.Played()),
      up(NewCheck(name + "Link", switchLabel, "The link as this side wants it",
                  [this](bool on) { link.SetLink(on ? LinkState::Up : LinkState::Down); })),
      state(new SignalLight(name + "State")),
      watch(link.Observe([this] { ShowState(); })) {
    // A click doesn't take the focus, so that keys stay held while a link goes.
    up->setFocusPolicy(Qt::TabFocus);
    state->setAccessibleName(title + " link");
    AddRow("Link", {up, state});
    if (played) AddServers(name, title);
    ShowState();
}

void LinkBox::AddServers(const QString& name, const QString& title) {
    seen = new QLineEdit;
    allSeen = new Readout(name + "ServersSeen");
    seen->setObjectName(name + "ServerSeen");
    seen->setToolTip("A name or an address that is reported to the panel as a server on the network");
    connect(seen, &QLineEdit::returnPressed, this, [this] { SeeServer(); });
    auto* see = NewButton(name + "SeeServer", "See server", "Report this server to the panel", [this] { SeeServer(); });
    // Each link has these.
    seen->setAccessibleName("Server seen, " + title);
    see->setAccessibleName("See server, " + title);
    allSeen->setAccessibleName("Servers seen, " + title);
    AddRow("Server seen", {seen, see, allSeen});
}

void LinkBox::SeeServer() {
    if (seen->text().isEmpty()) return;
    played->SeeServer(FromQt(seen->text()));
    seen->selectAll();
}

void LinkBox::ShowState() {
    const bool wanted = link.Link() == LinkState::Up;
    const bool isUp = link.IsUp();
    const Sign sign = wanted != isUp ? Sign::Waiting : isUp ? Sign::Good : Sign::Off;
    const QString text = wanted == isUp ? (isUp ? "Connected" : "Down") : (wanted ? "Not up yet" : "Not lost yet");
    const std::string server = link.Server();
    up->setChecked(wanted);
    state->Show(sign, text + ", server " + (server.empty() ? "(empty)" : ToQt(server)));
    if (played) allSeen->Show(Joined(played->ServersSeen()));
}

}  // namespace orvelle::deck
