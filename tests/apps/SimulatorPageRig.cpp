#include "tests/apps/SimulatorPageRig.h"

#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QTableWidget>

#include "deck/fields/ScrolledPage.h"

namespace orvelle {

namespace {

constexpr QSize UsualSize(1000, 640);  // of the simulator's window

}  // namespace

SimulatorPageRig::SimulatorPageRig()
    : flightGear(loop, simulators::ProcessQuestions(), simulators::AircraftOverrides(), 0),
      window(std::make_unique<QTabWidget>()) {
    const SimulatorPageParts parts{
        .FlightGear = flightGear,
        .Options = options,
        .Logins = logins,
        .Directories = {.Folder = home / "directory.d",
                        .Enter =
                            [this](const std::vector<std::string>& addresses) {
                                if (refusal.empty()) content.Addresses = addresses;
                                return refusal;
                            },
                        .FetchNow = [this] { ++fetches; }},
        .Chosen = [this] { return chosen; },
        .Content = [this] { return content; },
        .SetOwnCallsign = [this](const std::string& callsign) { content.OwnCallsign = callsign; },
        .LoginsChanged = [this] { ++loginChanges; }};
    window->setDocumentMode(true);
    deck::AddScrolledPage(*window, new QWidget, "Set-&up");
    deck::AddScrolledPage(*window, new QWidget, "Session an&d radios");
    page = new SimulatorPage(parts);
    deck::AddScrolledPage(*window, page, "S&imulator");
    window->setCurrentIndex(2);
    window->resize(UsualSize);
    window->show();
    EXPECT_TRUE(WaitForWindowExposed(window.get()));
}

SimulatorPageRig::~SimulatorPageRig() = default;

void SimulatorPageRig::PlayFlight() {
    cessna.Tell({.Radios = {{{118300, true, true}, {122800, true, false}}},
                 .Transmits = 1,
                 .Callsign = "D-EABC",
                 .IsOnline = true,
                 .IsPaused = true,
                 .Where = simulators::Place{63.985, -22.6056, 2171},
                 .Aircraft = "c172p"});
    chosen = &cessna;
    content.PassedOver = {&other};
    content.Trouble = "The network refuses to tell where X-Plane is.";
    content.OwnCallsign = "ORV123";
    directory::Choice tower{directory::Reason::Station, 0, "BIKF_TWR", 12.34, 50.0, directory::VoiceEntry{"club", {}}};
    directory::Choice unicom{directory::Reason::Everywhere, 0, "", {}, {}, directory::VoiceEntry{"club", {}}};
    content.Radios = {{{118300, true, tower}, {122800, false, unicom}}};
    content.Records[0] = {TeamSpeakHost, "voice.example.org:8767", "Keflavik Tower", "pilot7", "secret"};
    content.Addresses = {"https://www.example.org/channels.json", "https://club.example.net/a.json"};
    content.Directories = {
        {"club.json", "Flying Club", 1234, 130, false, "", {}, 0},
        {content.Addresses[0], "Example Community", 20, 7300, true, "www.example.org can't be found.", {}, 0},
        {content.Addresses[1],
         "Another one",
         3,
         10,
         false,
         "",
         {{12, "stations[3].transceivers[0].latDeg", "91 is no latitude: -90 to 90 degrees."}},
         4}};
    logins.Set("voice.example.org:8767", {"pilot7", "secret"});
    logins.Set("tower.example.net", {"", "secret"});
    ShowAll();
}

void SimulatorPageRig::ShowAll() {
    window->setCurrentIndex(0);
    window->setCurrentIndex(2);
    QCoreApplication::processEvents();
}

void SimulatorPageRig::Click(const char* name) {
    ClickMouse(&At<QWidget>(name), Qt::LeftButton);
    QCoreApplication::processEvents();
}

void SimulatorPageRig::Type(const char* name, const QString& text) {
    auto& edit = At<QLineEdit>(name);
    edit.setFocus();
    edit.selectAll();
    TypeText(&edit, text);
    QCoreApplication::processEvents();
}

QString SimulatorPageRig::TextOf(const char* name) { return At<QLabel>(name).text(); }

std::string SimulatorPageRig::Row(const char* name, int row) {
    const auto& table = At<QTableWidget>(name);
    std::string text;
    for (int column = 0; row < table.rowCount() && column < table.columnCount(); ++column)
        text += (column ? "|" : "") + table.item(row, column)->text().toStdString();
    return text;
}

}  // namespace orvelle
