#include "apps/SimulatorWindow.h"

#include <QCloseEvent>
#include <QMessageBox>
#include <QTabWidget>
#include <QVBoxLayout>

#include "adapters/looks/ScreenRoom.h"
#include "adapters/looks/Text.h"
#include "adapters/qt/services/BringToFront.h"
#include "apps/SimulatorIcon.h"
#include "apps/SimulatorLinks.h"
#include "apps/SimulatorProgram.h"
#include "apps/SimulatorSetUpPage.h"
#include "apps/simulator/HandTuning.h"
#include "apps/simulator/PartsOfPage.h"
#include "deck/fields/ScrolledPage.h"
#include "deck/pages/NetworkPage.h"
#include "platform/sides/FarSides.h"

namespace orvelle {

namespace {

constexpr QSize WantedSize(1000, 640);

}  // namespace

SimulatorWindow::SimulatorWindow(SimulatorProgram& simulatorProgram)
    : program(simulatorProgram),
      setUp(new SimulatorSetUpPage(program)),
      radios(new deck::NetworkPage({.Network = &program.Network},
                                   [this](const std::string& frequency) {
                                       return LookUpByHand(program.Parts.Directories.Index(), program.Parts.Logins,
                                                           frequency, program.Network.Session().Callsign);
                                   })),
      simulator(new SimulatorPage(PartsOfPage(program.Parts, program.Network))) {
    setObjectName("SimulatorWindow");
    setWindowTitle("OrvelleCP Simulator's Computer");
    setWindowIcon(SimulatorIcon(Sign::Good));
    auto* tabs = new QTabWidget;
    tabs->setObjectName("SimulatorPages");
    tabs->setDocumentMode(true);
    deck::AddScrolledPage(*tabs, setUp, "Set-&up");
    deck::AddScrolledPage(*tabs, radios, "Session an&d radios");
    deck::AddScrolledPage(*tabs, simulator, "S&imulator");
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(tabs);
    resize(WantedSize.boundedTo(MostWindowSize(*screen())));

    tray.Pressed = [this] { isVisible() && !isMinimized() ? hide() : BringUp(); };
    tray.ShowAsked = [this] { BringUp(); };
    tray.EndAsked = [this] { AskToEnd(); };
    // Hidden it could not be brought back any more.
    tray.Changed = [this] {
        if (!tray.IsThere() && isHidden()) showMinimized();
    };
    program.SetUpChanged = [this] { ShowState(); };
    program.DevicesChanged = [this] { ShowState(); };
    program.Parts.Changed = [this] { ShowSimulator(); };
    watch = program.AtBroker.Observe([this] { ShowState(); });
    ShowState();
    ShowSimulator();
}

void SimulatorWindow::Tell(const std::string& sentence) {
    setUp->Tell(ToQt(sentence));
    if (!isVisible()) tray.Tell(windowTitle(), ToQt(sentence));
}

void SimulatorWindow::BringUp() {
    showNormal();
    qt::BringToFront(*this);
}

void SimulatorWindow::AskToEnd() {
    if (findChild<QMessageBox*>("AsksToEnd")) return;
    auto* box =
        new QMessageBox(QMessageBox::Question, windowTitle(),
                        "End the program? The links that this computer serves, and the broker that it brings, end "
                        "for all computers of the set-up.",
                        QMessageBox::Yes | QMessageBox::No, this);
    box->setObjectName("AsksToEnd");
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setDefaultButton(QMessageBox::No);
    connect(box, &QMessageBox::finished, this, [this](int button) {
        if (button == QMessageBox::Yes) EndAsked();
    });
    box->open();
}

void SimulatorWindow::ShowState() {
    setUp->ShowState();
    ShowRuler();
    const Sign sign = program.AtBroker.IsThere() ? Sign::Good : program.Trouble().empty() ? Sign::Waiting : Sign::Bad;
    tray.Show(sign, Tip());
}

void SimulatorWindow::ShowSimulator() {
    ShowRuler();
    simulator->ShowState();
}

void SimulatorWindow::ShowRuler() {
    const simulators::SimulatorSource* const chosen = program.Parts.Choice.Chosen();
    if (!program.Parts.Session.Rules() || !chosen) return radios->ShowRuler("");
    const QString sentence = ToQt(chosen->Name()) + " sets session and radios";
    const int server = program.Network.ServedBy();
    const bool isElsewhere = server != 0 && server != program.AtBroker.Identity();
    radios->ShowRuler(isElsewhere ? sentence + "; those of " + NameOf(program, server) +
                                        " count, for which this computer stands by."
                                  : sentence + ".");
}

QString SimulatorWindow::Tip() const {
    const auto& made = program.Made();
    const QString name = made               ? ShownName(made->Name)
                         : program.Member() ? ShownName(program.Member()->Name)
                                            : QString("In no set-up");
    const int computers = ComputersThere(program);
    return QString("%1\nKeys and sounds: %2\nSession: %3\n%4")
        .arg(name, TellOfLink(program, program.Simulator).Words, TellOfLink(program, program.Network).Words,
             computers == 1 ? QString("1 computer is there") : QString("%1 computers are there").arg(computers));
}

// What the frame's box asks; a window that is closed by the program just goes.
void SimulatorWindow::closeEvent(QCloseEvent* event) {
    if (!event->spontaneous()) return;
    event->ignore();
    if (tray.IsThere())
        hide();
    else
        AskToEnd();
}

}  // namespace orvelle
