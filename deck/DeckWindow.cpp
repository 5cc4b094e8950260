#include "deck/DeckWindow.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QScreen>
#include <QScrollArea>
#include <QTabWidget>
#include <algorithm>

#include "adapters/embedded/SetUp.h"
#include "adapters/looks/Text.h"
#include "deck/fields/Section.h"
#include "deck/pages/FaultsPage.h"
#include "deck/pages/NetworkPage.h"
#include "deck/pages/SimulatorPage.h"
#include "deck/pages/VoicePage.h"

namespace orvelle {

using namespace deck;

namespace {

// Beside the panel on a screen of 1920 by 1080.
constexpr QSize WantedSize(940, 760);
// What a window manager may put around the window; how much it really is is known only after the window was shown.
constexpr QSize FrameAllowance(16, 44);

// On a screen too small for the page, or with letters too large, the page is scrolled, never clipped.
void AddPage(QTabWidget& tabs, QWidget* page, const QString& title) {
    auto* frame = new QWidget;
    auto* margins = new QVBoxLayout(frame);
    margins->setContentsMargins(2 * Unit, 2 * Unit, 2 * Unit, 2 * Unit);
    margins->addWidget(page);
    auto* area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(frame);
    tabs.addTab(area, title);
}

QWidget* SideBySide(QWidget* left, QWidget* right) {
    auto* page = new QWidget;
    page->setObjectName("FlightPage");
    auto* row = new QHBoxLayout(page);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(3 * Unit);
    row->addWidget(left, 1);
    row->addWidget(right, 1);
    return page;
}

}  // namespace

DeckWindow::DeckWindow(EmbeddedSetUp& embedded)
    : setUp(embedded), simulator(new SimulatorPage(embedded.Velmarc, embedded.VVL)) {
    setObjectName("DeckWindow");
    setWindowTitle("OrvelleCP Flight Deck");
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);

    auto* tabs = new QTabWidget;
    tabs->setObjectName("DeckPages");
    tabs->setDocumentMode(true);
    AddPage(*tabs, SideBySide(simulator, new NetworkPage(setUp.Tessaly)), "Fl&ight");
    AddPage(*tabs, new VoicePage(setUp.VVL, setUp.Tessaly), "Voice &engine");
    AddPage(*tabs, new FaultsPage(setUp), "Fa&ults");
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(tabs);
    resize(WantedSize);
}

void DeckWindow::OpenAt(const QPoint& position) {
    const QRect room = screen()->availableGeometry();
    resize(size().boundedTo(room.size() - FrameAllowance));
    const QSize outer = size() + FrameAllowance;
    move(std::clamp(position.x(), room.left(), std::max(room.left(), room.right() + 1 - outer.width())),
         std::clamp(position.y(), room.top(), std::max(room.top(), room.bottom() + 1 - outer.height())));
    show();
}

void DeckWindow::TellOfProgram(const std::string& sentence) { simulator->TellOfProgram(ToQt(sentence)); }

// Hidden it could not be brought back. Minimising hides it too, as far as its events go. Closed by the program, as at
// the end of the session, it just goes.
void DeckWindow::closeEvent(QCloseEvent* event) {
    if (!event->spontaneous()) return;
    event->ignore();
    showMinimized();
}

void DeckWindow::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    setUp.Velmarc.ReleaseAll();
}

}  // namespace orvelle
