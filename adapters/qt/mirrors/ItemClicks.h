// The user's picks in a list or tree: one call for each, whether by mouse or keys, also for a click on the item that is
// picked already. What the program picks, or what moves because the program changed the items, calls nothing.
#pragma once

#include <QModelIndex>
#include <QObject>
#include <functional>

class QAbstractItemView;

namespace orvelle::qt {

class ItemClicks : public QObject {
public:
    // The view has its model.
    ItemClicks(QAbstractItemView& itemView, std::function<void(const QModelIndex&)> callback);

    // While one lives, the program is at work.
    class Quiet {
    public:
        explicit Quiet(ItemClicks& itemClicks) : clicks(itemClicks) { ++clicks.quiet; }
        Quiet(const Quiet&) = delete;
        Quiet& operator=(const Quiet&) = delete;
        ~Quiet() { --clicks.quiet; }

    private:
        ItemClicks& clicks;
    };

private:
    void Selected(const QModelIndex& index);

    const std::function<void(const QModelIndex&)> picked;
    int quiet = 0;
    bool pickedByPress = false;
};

}  // namespace orvelle::qt
