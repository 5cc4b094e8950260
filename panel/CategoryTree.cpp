// The tree of categories on the left, and the swap of the page beside it.
#include "panel/FrmOrvelle.h"
#include "panel/Texts.h"
#include "platform/RuntimeError.h"

namespace orvelle {

void FrmOrvelle::BuildCategoryTree() {
    twCategory.Clear();
    CurrentPanel = 0;

    TreeNode* top = nullptr;
    TreeNode* last = nullptr;
    AddCategoryNode(0, top, last, "Config", 1);
    TreeNode* const config = top;
    AddCategoryNode(1, top, last, "Velmarc", 2);
    AddCategoryNode(8, top, last, "Kestrine", 2);
    TreeNode* kestrine = last;
    AddCategoryNode(11, kestrine, last, "Extra", 2);
    AddCategoryNode(9, top, last, "Options", 2);

    AddCategoryNode(0, top, last, "Voice", 1);
    AddCategoryNode(3, top, last, "Teamspeak", 2);
    AddCategoryNode(2, top, last, "RogerWilco", 2);
    AddCategoryNode(5, top, last, "VATSIM", 2);
    TreeNode* vatsim = last;
    AddCategoryNode(6, vatsim, last, "Volumes", 2);
    AddCategoryNode(12, vatsim, last, "Key mappings", 2);
    if (WMPCOM1 && WMPCOM2) AddCategoryNode(10, top, last, "ATIS", 2);

    AddCategoryNode(0, top, last, "Key Management", 1);
    AddCategoryNode(4, top, last, "Joy to Key", 2);
    AddCategoryNode(7, top, last, "Key to Key", 2);

    twCategory.Expand(*config);
}

// Adds one node and keeps the references to which the next call attaches: a top-level node becomes the parent, a child
// becomes the last one.
void FrmOrvelle::AddCategoryNode(Long panel, TreeNode*& parent, TreeNode*& last, const std::string& text,
                                 Integer level) {
    if (level == 1 || parent == nullptr)
        parent = &twCategory.AddNode(nullptr, text, "0");
    else
        last = &twCategory.AddNode(parent, text, std::to_string(panel));
}

void FrmOrvelle::twCategory_NodeClick(TreeNode& node) {
    const auto panel = static_cast<Long>(LeadingNumber(node.Tag));
    if (panel == CurrentPanel) return;
    Panels(CurrentPanel).Visible = false;
    if (panel == 0) {
        CurrentPanel = 0;
        Panels(0).Visible = true;
        return;
    }
    try {
        Frame& page = Panels(panel);
        page.Top = Panels(0).Top;
        page.Left = Panels(0).Left;
        page.Height = Panels(0).Height;
        page.Width = Panels(0).Width;
        page.Visible = true;
        CurrentPanel = panel;
    } catch (const RuntimeError&) {
        // A page that cannot be reached is left alone.
    }
}

}  // namespace orvelle
