// Mirror of the tree of categories. Going to a node by keys is a click on it.
#pragma once

#include <QTreeWidget>

#include "adapters/qt/mirrors/ItemClicks.h"
#include "adapters/qt/mirrors/Mirror.h"
#include "platform/controls/TreeView.h"

namespace orvelle::qt {

class TreeMirror : public Mirror {
public:
    TreeMirror(TreeView& treeView, QTreeWidget& treeWidget);

protected:
    void ShowOwn(ControlProperty property) override;
    void ShowAllOwn() override { ShowOwn(ControlProperty::Nodes); }

private:
    // Brings `item`'s children to `nodes`, keeping those that stand already.
    static void ShowNodes(const std::vector<std::unique_ptr<TreeNode>>& nodes, QTreeWidgetItem& item);

    TreeView& control;
    QTreeWidget& widget;
    ItemClicks clicks;
};

}  // namespace orvelle::qt
