#include "replay/PanelHolder.h"

#include "panel/FrmOrvelle.h"

namespace orvelle::replay {

PanelHolder::PanelHolder(World& outsideWorld) : world(outsideWorld) {}

PanelHolder::~PanelHolder() = default;

void PanelHolder::Load() {
    panel = std::make_unique<FrmOrvelle>(world.Outside());
    for (const std::string& key : world.MissingIcons) panel->IconList.Remove(key);
    panelTicket = panel->Attach(*this);
    warningTicket = panel->MultiFSWarningDlg.Attach(*this);
    panel->Show();
}

void PanelHolder::RemoveIcon(const std::string& key) {
    world.MissingIcons.insert(key);
    if (panel != nullptr) panel->IconList.Remove(key);
}

void PanelHolder::PutPlayers() {
    panel->WMPCOM1 = world.Players.Present(0);
    panel->WMPCOM2 = world.Players.Present(1);
    panel->Timer1.Enabled = true;
}

FrmOrvelle& PanelHolder::Panel() const {
    if (panel == nullptr) throw LineError("the panel is not loaded yet");
    return *panel;
}

Control& PanelHolder::Find(const std::string& name) const {
    if (Control* control = FindOrNull(name)) return *control;
    throw LineError("there is no control " + name);
}

Control* PanelHolder::FindOrNull(const std::string& name) const {
    for (Form* form : {static_cast<Form*>(&Panel()), static_cast<Form*>(&Panel().MultiFSWarningDlg)}) {
        if (form->Name == name) return form;
        if (Control* control = form->Find(name)) return control;
    }
    return nullptr;
}

void PanelHolder::ControlChanged(Control& control, ControlProperty property) {
    if (auto* timer = dynamic_cast<Timer*>(&control); timer != nullptr && property == ControlProperty::Enabled) {
        if (timer->Enabled)
            world.Time.TurnOn(*timer);
        else
            world.Time.TurnOff(*timer);
    }
    // A window that goes with its form was not hidden.
    if (auto* form = dynamic_cast<Form*>(&control); form != nullptr && property == ControlProperty::Visible) {
        if (form->Visible)
            world.Output.Note(form->Name + ".Show");
        else if (form->IsLoaded())
            world.Output.Note(form->Name + ".Hide");
    }
}

}  // namespace orvelle::replay
