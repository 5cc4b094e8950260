#include "apps/PanelPages.h"

#include <QCoreApplication>
#include <QTreeWidget>
#include <string>

#include "adapters/looks/Text.h"
#include "apps/Waiting.h"

namespace orvelle {

bool TurnToPage(PanelProgram& house, TreeNode& node) {
    auto& tree = *house.Desktop.Window().findChild<QTreeWidget*>("twCategory");
    tree.expandAll();
    if (auto* item = tree.findItems(ToQt(node.Text), Qt::MatchExactly | Qt::MatchRecursive).value(0))
        tree.setCurrentItem(item);
    house.Panel.twCategory.UserClick(node);
    const bool isShown = WaitUntil([&] { return house.Panel.Panels(std::stoi(node.Tag)).Visible(); });
    Settle();
    return isShown;
}

void Settle() {
    for (int turn = 0; turn < 10; ++turn) QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
}

}  // namespace orvelle
