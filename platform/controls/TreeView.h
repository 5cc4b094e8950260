// A tree of nodes. A node carries a text and a tag; a click on any node raises NodeClick.
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/Event.h"
#include "platform/controls/Control.h"

namespace orvelle {

struct TreeNode {
    std::string Text;
    std::string Tag;
    bool Expanded = false;
    TreeNode* Parent = nullptr;
    std::vector<std::unique_ptr<TreeNode>> Children;
};

class TreeView : public Control {
public:
    TreeView(Form& form, std::string name) : Control(form, std::move(name)) {}

    const std::vector<std::unique_ptr<TreeNode>>& Nodes() const { return nodes; }
    void Clear();
    // `parent` null adds a top-level node.
    TreeNode& AddNode(TreeNode* parent, std::string text, std::string tag);
    void Expand(TreeNode& node);
    // The first node of that text from the top, wherever it stands; null where there is none.
    TreeNode* Find(const std::string& text) const;

    void UserClick(TreeNode& node) {
        if (AcceptsInput()) NodeClick(node);
    }

    Event<TreeNode&> NodeClick;

private:
    std::vector<std::unique_ptr<TreeNode>> nodes;
};

}  // namespace orvelle
