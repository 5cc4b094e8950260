#include "deck/DeckWindow.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStyle>
#include <QTabWidget>
#include <algorithm>

#include "adapters/looks/ScreenRoom.h"
#include "adapters/looks/ScrolledArea.h"
#include "adapters/looks/Text.h"
#include "deck/AboutBox.h"
#include "deck/fields/Fields.h"
#include "deck/fields/ScrolledPage.h"
#include "deck/fields/Section.h"
#include "deck/join/JoinDialog.h"
#include "deck/pages/FaultsPage.h"
#include "deck/pages/NetworkPage.h"
#include "deck/pages/NextStep.h"
#include "deck/pages/SimulatorPage.h"
#include "deck/pages/VoicePage.h"
#include "platform/sides/SimulatorSide.h"

namespace orvelle {

using namespace deck;

namespace {

// By the font: with letters of 9 points, beside the panel on a screen of 1920 by 1080.
constexpr int WantedCharacters = 134;
constexpr int WantedLines = 54;

// A head or column that is null is left out.
QWidget* FlightPage(QWidget* head, std::initializer_list<QWidget*> columns) {
    auto* page = new QWidget;
    page->setObjectName("FlightPage");
    auto* rows = new QVBoxLayout(page);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(SectionGap);
    if (head) rows->addWidget(head);
    auto* row = new QHBoxLayout;
    row->setSpacing(3 * Unit);
    for (QWidget* column : columns)
        if (column) row->addWidget(column, 1);
    rows->addLayout(row, 1);
    return page;
}

}  // namespace

DeckWindow::DeckWindow(const FarSides& farSides) : sides(farSides) {
    setObjectName("DeckWindow");
    setWindowTitle("OrvelleCP Flight Deck");
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);

    auto* tabs = new QTabWidget;
    tabs->setObjectName("DeckPages");
    tabs->setDocumentMode(true);
    if (sides.Simulator) simulator = new SimulatorPage(sides);
    NetworkPage* network = sides.Network ? new NetworkPage(sides) : nullptr;
    NextStep* step = simulator && network ? new NextStep(sides) : nullptr;
    if (simulator || network) AddScrolledPage(*tabs, FlightPage(step, {simulator, network}), "Fl&ight");
    if (sides.VoiceEngine) AddScrolledPage(*tabs, new VoicePage(sides), "Voice &engine");
    AddScrolledPage(*tabs, new FaultsPage(sides), "Fa&ults");
    tabs->setCornerWidget(Corner());
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(tabs);
    resize(UsualSize());
}

QWidget* DeckWindow::Corner() {
    auto* corner = new QWidget;
    auto* row = new QHBoxLayout(corner);
    row->setContentsMargins(0, 0, Unit / 2, 0);
    row->setSpacing(Unit / 2);
    row->addWidget(NewButton("About", "A&bout", "The version of this program, and where to read on",
                             [this] { ShowAbout(*this); }));
    if (sides.Join)
        row->addWidget(NewButton("JoinASetUp", "&Join a set-up ...",
                                 "Let this computer work together with others, instead of practising alone",
                                 [this] { OpenJoinDialog(); }));
    return corner;
}

QSize DeckWindow::UsualSize() const {
    return {std::max(LeastWidth(), WantedCharacters * fontMetrics().averageCharWidth()),
            WantedLines * fontMetrics().height()};
}

int DeckWindow::LeastWidth() const {
    int width = 0;
    for (const ScrolledArea* area : findChildren<ScrolledArea*>())
        width = std::max(width, area->widget()->minimumSizeHint().width());
    return width + style()->pixelMetric(QStyle::PM_ScrollBarExtent);
}

void DeckWindow::OpenIn(const QRect& frame) {
    resize(frame.size() - FrameAllowance);
    move(frame.topLeft());
    showNormal();
}

void DeckWindow::TellOfProgram(const std::string& sentence) {
    if (simulator) simulator->TellOfProgram(ToQt(sentence));
}

void DeckWindow::OpenJoinDialog() {
    if (!joinDialog) joinDialog = new JoinDialog(*sides.Join, this);
    joinDialog->setAttribute(Qt::WA_DeleteOnClose);
    joinDialog->show();
    joinDialog->raise();
    joinDialog->activateWindow();
}

// Closed by the program, as at the end of the session, it just goes.
void DeckWindow::closeEvent(QCloseEvent* event) {
    if (!event->spontaneous()) return;
    event->ignore();
    hide();
    Closed();
}

void DeckWindow::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (sides.Simulator) sides.Simulator->ReleaseAll();
}

}  // namespace orvelle
