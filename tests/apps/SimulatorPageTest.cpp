// The simulator's page: what is found, FlightGear's options, directories and logins, as a user reads and works them.
#include <QAbstractButton>
#include <QAccessible>
#include <QClipboard>
#include <QDesktopServices>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTableWidget>
#include <QUrl>
#include <algorithm>
#include <fstream>
#include <map>
#include <sstream>

#include "adapters/looks/Reading.h"
#include "deck/fields/SignalLight.h"
#include "tests/apps/SimulatorPageRig.h"
#include "tests/simulators/FlightGearRig.h"

namespace orvelle {
namespace {

class SimulatorPageTest : public SimulatorPageRig {
protected:
    Sign SignAt(const char* name) {
        for (QWidget* widget : window->findChildren<QWidget*>(name))
            if (auto* light = dynamic_cast<deck::SignalLight*>(widget)) return light->Shown();
        throw std::runtime_error(std::string("no light ") + name);
    }
    std::string OptionsFile() const {
        std::ostringstream text;
        text << std::ifstream(home / ".fgfsrc").rdbuf();
        return text.str();
    }
    void SelectRow(const char* table, int row) {
        At<QTableWidget>(table).selectRow(row);
        QCoreApplication::processEvents();
    }
    bool IsEnabled(const char* name) { return At<QWidget>(name).isEnabled(); }
};

TEST_F(SimulatorPageTest, WithoutASimulatorItSaysSo) {
    EXPECT_EQ(SignAt("Found"), Sign::Off);
    EXPECT_EQ(TextOf("FoundText"), "None; session and radios are set by hand");
    EXPECT_EQ(TextOf("TunedCOM1"), "-");
    EXPECT_EQ(TextOf("PassedOver"), "None");
    EXPECT_FALSE(At<QLabel>("FoundRemark").isVisible());
}

TEST_F(SimulatorPageTest, ASimulatorIsShownWithAircraftPlaceAndRadios) {
    PlayFlight();
    EXPECT_EQ(SignAt("Found"), Sign::Good);
    EXPECT_EQ(TextOf("FoundText"), "FlightGear");
    EXPECT_EQ(TextOf("Aircraft"), "c172p, callsign D-EABC, online");
    EXPECT_EQ(TextOf("AircraftPlace"), "63.985° N, 22.606° W, 2171 ft, paused");
    EXPECT_TRUE(TextOf("PassedOver").startsWith("X-Plane 12, passed over: ")) << TextOf("PassedOver").toStdString();
    EXPECT_EQ(TextOf("FoundRemark"), "The network refuses to tell where X-Plane is.");
    EXPECT_EQ(TextOf("TunedCOM1"), "118.300");
    EXPECT_EQ(TextOf("SoundsCOM1"), "Heard, transmits");
    EXPECT_EQ(TextOf("SoundsCOM2"), "Not heard");
    EXPECT_EQ(TextOf("StationCOM1"), "BIKF_TWR, 12.3 nm of 50");
    EXPECT_EQ(TextOf("StationCOM2"), "Settling");
    EXPECT_EQ(TextOf("RecordCOM1"), "TeamSpeak at voice.example.org:8767, Keflavik Tower, as pilot7");
    EXPECT_EQ(TextOf("RecordCOM2"), "None");
}

TEST_F(SimulatorPageTest, TheTailNumberIsShownWhereTheSimulatorTellsOne) {
    PlayFlight();
    simulators::SimulatorState state = *cessna.State();
    state.Tail = "N172SP";
    state.Callsign.clear();
    cessna.Tell(state);
    ShowAll();
    EXPECT_EQ(TextOf("Aircraft"), "c172p, tail number N172SP, online");
}

TEST_F(SimulatorPageTest, ARadioWithoutPowerHasNoStation) {
    PlayFlight();
    simulators::SimulatorState state = *cessna.State();
    state.Radios[1].IsOperable = false;
    cessna.Tell(state);
    content.Radios[1] = {122800, true, {directory::Reason::NotTuned}};
    ShowAll();
    EXPECT_EQ(TextOf("SoundsCOM2"), "No power");
    EXPECT_EQ(TextOf("StationCOM2"), "None without power");
}

TEST_F(SimulatorPageTest, ASilentSimulatorIsCountedAlsoWhileThePageIsHidden) {
    PlayFlight();
    window->setCurrentIndex(0);
    cessna.FallSilent();
    page->ShowState();
    ASSERT_TRUE(WaitFor([&] {
        ShowAll();
        return TextOf("FoundText").startsWith("FlightGear, silent for ");
    }));
    EXPECT_EQ(SignAt("Found"), Sign::Waiting);
    const QString first = TextOf("FoundText");
    EXPECT_TRUE(WaitFor([&] { return TextOf("FoundText") != first; })) << "the seconds go on by themselves";
    cessna.Tell(simulators::SimulatorState(*cessna.State()));
    page->ShowState();
    EXPECT_TRUE(WaitFor([&] { return TextOf("FoundText") == "FlightGear"; }));
}

TEST_F(SimulatorPageTest, AnOwnCallsignIsApplied) {
    Type("OwnCallsign", "ORV77");
    ClickKey(&At<QLineEdit>("OwnCallsign"), Qt::Key_Return);
    EXPECT_EQ(content.OwnCallsign, "ORV77");
}

TEST_F(SimulatorPageTest, FlightGearsLinesAreCopiedAddedAndTakenOut) {
    EXPECT_TRUE(TextOf("FlightGearComesText").startsWith("None come; FlightGear needs"));
    const auto both = options.Lines();
    Click("CopyFlightGear");
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), both[0] + "\n" + both[1] + "\n");
    EXPECT_FALSE(IsEnabled("TakeOutFlightGear"));
    Click("AddFlightGear");
    EXPECT_EQ(OptionsFile(), both[0] + "\n" + both[1] + "\n");
    EXPECT_TRUE(TextOf("FlightGearAnswer").startsWith("Both lines are in "))
        << TextOf("FlightGearAnswer").toStdString();
    EXPECT_FALSE(IsEnabled("AddFlightGear"));
    EXPECT_EQ(TextOf("FlightGearComesText"), "None come; they will when FlightGear is started");
    Click("TakeOutFlightGear");
    EXPECT_EQ(OptionsFile(), "");
    EXPECT_FALSE(std::filesystem::exists(options.File()));
    EXPECT_TRUE(IsEnabled("AddFlightGear"));
}

