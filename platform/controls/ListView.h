// A list of rows, numbered from 1, each of a text and four sub-items, with headings for the columns that show.
// A row or a sub-item that is not there is run-time error 9. Rows are found by their text, and those whose last
// sub-item is not empty ("marked") without a walk, so that an event costs what the rows that it concerns cost.
#pragma once

#include <array>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/Event.h"
#include "platform/controls/Control.h"

namespace orvelle {

struct ListRow {
    static constexpr Long SubItems = 4;

    std::string Text;
    std::array<std::string, SubItems> SubItem;  // sub-item N stands at N - 1
};

class ListView : public Control {
public:
    struct Change {
        enum Kind { Added, Altered, Removed } What;
        Long Row;
    };

    ListView(Form& form, std::string name, Control* container, std::vector<std::string> headings)
        : Control(form, std::move(name), container), Headings(std::move(headings)) {}

    Long Count() const { return static_cast<Long>(rows.size()); }
    const ListRow& Row(Long row) const { return rows[Index(row)]; }
    const std::string& SubItem(Long row, Long number) const { return Row(row).SubItem[SubItemIndex(number)]; }

    // Adds a row at the end; its number.
    Long AddRow(std::string text);
    void SetSubItem(Long row, Long number, std::string text);
    // The rows behind move up by one. A selected row that goes leaves nothing selected.
    void RemoveRow(Long row);

    // In the order of the list.
    const std::vector<Long>& RowsWithText(const std::string& text) const;
    const std::set<Long>& MarkedRows() const { return marked; }

    Long SelectedRow() const { return selectedRow; }  // 0: none
    // By the program: scrolls the row into view and raises no item click.
    void SelectRow(Long row);
    void UserClickRow(Long row);

    // What happened last; valid while ControlProperty::Rows is told.
    const Change& LastChange() const { return lastChange; }

    const std::vector<std::string> Headings;
    Event<Long> ItemClick;  // row

private:
    std::size_t Index(Long row) const;
    static std::size_t SubItemIndex(Long number);
    void IndexRow(Long row);

    std::vector<ListRow> rows;
    std::unordered_map<std::string, std::vector<Long>> rowsByText;
    std::set<Long> marked;
    Long selectedRow = 0;
    Change lastChange{Change::Added, 0};
};

}  // namespace orvelle
