// The controller that a run drives, from its load on, and what the run hears of it: windows shown and hidden, timers
// turned on and off.
#pragma once

#include <memory>
#include <string>

#include "platform/Ticket.h"
#include "platform/controls/Control.h"
#include "replay/LineError.h"
#include "replay/World.h"

namespace orvelle {
class FrmOrvelle;
}

namespace orvelle::replay {

class PanelHolder final : private ControlObserver {
public:
    explicit PanelHolder(World& outsideWorld);
    ~PanelHolder() override;

    // Creates the controller and runs its load event.
    void Load();
    bool IsLoaded() const { return panel != nullptr; }
    void RemoveIcon(const std::string& key);
    // Gives the controller its two media players and their polling, which it has not by itself.
    void PutPlayers();

    // LineError before the load.
    FrmOrvelle& Panel() const;
    // A window or control by name, of the main window or else of the warning. LineError where there is none.
    Control& Find(const std::string& name) const;
    // Null where there is none.
    Control* FindOrNull(const std::string& name) const;
    // LineError where the control of that name is of another kind: "RWEnable is no slider".
    template <typename Kind>
    Kind& FindAs(const std::string& name, const char* kindName) const {
        if (auto* control = dynamic_cast<Kind*>(&Find(name))) return *control;
        throw LineError(name + " is no " + kindName);
    }

private:
    void ControlChanged(Control& control, ControlProperty property) override;

    World& world;
    std::unique_ptr<FrmOrvelle> panel;
    Ticket panelTicket;
    Ticket warningTicket;
};

}  // namespace orvelle::replay
