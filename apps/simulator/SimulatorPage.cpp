#include "apps/simulator/SimulatorPage.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <chrono>
#include <utility>

#include "adapters/looks/Text.h"
#include "apps/simulator/FlightGearBox.h"
#include "apps/simulator/FoundBox.h"
#include "apps/simulator/LoginsBox.h"
#include "apps/simulator/TunedBox.h"

namespace orvelle {

namespace {

using namespace std::chrono_literals;

constexpr auto Pace = 200ms;       // between two showings, as a simulator in flight tells of itself 20 times a second
constexpr auto WhileSilent = 1s;   // told in seconds
constexpr auto WhileAgeing = 20s;  // told in minutes

// The last one takes the height that is left.
QVBoxLayout* ColumnOf(QWidget* first, QWidget* last) {
    auto* column = new QVBoxLayout;
    column->setSpacing(deck::SectionGap);
    column->addWidget(first);
    column->addWidget(last, 1);
    return column;
}

}  // namespace

SimulatorPage::SimulatorPage(const SimulatorPageParts& pageParts)
    : parts(pageParts),
      found(new FoundBox(parts.SetOwnCallsign)),
      tuned(new TunedBox),
      flightGear(new FlightGearBox(parts.FlightGear, parts.Options)),
      directories(new DirectoriesBox(parts.Directories)),
      logins(new LoginsBox(parts.Logins)) {
    setObjectName("SimulatorPage");
    auto* columns = new QHBoxLayout;
    columns->setSpacing(3 * Unit);
    columns->addLayout(ColumnOf(found, tuned), 1);
    columns->addLayout(ColumnOf(flightGear, logins), 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(deck::SectionGap);
    column->addLayout(columns);
    column->addWidget(directories, 1);
    logins->Changed = [this] { parts.LoginsChanged(); };
    directories->Changed = [this] { ShowNow(); };
    soon.setSingleShot(true);
    connect(&soon, &QTimer::timeout, this, [this] { ShowNow(); });
    later.setSingleShot(true);
    connect(&later, &QTimer::timeout, this, [this] { ShowNow(); });
}

void SimulatorPage::ShowState() {
    found->Follow(parts.Chosen());
    if (isVisible() && !soon.isActive()) soon.start(Pace);
}

void SimulatorPage::ShowNow() {
    later.stop();
    if (!isVisible()) return;
    const simulators::SimulatorSource* const chosen = parts.Chosen();
    const SimulatorPageContent content = parts.Content();
    found->Show(chosen, content.PassedOver, content.OwnCallsign, ToQt(content.Trouble));
    tuned->Show(chosen && chosen->State() ? &*chosen->State() : nullptr, content.Radios, content.Records);
    flightGear->ShowState();
    directories->Show(content.Directories, content.Addresses);
    if (chosen && chosen->Stands() == simulators::Presence::Busy)
        later.start(WhileSilent);
    else if (!content.Directories.empty())
        later.start(WhileAgeing);
}

void SimulatorPage::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    ShowNow();
}

void SimulatorPage::hideEvent(QHideEvent* event) {
    later.stop();
    QWidget::hideEvent(event);
}

}  // namespace orvelle
