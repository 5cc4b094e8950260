#include "adapters/qt/mirrors/TreeMirror.h"

#include "adapters/looks/Text.h"

namespace orvelle::qt {

namespace {

constexpr int NodeRole = Qt::UserRole;

TreeNode* NodeOf(const QVariant& data) { return static_cast<TreeNode*>(data.value<void*>()); }

}  // namespace

TreeMirror::TreeMirror(TreeView& treeView, QTreeWidget& treeWidget)
    : Mirror(treeView, treeWidget),
      control(treeView),
      widget(treeWidget),
      clicks(treeWidget, [this](const QModelIndex& index) {
          {
              // An assistive program marks a node without going to it.
              const ItemClicks::Quiet quiet(clicks);
              widget.selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
          }
          // A node that has pages below it opens, as it has none, or another's, itself.
          widget.expand(index);
          control.UserClick(*NodeOf(index.data(NodeRole)));
      }) {
    widget.setAllColumnsShowFocus(true);
    // For assistive programs Qt counts the rows of a tree in two ways that differ where it branches.
    widget.setSelectionBehavior(QAbstractItemView::SelectItems);
    // A click beside the nodes takes the mark off; the page that shows keeps it.
    connect(&widget, &QTreeWidget::itemSelectionChanged, this, [this] {
        const ItemClicks::Quiet quiet(clicks);
        if (widget.selectedItems().isEmpty() && widget.currentItem() != nullptr)
            widget.currentItem()->setSelected(true);
    });
}

void TreeMirror::ShowOwn(ControlProperty property) {
    if (property != ControlProperty::Nodes) return;
    const ItemClicks::Quiet quiet(clicks);
    ShowNodes(control.Nodes(), *widget.invisibleRootItem());
    // The keys start from the first node, whose page is the one that is seen first.
    if (widget.currentItem() == nullptr) widget.setCurrentItem(widget.topLevelItem(0));
}

void TreeMirror::ShowNodes(const std::vector<std::unique_ptr<TreeNode>>& nodes, QTreeWidgetItem& item) {
    int place = 0;
    for (const auto& node : nodes) {
        QTreeWidgetItem* child = item.child(place);
        if (child == nullptr || NodeOf(child->data(0, NodeRole)) != node.get()) {
            child = new QTreeWidgetItem;
            child->setData(0, NodeRole, QVariant::fromValue(static_cast<void*>(node.get())));
            item.insertChild(place, child);
            // What is directly below a topmost node is seen from the beginning.
            if (item.treeWidget()->indexOfTopLevelItem(&item) >= 0) item.setExpanded(true);
        }
        child->setText(0, ToQt(node->Text));
        ShowNodes(node->Children, *child);
        if (node->Expanded) child->setExpanded(true);
        ++place;
    }
    while (item.childCount() > place) delete item.takeChild(place);
}

}  // namespace orvelle::qt
