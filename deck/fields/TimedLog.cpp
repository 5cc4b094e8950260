#include "deck/fields/TimedLog.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QScrollBar>
#include <QTime>

namespace orvelle::deck {

namespace {

constexpr int LinesKept = 200;
constexpr int LinesWanted = 5;
constexpr int LinesLeast = 3;

}  // namespace

TimedLog::TimedLog(const QString& name, const QString& toolTip) {
    setObjectName(name);
    setToolTip(toolTip);
    setAccessibleName(toolTip);
    setWordWrap(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setSelectionMode(ExtendedSelection);
    AddMenu();
}

void TimedLog::AddMenu() {
    setContextMenuPolicy(Qt::ActionsContextMenu);
    const auto add = [this](const QString& words, QKeySequence::StandardKey keys, auto act) {
        auto* action = new QAction(words, this);
        action->setShortcut(keys);
        action->setShortcutContext(Qt::WidgetShortcut);
        connect(action, &QAction::triggered, this, act);
        addAction(action);
        return action;
    };
    QAction* copy = add("&Copy", QKeySequence::Copy, [this] { Copy(); });
    copy->setEnabled(false);
    connect(this, &QListWidget::itemSelectionChanged, copy,
            [this, copy] { copy->setEnabled(!selectedItems().isEmpty()); });
    add("Select &all", QKeySequence::SelectAll, [this] { selectAll(); });
    add("C&lear", QKeySequence::UnknownKey, [this] { clear(); });
}

void TimedLog::Copy() const {
    QStringList lines;
    for (int row = 0; row < count(); ++row)
        if (item(row)->isSelected()) lines << item(row)->text();
    QGuiApplication::clipboard()->setText(lines.join('\n'));
}

void TimedLog::Add(const QString& line) {
    if (count() == LinesKept) delete takeItem(0);
    addItem(QTime::currentTime().toString("hh:mm:ss") + "  " + line);
    scrollToBottom();
}

void TimedLog::resizeEvent(QResizeEvent* event) {
    const bool wasAtEnd = verticalScrollBar()->value() == verticalScrollBar()->maximum();
    QListWidget::resizeEvent(event);
    if (wasAtEnd) scrollToBottom();
}

QSize TimedLog::sizeHint() const {
    return {QListWidget::sizeHint().width(), LinesWanted * fontMetrics().lineSpacing() + 2 * frameWidth()};
}

QSize TimedLog::minimumSizeHint() const {
    return {QListWidget::minimumSizeHint().width(), LinesLeast * fontMetrics().lineSpacing() + 2 * frameWidth()};
}

}  // namespace orvelle::deck
