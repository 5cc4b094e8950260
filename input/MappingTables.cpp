// The two tables, Joy-to-Key and Key-to-Key: edited and kept. The rows of the list are the working copy; each
// change rewrites the whole section, which numbers the rows without a gap.
#include "panel/FrmOrvelle.h"

namespace orvelle {

void FrmOrvelle::LoadMappingTable(const MappingTable& table) {
    Settings.OpenSettingList(table.Section);
    const Long count = Settings.SettingListCount();
    for (Long number = 1; number <= count; ++number) {
        std::string name;
        if (!Settings.SettingListItem(number - 1, name)) continue;
        // Rows are addressed by the counter; the name that came back is not used.
        const std::string section = table.RowSection(number);
        const Long row = table.List.AddRow(Settings.GetSettingString(section, table.TextKey, ""));
        table.List.SetSubItem(row, ToggleColumn, Settings.GetSettingString(section, "Toggle", "Push"));
        table.List.SetSubItem(row, KeyScanColumn, Settings.GetSettingString(section, table.KeysKey, ""));
        table.List.SetSubItem(row, KeyNameColumn, KeyDisplayName(table.List.SubItem(row, KeyScanColumn)));
    }
    Settings.CloseSettingList();
}

void FrmOrvelle::TableApply_Click(const MappingTable& table) {
    if (table.Text.empty() || table.Keys.empty()) return;
    const std::vector<Long>& same = table.List.RowsWithText(table.Text);
    const Long row = same.empty() ? table.List.AddRow(table.Text) : same.front();
    table.List.SetSubItem(row, KeyNameColumn, KeyDisplayName(table.Keys));
    table.List.SetSubItem(row, ToggleColumn, table.Toggle.Value == 1 ? "Toggle" : "Push");
    table.List.SetSubItem(row, KeyScanColumn, table.Keys);
    table.List.SelectRow(row);
    RewriteTable(table, table.TextKey);
}

void FrmOrvelle::TableDelete_Click(const MappingTable& table) {
    if (table.List.SelectedRow() == 0) return;
    table.List.RemoveRow(table.List.SelectedRow());
    RewriteTable(table, table.TextKeyOnDelete);
}

void FrmOrvelle::TableItem_Click(const MappingTable& table, Long row) {
    const ListView& list = table.List;
    table.TextDisplay.Text = list.Row(row).Text;
    table.Text = list.Row(row).Text;
    table.KeysDisplay.Text = list.SubItem(row, KeyNameColumn);
    table.Keys = list.SubItem(row, KeyScanColumn);
    table.Toggle.Value = list.SubItem(row, ToggleColumn) == "Toggle" ? 1 : 0;
}

void FrmOrvelle::RewriteTable(const MappingTable& table, const std::string& textKey) {
    Settings.DeleteSettingSection(table.Section);
    for (Long row = 1; row <= table.List.Count(); ++row) {
        const std::string section = table.RowSection(row);
        Settings.SaveSettingString(section, textKey, table.List.Row(row).Text);
        Settings.SaveSettingString(section, table.KeysKey, table.List.SubItem(row, KeyScanColumn));
        Settings.SaveSettingString(section, "Toggle", table.List.SubItem(row, ToggleColumn));
    }
}

}  // namespace orvelle
