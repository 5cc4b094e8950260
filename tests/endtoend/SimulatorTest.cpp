// The window of the simulator's program over its own broker, on a desktop with a notification area and on one without.
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QTabWidget>
#include <csignal>

#include "adapters/looks/Text.h"
#include "adapters/mqtt/Member.h"
#include "tests/endtoend/SimulatorRig.h"
#include "tests/linux/ChildProcess.h"
#include "tests/mqtt/broker/BrokerProcess.h"
#include "tests/qt/shell/WidgetInput.h"

namespace orvelle {

namespace {

// Another computer's program of the set-up.
struct Other {
    Other(EventLoop& loop, const SimulatorProgram& program, int identity, mqtt::Program kind)
        : AtBroker(loop, kind, {}, [this] { return Presence; }) {
        Presence = {.Name = "COCKPIT2", .Address = "", .Desktop = "X11"};
        Presence.OffersSimulator = Presence.OffersFramework = kind == mqtt::Program::Simulator;
        mqtt::SetUpSetting setUp = *program.Member();
        setUp.Identity = identity;
        setUp.Key = program.SetUp.Read().Setting->Keys.at(identity);
        AtBroker.Open(setUp, "127.0.0.1");
    }

    mqtt::PresenceSetting Presence;
    mqtt::Member AtBroker;
};

class SimulatorTest : public SimulatorRig {
protected:
    // Two presses on the icon are no double click.
    SimulatorTest() { QApplication::setDoubleClickInterval(0); }

    const QWidget* TrayIcon() {
        for (const QWidget* widget : QApplication::topLevelWidgets())
            if (widget->inherits("QSystemTrayIconSys") && widget->isVisible() &&
                user.Input.MiddleOf(*widget).x() > TrayBegins)
                return widget;
        return nullptr;
    }

    void Remove(int row) {
        At<QTableWidget>("Computers").selectRow(row);
        At<QPushButton>("RemoveComputer").click();
        auto* question = window->findChild<QMessageBox*>();
        ASSERT_NE(question, nullptr);
        question->button(QMessageBox::Yes)->click();
        EXPECT_TRUE(ComesTrue([&] { return window->findChild<QMessageBox*>() == nullptr; }));
    }
    void AnswerEnding(QMessageBox::StandardButton answer) {
        auto* question = window->findChild<QMessageBox*>("AsksToEnd");
        ASSERT_NE(question, nullptr);
        question->button(answer)->click();
        EXPECT_TRUE(ComesTrue([&] { return window->findChild<QMessageBox*>("AsksToEnd") == nullptr; }));
    }

    // The tray lies at the right of the screen.
    static constexpr int TrayBegins = 700;

    User user;
};

// FlightGear, played by a program of its own that tells its radios ten times a second until it is killed.
struct PlayedFlightGear {
    explicit PlayedFlightGear(std::uint16_t port)
        : Program({"/bin/bash", "-c",
                   "exec 3>/dev/udp/127.0.0.1/" + std::to_string(port) +
                       "; while :; do echo COM1=118.300,COM2=121.500,OP1=1,OP2=1,VOL1=1,VOL2=1,TX=1,ONLINE=1,"
                       "AIRCRAFT=c172p,CS=D-EABC >&3; sleep 0.1 3>&-; done"}) {}

