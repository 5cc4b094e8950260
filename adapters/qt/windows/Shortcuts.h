// Keys that do what a click elsewhere does: Delete in a table, and in the whole window Ctrl+Page Up and Down, or
// Ctrl+Tab, for the page before and after.
#pragma once

#include <QKeySequence>
#include <functional>

class QTreeWidget;
class QWidget;

namespace orvelle::qt {

// Delete deletes the selected row of the page's table, as the page's button of that name does.
void LetDeleteDelete(QWidget& page);
// Through the nodes that show in the tree, round and round.
void LetKeysTurnPages(QWidget& window, QTreeWidget& tree);
void LetKeyDo(QWidget& window, const QKeySequence& keys, std::function<void()> act);

}  // namespace orvelle::qt
