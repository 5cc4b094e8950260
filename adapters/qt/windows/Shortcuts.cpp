#include "adapters/qt/windows/Shortcuts.h"

#include <QPushButton>
#include <QShortcut>
#include <QTreeWidget>
#include <utility>

namespace orvelle::qt {

namespace {

enum class Turn { Back, On };

void TurnPage(QTreeWidget& tree, Turn turn) {
    QTreeWidgetItem* shown = tree.currentItem();
    if (shown == nullptr) return;
    QTreeWidgetItem* next = turn == Turn::On ? tree.itemBelow(shown) : tree.itemAbove(shown);
    if (next == nullptr && turn == Turn::On) next = tree.topLevelItem(0);
    if (next == nullptr)
        for (QTreeWidgetItem* last = shown; last != nullptr; last = tree.itemBelow(last)) next = last;
    tree.setCurrentItem(next);
}

}  // namespace

void LetKeyDo(QWidget& window, const QKeySequence& keys, std::function<void()> act) {
    QObject::connect(new QShortcut(keys, &window), &QShortcut::activated, &window, std::move(act));
}

void LetKeysTurnPages(QWidget& window, QTreeWidget& tree) {
    for (const auto& [keys, turn] :
         {std::pair(Qt::CTRL | Qt::Key_PageDown, Turn::On), std::pair(Qt::CTRL | Qt::Key_Tab, Turn::On),
          std::pair(Qt::CTRL | Qt::Key_PageUp, Turn::Back),
          std::pair(Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, Turn::Back)})
        LetKeyDo(window, QKeySequence(keys), [&tree, turn = turn] { TurnPage(tree, turn); });
}

void LetDeleteDelete(QWidget& page) {
    auto* table = page.findChild<QTreeView*>();
    if (table == nullptr) return;
    for (QPushButton* button : page.findChildren<QPushButton*>())
        if (button->objectName().endsWith(QLatin1String("Delete")))
            QObject::connect(new QShortcut(QKeySequence(Qt::Key_Delete), table, nullptr, nullptr, Qt::WidgetShortcut),
                             &QShortcut::activated, button, &QPushButton::click);
}

}  // namespace orvelle::qt