    linux::ChildProcess Program;
};

TEST_F(SimulatorTest, ASimulatorTakesSessionAndRadiosAndGivesThemBack) {
    ASSERT_NO_FATAL_FAILURE(Open());
    ASSERT_TRUE(IsThere());
    program->Network.SetFrequency(0, "122.800");
    At<QTabWidget>("SimulatorPages").setCurrentIndex(2);
    {
        PlayedFlightGear flightGear(program->Parts.FlightGearLine.Port());
        EXPECT_TRUE(ComesTrue([&] { return At<QLabel>("FoundText").text() == "FlightGear"; }));
        EXPECT_TRUE(ComesTrue([&] { return At<QLabel>("TunedCOM1").text() == "118.300"; }));
        EXPECT_EQ(At<QLabel>("Aircraft").text(), "c172p, callsign D-EABC, online");
        EXPECT_TRUE(ComesTrue([&] { return At<QLineEdit>("FrequencyCOM1").text() == "118.300"; }));
        EXPECT_FALSE(At<QLineEdit>("FrequencyCOM1").isEnabled());
        EXPECT_EQ(At<QLabel>("Ruler").text(), "FlightGear sets session and radios.");
        flightGear.Program.Kill(SIGKILL);
        flightGear.Program.Wait();
        EXPECT_TRUE(ComesTrue([&] { return At<QLineEdit>("FrequencyCOM1").isEnabled(); }));
    }
    EXPECT_TRUE(ComesTrue([&] { return At<QLineEdit>("FrequencyCOM1").text() == "122.800"; }));
    EXPECT_EQ(At<QLabel>("Ruler").text(), "");
    EXPECT_TRUE(ComesTrue([&] { return At<QLabel>("FoundText").text().startsWith("None"); }));
}

TEST_F(SimulatorTest, AnAddedComputerHasACodeAndIsListedUntilItIsRemoved) {
    ASSERT_NO_FATAL_FAILURE(Open());
    ASSERT_TRUE(IsThere());
    EXPECT_TRUE(ComesTrue([&] { return Row(0) == "c01|this computer|simulator|-|keys, session"; })) << Row(0);
    At<QPushButton>("AddComputer").click();
    const auto code = mqtt::ReadJoinCode(FromQt(At<QLineEdit>("Code").text()));
    ASSERT_TRUE(code);
    EXPECT_EQ(code->Number, 2);
    EXPECT_EQ(At<QLabel>("Answer").text(), "Type this code on the new computer, which will be c02.");
    EXPECT_TRUE(ComesTrue([&] { return Row(1) == "c02|-|away|-|-"; })) << Row(1);

    At<QPushButton>("AddComputer").click();
    const QString latest = At<QLineEdit>("Code").text();
    EXPECT_TRUE(ComesTrue([&] { return Row(2) == "c03|-|away|-|-"; })) << Row(2);
    Remove(1);
    EXPECT_TRUE(ComesTrue([&] { return Row(1).starts_with("c03"); })) << Row(1);
    EXPECT_EQ(At<QLineEdit>("Code").text(), latest) << "another one's code is still to be typed";
    Remove(1);
    EXPECT_TRUE(ComesTrue([&] { return Row(1).empty(); })) << Row(1);
    EXPECT_EQ(At<QLineEdit>("Code").text(), "");
}

TEST_F(SimulatorTest, AFullSetUpIsToldInOneSentence) {
    ASSERT_NO_FATAL_FAILURE(Open());
    ASSERT_TRUE(IsThere());
    for (int number = 2; number <= 99; ++number) ASSERT_TRUE(program->SetUp.Add().Code);
    At<QPushButton>("AddComputer").click();
    EXPECT_EQ(At<QLabel>("Answer").text(),
              "The set-up is full: it has 99 computers already; remove one to add another.");
    EXPECT_EQ(At<QLineEdit>("Code").text(), "");
    EXPECT_TRUE(ComesTrue([&] { return Row(98) == "c99|-|away|-|-"; })) << Row(98);
}

TEST_F(SimulatorTest, ComputersThatAreThereAreToldWithWhatTheyHoldAndServe) {
    ASSERT_NO_FATAL_FAILURE(Open());
    ASSERT_TRUE(IsThere());
    for (int number = 2; number <= 3; ++number) ASSERT_TRUE(program->SetUp.Add().Code);
    Other panel(loop, *program, 2, mqtt::Program::Panel);
    Other simulator(loop, *program, 3, mqtt::Program::Simulator);
    ASSERT_TRUE(ComesTrue([&] { return panel.AtBroker.IsThere(); }));
    panel.AtBroker.Say(mqtt::TopicKind::Record, R"({"type":"VOICE","role":"VVL"})", 1, mqtt::Retain::Yes, 1);
    EXPECT_TRUE(ComesTrue([&] { return Row(1) == "c02|COCKPIT2|panel|VVL|-"; })) << Row(1);
    EXPECT_TRUE(ComesTrue([&] { return Row(2) == "c03|COCKPIT2|simulator|-|-"; })) << Row(2);
    // A name is another computer's word.
    panel.Presence.Name = std::string(500, 'x') + "\n";
    panel.AtBroker.Describe();
    EXPECT_TRUE(ComesTrue([&] {
        const QString shown = At<QTableWidget>("Computers").item(1, 1)->text();
        return shown.size() == 40 && shown.startsWith("xxx");
    }));
    program->Simulator.SetLink(LinkState::Down);
    EXPECT_TRUE(ComesTrue([&] { return Row(2) == "c03|COCKPIT2|simulator|-|keys"; })) << Row(2);
    EXPECT_TRUE(ComesTrue([&] {
        return At<QLabel>("SimulatorLinkText").text() == "Served by c03 COCKPIT2" &&
               At<QLabel>("FrameworkLinkText").text() == "Served here";
    }));
    panel.AtBroker.Say(mqtt::TopicKind::Record, "{", 1, mqtt::Retain::No, 2);
    EXPECT_TRUE(ComesTrue([&] { return At<QLabel>("Refused").text().startsWith("1 "); }));
}

TEST_F(SimulatorTest, AnotherNameIsTakenUpAndAWrongOneTold) {
    ASSERT_NO_FATAL_FAILURE(Open());
    ASSERT_TRUE(IsThere());
    auto& name = At<QLineEdit>("SetUpName");
    EXPECT_EQ(name.text(), "Home");
    const auto type = [&](const QString& text) {
        name.selectAll();
        TypeText(&name, text);
        ClickKey(&name, Qt::Key_Return);
    };
    type("Club");
    EXPECT_TRUE(ComesTrue([&] { return program->Made()->Name == "Club"; }));
    EXPECT_EQ(mqtt::ReadSetUpFile(program->SetUp.PanelFile()).Setting->Name, "Club");
    EXPECT_TRUE(ComesTrue([&] { return window->Tray().Tip().startsWith("Club\n"); }));
    const int before = At<QListWidget>("Tellings").count();
    type(QString(64, 'x'));
    EXPECT_EQ(At<QListWidget>("Tellings").count(), before + 1);
    EXPECT_EQ(name.text(), "Club");
}

TEST_F(SimulatorTest, ASetUpThatWasJoinedIsShownAndNotChanged) {
    mqtt::BrokerProcess existing;
    command.Port = 0;
    command.Name.clear();
    ASSERT_EQ(mqtt::WriteSetUpFile(command.Data / "setup.json", existing.SetUpOf(3)), "");
    ASSERT_NO_FATAL_FAILURE(Open());
    ASSERT_TRUE(IsThere());
    EXPECT_TRUE(ComesTrue([&] { return Row(0) == "c03|this computer|simulator|-|keys, session"; })) << Row(0);
    EXPECT_EQ(At<QLabel>("SetUpPlace").text(), "c03, which has joined it");
    EXPECT_EQ(At<QLineEdit>("SetUpName").text(), "Test");
    for (const char* name : {"SetUpName", "AddComputer", "RemoveComputer"})
        EXPECT_FALSE(At<QWidget>(name).isEnabled()) << name;
    existing.Kill(SIGKILL);
    EXPECT_TRUE(ComesTrue([&] { return At<QLabel>("BrokerText").text().contains("nobody answers"); }));
    EXPECT_EQ(mqtt::RemoveSetUpFile(program->SetUp.PanelFile()), "");
    EXPECT_TRUE(ComesTrue([&] { return At<QLabel>("SetUpPlace").text() == "In no set-up" && Row(0).empty(); }));
    EXPECT_TRUE(window->Tray().Tip().startsWith("In no set-up\n"));
}

TEST_F(SimulatorTest, ClosingHidesItAndItsIconBringsItBackAndEndsIt) {
    ASSERT_NO_FATAL_FAILURE(Open());
    ASSERT_TRUE(IsThere());
    ASSERT_TRUE(ComesTrue([this] { return TrayIcon() != nullptr; }));
    CloseFromTheFrame(window.get());
    EXPECT_FALSE(window->isVisible());
    EXPECT_TRUE(program->AtBroker.IsThere());
    user.Click(*TrayIcon());
    EXPECT_TRUE(ComesTrue([this] { return window->isVisible(); }));
    user.Click(*TrayIcon());
    EXPECT_TRUE(ComesTrue([this] { return !window->isVisible(); }));
    window->Tray().Menu().actions().front()->trigger();
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(endsAsked, 0);
    window->Tray().Menu().actions().back()->trigger();
    AnswerEnding(QMessageBox::Yes);
    EXPECT_EQ(endsAsked, 1);
}

TEST_F(SimulatorTest, ItsTipTellsTheSetUpTheLinksAndHowManyAreThere) {
    ASSERT_NO_FATAL_FAILURE(Open());
    EXPECT_TRUE(ComesTrue([&] {
        return window->Tray().Tip() ==
               "Home\nKeys and sounds: Served here\n"
               "Session: Served here\n1 computer is there";
    })) << FromQt(window->Tray().Tip());
    ASSERT_TRUE(program->SetUp.Add().Code);
    Other panel(loop, *program, 2, mqtt::Program::Panel);
    EXPECT_TRUE(ComesTrue([&] { return window->Tray().Tip().endsWith("2 computers are there"); }));
}

class SimulatorWithoutTrayTest : public SimulatorTest {};

TEST_F(SimulatorWithoutTrayTest, ClosingItAsksAndEndsIt) {
    ASSERT_NO_FATAL_FAILURE(Open());
    CloseFromTheFrame(window.get());
    EXPECT_TRUE(window->isVisible());
    AnswerEnding(QMessageBox::No);
    EXPECT_EQ(endsAsked, 0);
    CloseFromTheFrame(window.get());
    AnswerEnding(QMessageBox::Yes);
    EXPECT_EQ(endsAsked, 1);
}

TEST_F(SimulatorWithoutTrayTest, AnAreaThatComesTakesTheIconAndOneThatGoesGivesTheWindowBack) {
    ASSERT_NO_FATAL_FAILURE(Open());
    EXPECT_FALSE(window->Tray().IsThere());
    QProcess tray;
    tray.start("trayer", {"--edge", "top", "--align", "right", "--height", "32"});
    EXPECT_TRUE(ComesTrue([&] { return window->Tray().IsThere(); }));
    CloseFromTheFrame(window.get());
    EXPECT_TRUE(window->isHidden());
    tray.kill();
    EXPECT_TRUE(ComesTrue([&] { return !window->Tray().IsThere() && !window->isHidden(); }));
    tray.waitForFinished();
}

}  // namespace

}  // namespace orvelle
