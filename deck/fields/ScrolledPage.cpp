#include "deck/fields/ScrolledPage.h"

#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>

#include "adapters/looks/Theme.h"

namespace orvelle::deck {

namespace {

// What can do with less height, as logs and tables, does so before the page is scrolled.
class Margins : public QWidget {
public:
    int heightForWidth(int width) const override { return layout()->totalMinimumHeightForWidth(width); }
};

}  // namespace

void AddScrolledPage(QTabWidget& tabs, QWidget* page, const QString& title) {
    auto* frame = new Margins;
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

}  // namespace orvelle::deck
