#include "deck/pages/ComputerBox.h"

#include "deck/fields/Fields.h"
#include "deck/fields/TextField.h"
#include "platform/sides/SimulatorSide.h"

namespace orvelle::deck {

namespace {

TextField* NewComputerEdit(SimulatorSide& simulator, const QString& name, std::string SimulatorComputer::*text) {
    return NewEdit(name, "The panel reads it when the link comes up; Enter applies it",
                   [&simulator, text](const std::string& value) {
                       SimulatorComputer computer = simulator.Computer();
                       computer.*text = value;
                       simulator.SetComputer(computer);
                   });
}

}  // namespace

ComputerBox::ComputerBox(SimulatorSide& simulatorSide)
    : Section("Computer", "The simulator's computer"),
      simulator(simulatorSide),
      address(NewComputerEdit(simulator, "ComputerAddress", &SimulatorComputer::IPAddress)),
      name(NewComputerEdit(simulator, "ComputerName", &SimulatorComputer::ComputerName)),
      desktop(NewComputerEdit(simulator, "DesktopName", &SimulatorComputer::DesktopName)),
      watch(simulator.Observe([this] { ShowState(); })) {
    AddRow("IP address", {address});
    AddRow("Name", {name});
    AddRow("Desktop", {desktop});
    ShowState();
}

void ComputerBox::ShowState() {
    const SimulatorComputer& computer = simulator.Computer();
    address->Show(computer.IPAddress);
    name->Show(computer.ComputerName);
    desktop->Show(computer.DesktopName);
}

}  // namespace orvelle::deck
