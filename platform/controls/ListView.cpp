#include "platform/controls/ListView.h"

#include "platform/RuntimeError.h"

namespace orvelle {

Long ListView::AddRow(std::string text) {
    rows.push_back({std::move(text), {}});
    IndexRow(Count());
    lastChange = {Change::Added, Count()};
    Changed(ControlProperty::Rows);
    return Count();
}

void ListView::SetSubItem(Long row, Long number, std::string text) {
    std::string& held = rows[Index(row)].SubItem[SubItemIndex(number)];
    if (held == text) return;
    held = std::move(text);
    if (number == ListRow::SubItems) {
        if (held.empty())
            marked.erase(row);
        else
            marked.insert(row);
    }
    lastChange = {Change::Altered, row};
    Changed(ControlProperty::Rows);
}

void ListView::RemoveRow(Long row) {
    rows.erase(rows.begin() + static_cast<std::ptrdiff_t>(Index(row)));
    rowsByText.clear();
    marked.clear();
    for (Long number = 1; number <= Count(); ++number) IndexRow(number);
    if (selectedRow == row)
        selectedRow = 0;
    else if (selectedRow > row)
        --selectedRow;
    lastChange = {Change::Removed, row};
    Changed(ControlProperty::Rows);
}

const std::vector<Long>& ListView::RowsWithText(const std::string& text) const {
    static const std::vector<Long> None;
    const auto found = rowsByText.find(text);
    return found == rowsByText.end() ? None : found->second;
}

void ListView::SelectRow(Long row) {
    Index(row);
    selectedRow = row;
    Changed(ControlProperty::Selected);
}

void ListView::UserClickRow(Long row) {
    if (!AcceptsInput() || row < 1 || row > Count()) return;
    SelectRow(row);
    ItemClick(row);
}

std::size_t ListView::Index(Long row) const {
    if (row < 1 || row > Count()) throw RuntimeError(RuntimeError::SubscriptOutOfRange);
    return static_cast<std::size_t>(row) - 1;
}

std::size_t ListView::SubItemIndex(Long number) {
    if (number < 1 || number > ListRow::SubItems) throw RuntimeError(RuntimeError::SubscriptOutOfRange);
    return static_cast<std::size_t>(number) - 1;
}

void ListView::IndexRow(Long row) {
    const ListRow& indexed = rows[Index(row)];
    rowsByText[indexed.Text].push_back(row);
    if (!indexed.SubItem.back().empty()) marked.insert(row);
}

}  // namespace orvelle