TEST_F(SimulatorPageTest, WhetherFlightGearsLinesComeIsSeen) {
    simulators::LoopbackSocket sender;
    flightGear.Changed = [&] { page->ShowState(); };
    sender.Send(flightGear.Port(), "COM1=118.300,COM2=121.500,OP1=1,OP2=1,CS=D-EABC\n");
    EXPECT_TRUE(WaitFor([&] { return TextOf("FlightGearComesText") == "They come"; }));
    EXPECT_EQ(SignAt("FlightGearComes"), Sign::Good);
}

TEST_F(SimulatorPageTest, WhatIsNoLineOfFlightGearsIsTold) {
    simulators::LoopbackSocket sender;
    flightGear.Changed = [&] { page->ShowState(); };
    sender.Send(flightGear.Port(), "nothing of the kind\n");
    EXPECT_TRUE(WaitFor([&] { return SignAt("FlightGearComes") == Sign::Bad; }));
    EXPECT_EQ(TextOf("FlightGearComesText"), "What comes are no lines of the kind that the two below make");
    EXPECT_TRUE(WaitFor([&] { return SignAt("FlightGearComes") == Sign::Off; })) << "they come no more";
}

TEST_F(SimulatorPageTest, DirectoriesAreListedWithWhatIsWrong) {
    PlayFlight();
    EXPECT_EQ(Row("Directories", 0), "Flying Club|club.json|1234|2 min|None");
    EXPECT_EQ(Row("Directories", 1),
              "Example Community|https://www.example.org/channels.json|20|2 h, a copy|www.example.org can't be found.");
    EXPECT_EQ(Row("Directories", 2), "Another one|https://club.example.net/a.json|3|now|4 mistakes");
    SelectRow("Directories", 2);
    EXPECT_EQ(At<QPlainTextEdit>("DirectoryFaults").toPlainText(),
              "Line 12, stations[3].transceivers[0].latDeg: 91 is no latitude: -90 to 90 degrees.\n"
              "And 3 mistakes more.");
    SelectRow("Directories", 1);
    EXPECT_EQ(At<QPlainTextEdit>("DirectoryFaults").toPlainText(), "www.example.org can't be found.");
    SelectRow("Directories", 0);
    EXPECT_EQ(At<QPlainTextEdit>("DirectoryFaults").toPlainText(), "");
}

TEST_F(SimulatorPageTest, AddressesAreEnteredMovedAndRemoved) {
    Type("DirectoryAddress", "one.example.org");
    ClickKey(&At<QLineEdit>("DirectoryAddress"), Qt::Key_Return);
    Type("DirectoryAddress", "two.example.org");
    Click("AddDirectory");
    EXPECT_EQ(content.Addresses, (std::vector<std::string>{"one.example.org", "two.example.org"}));
    EXPECT_EQ(At<QLineEdit>("DirectoryAddress").text(), "");
    EXPECT_EQ(Row("Directories", 1), "-|two.example.org|0|-|Not there yet");
    SelectRow("Directories", 1);
    EXPECT_FALSE(IsEnabled("DirectoryDown"));
    Click("DirectoryUp");
    EXPECT_EQ(content.Addresses, (std::vector<std::string>{"two.example.org", "one.example.org"}));
    EXPECT_FALSE(IsEnabled("DirectoryUp")) << "the selection goes along";
    Click("DirectoryDown");
    EXPECT_EQ(content.Addresses.at(1), "two.example.org");
    Click("RemoveDirectory");
    EXPECT_EQ(content.Addresses, std::vector<std::string>{"one.example.org"});
    EXPECT_FALSE(IsEnabled("RemoveDirectory"));
    Click("FetchDirectories");
    EXPECT_EQ(fetches, 1);
}

