// Adds a table or a text to a section over its whole width, content with its least height, and growing where there is
// room: a page that has little of it is scrolled only when all such parts are at their least.
#pragma once

#include <QGridLayout>

#include "deck/fields/Section.h"

namespace orvelle {

// `lines` of text, and what frames them.
inline void AddAtLeast(deck::Section& section, QWidget* part, int lines, int stretch) {
    constexpr int LineParts = 3;  // a line with what parts it from the next, in halves of its height
    section.AddWide(part, stretch);
    part->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    QGridLayout& grid = section.Grid();
    int row = 0, column = 0, rows = 0, columns = 0;
    grid.getItemPosition(grid.indexOf(part), &row, &column, &rows, &columns);
    grid.setRowMinimumHeight(row, lines * part->fontMetrics().height() * LineParts / 2);
}

}  // namespace orvelle
