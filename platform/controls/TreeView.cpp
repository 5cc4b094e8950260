#include "platform/controls/TreeView.h"

namespace orvelle {

namespace {

TreeNode* FindIn(const std::vector<std::unique_ptr<TreeNode>>& nodes, const std::string& text) {
    for (const auto& node : nodes) {
        if (node->Text == text) return node.get();
        if (TreeNode* below = FindIn(node->Children, text)) return below;
    }
    return nullptr;
}

}  // namespace

void TreeView::Clear() {
    nodes.clear();
    Changed(ControlProperty::Nodes);
}

TreeNode& TreeView::AddNode(TreeNode* parent, std::string text, std::string tag) {
    auto& siblings = parent == nullptr ? nodes : parent->Children;
    siblings.push_back(std::make_unique<TreeNode>());
    TreeNode& node = *siblings.back();
    node.Text = std::move(text);
    node.Tag = std::move(tag);
    node.Parent = parent;
    Changed(ControlProperty::Nodes);
    return node;
}

void TreeView::Expand(TreeNode& node) {
    node.Expanded = true;
    Changed(ControlProperty::Nodes);
}

TreeNode* TreeView::Find(const std::string& text) const { return FindIn(nodes, text); }

}  // namespace orvelle