TEST_F(SimulatorPageTest, ARefusedAddressStaysInItsFieldAndIsTold) {
    refusal = "\"http://a.example\" is refused: an address begins with https://.";
    Type("DirectoryAddress", "http://a.example");
    ClickKey(&At<QLineEdit>("DirectoryAddress"), Qt::Key_Return);
    EXPECT_EQ(At<QLineEdit>("DirectoryAddress").text(), "http://a.example");
    EXPECT_EQ(TextOf("DirectoryAnswer").toStdString(), refusal);
}

TEST_F(SimulatorPageTest, FilesOfTheFolderAreNotMovedHere) {
    PlayFlight();
    SelectRow("Directories", 0);
    for (const char* button : {"RemoveDirectory", "DirectoryUp", "DirectoryDown"}) EXPECT_FALSE(IsEnabled(button));
}

// Takes what the desktop would be asked to open.
class Opener : public QObject {
    Q_OBJECT

public:
    Opener() { QDesktopServices::setUrlHandler("file", this, "Open"); }
    ~Opener() override { QDesktopServices::unsetUrlHandler("file"); }

    Q_INVOKABLE void Open(const QUrl& url) { Opened = url.toLocalFile().toStdString(); }

    std::string Opened;
};

TEST_F(SimulatorPageTest, TheFolderIsMadeAndOpened) {
    Opener opener;
    Click("OpenDirectories");
    EXPECT_EQ(opener.Opened, (home / "directory.d").string());
    EXPECT_TRUE(std::filesystem::is_directory(home / "directory.d"));
    EXPECT_EQ(TextOf("DirectoryFolder").toStdString(), (home / "directory.d").string());
}

TEST_F(SimulatorPageTest, LoginsAreKeptShownWithDotsAndTakenOut) {
    EXPECT_FALSE(IsEnabled("KeepLogin"));
    Type("LoginServer", "voice.example.org");
    Type("LoginName", "pilot7");
    Type("LoginPassword", "secret");
    EXPECT_EQ(At<QLineEdit>("LoginPassword").displayText().count(QChar('s')), 0);
    Click("KeepLogin");
    EXPECT_EQ(loginChanges, 1);
    ASSERT_NE(logins.Find("voice.example.org"), nullptr);
    EXPECT_EQ(logins.Find("voice.example.org")->Password, "secret");
    EXPECT_EQ(Row("OwnLogins", 0), "voice.example.org|pilot7|••••••");
    EXPECT_EQ(At<QLineEdit>("LoginPassword").text(), "");
    SelectRow("OwnLogins", 0);
    EXPECT_EQ(At<QLineEdit>("LoginName").text(), "pilot7");
    Click("ForgetLogin");
    EXPECT_EQ(logins.Find("voice.example.org"), nullptr);
    EXPECT_EQ(Row("OwnLogins", 0), "");
    EXPECT_EQ(loginChanges, 2);
}

TEST_F(SimulatorPageTest, EveryFieldHasANameAndNoLetterLeadsToTwo) {
    PlayFlight();
    std::map<QChar, std::string> letters{{'U', "the tab Set-up"}, {'D', "the tab Session"}, {'I', "the tab Simulator"}};
    for (const QWidget* widget : window->findChildren<QWidget*>()) {
        if (!widget->isVisible()) continue;
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        const auto* label = qobject_cast<const QLabel*>(widget);
        const QString text = button ? button->text() : label && label->buddy() ? label->text() : QString();
        if (const qsizetype mark = text.indexOf('&'); mark >= 0) {
            const auto [other, isNew] = letters.emplace(text.at(mark + 1).toUpper(), text.toStdString());
            EXPECT_TRUE(isNew) << text.toStdString() << " and " << other->second;
        }
        const bool isField = button || qobject_cast<const QLineEdit*>(widget) ||
                             qobject_cast<const QPlainTextEdit*>(widget) || qobject_cast<const QTableWidget*>(widget) ||
                             dynamic_cast<const Reading*>(widget);
        if (!isField || widget->focusPolicy() == Qt::NoFocus) continue;
        QAccessibleInterface* reached = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
        ASSERT_NE(reached, nullptr);
        EXPECT_NE(reached->text(QAccessible::Name), "") << widget->objectName().toStdString();
    }
    EXPECT_GT(letters.size(), 12u);
}

}  // namespace
}  // namespace orvelle

#include "SimulatorPageTest.moc"
