#include "deck/pages/ComputerBox.h"

#include "deck/fields/Fields.h"
#include "deck/fields/TextField.h"
#include "platform/sides/SimulatorSide.h"

namespace orvelle::deck {

namespace {

TextField* NewComputerEdit(SimulatorSide& velmarc, const QString& name, std::string SimulatorComputer::*text) {
    return NewEdit(name, "The panel reads it when the link comes up; Enter applies it",
                   [&velmarc, text](const std::string& value) {
                       SimulatorComputer computer = velmarc.Computer();
                       computer.*text = value;
                       velmarc.SetComputer(computer);
                   });
}

}  // namespace

ComputerBox::ComputerBox(SimulatorSide& simulator)
    : Section("Computer", "The simulator's computer"),
      velmarc(simulator),
      address(NewComputerEdit(velmarc, "ComputerAddress", &SimulatorComputer::IPAddress)),
      name(NewComputerEdit(velmarc, "ComputerName", &SimulatorComputer::ComputerName)),
      desktop(NewComputerEdit(velmarc, "DesktopName", &SimulatorComputer::DesktopName)),
      watch(velmarc.Observe([this] { ShowState(); })) {
    AddRow("IP address", {address});
    AddRow("Name", {name});
    AddRow("Desktop", {desktop});
    ShowState();
}

void ComputerBox::ShowState() {
    const SimulatorComputer& computer = velmarc.Computer();
    address->Show(computer.IPAddress);
    name->Show(computer.ComputerName);
    desktop->Show(computer.DesktopName);
}

}  // namespace orvelle::deck
