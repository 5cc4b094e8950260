#include "deck/fields/ScrolledPage.h"

#include <QTabWidget>
#include <QVBoxLayout>

#include "adapters/looks/ScrolledArea.h"
#include "adapters/looks/Theme.h"

namespace orvelle::deck {

void AddScrolledPage(QTabWidget& tabs, QWidget* page, const QString& title) {
    auto* frame = new QWidget;
    auto* margins = new QVBoxLayout(frame);
    margins->setContentsMargins(2 * Unit, 2 * Unit, 2 * Unit, 2 * Unit);
    margins->addWidget(page);
    tabs.addTab(new ScrolledArea(frame), title);
}

}  // namespace orvelle::deck
