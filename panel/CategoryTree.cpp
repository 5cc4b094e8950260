// The tree of categories on the left, and the swap of the page beside it.
#include "panel/FrmOrvelle.h"
#include "panel/Texts.h"
#include "platform/RuntimeError.h"

namespace orvelle {

void FrmOrvelle::BuildCategoryTree() {
    twCategory.Clear();
    CurrentPanel = OverviewPanel;

    TreeNode* top = nullptr;
    TreeNode* last = nullptr;
    AddCategoryNode(OverviewPanel, top, last, "Config", 1);
    TreeNode* const config = top;
    AddCategoryNode(SimulatorLinkPanel, top, last, "Velmarc", 2);
    AddCategoryNode(FrameworkLinkPanel, top, last, "Kestrine", 2);
    TreeNode* kestrine = last;
    AddCategoryNode(ExtraPanel, kestrine, last, "Extra", 2);
    AddCategoryNode(OptionsPanel, top, last, "Options", 2);

    AddCategoryNode(OverviewPanel, top, last, "Voice", 1);
    AddCategoryNode(TeamSpeakPanel, top, last, "Teamspeak", 2);
    AddCategoryNode(RogerWilcoPanel, top, last, "RogerWilco", 2);
    AddCategoryNode(VatsimVoicePanel, top, last, "VATSIM", 2);
    TreeNode* vatsim = last;
    AddCategoryNode(VolumesPanel, vatsim, last, "Volumes", 2);
    AddCategoryNode(VatsimKeysPanel, vatsim, last, "Key mappings", 2);
    if (WMPCOM1 && WMPCOM2) AddCategoryNode(VoiceAtisPanel, top, last, "ATIS", 2);

    AddCategoryNode(OverviewPanel, top, last, "Key Management", 1);
    AddCategoryNode(JoyToKeyPanel, top, last, "Joy to Key", 2);
    AddCategoryNode(KeyToKeyPanel, top, last, "Key to Key", 2);

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
    if (panel == OverviewPanel) {
        CurrentPanel = OverviewPanel;
        Panels(OverviewPanel).Visible = true;
        return;
    }
    try {
        Frame& page = Panels(panel);
        page.Top = Panels(OverviewPanel).Top;
        page.Left = Panels(OverviewPanel).Left;
        page.Height = Panels(OverviewPanel).Height;
        page.Width = Panels(OverviewPanel).Width;
        page.Visible = true;
        CurrentPanel = panel;
    } catch (const RuntimeError&) {
        // A page that cannot be reached is left alone.
    }
}

}  // namespace orvelle
