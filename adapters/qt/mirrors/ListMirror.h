// Mirror of a list view: a table of the columns that have headings, one row of which can be selected.
#pragma once

#include <QTreeView>

#include "adapters/qt/mirrors/ItemClicks.h"
#include "adapters/qt/mirrors/ListModel.h"
#include "adapters/qt/mirrors/Mirror.h"
#include "platform/controls/ListView.h"

namespace orvelle::qt {

class ListMirror : public Mirror {
public:
    ListMirror(ListView& listView, QTreeView& view);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void ShowOwn(ControlProperty property) override;
    void ShowAllOwn() override { ShowSelected(); }

private:
    void ShowSelected();

    ListView& control;
    QTreeView& widget;
    ListModel model;
    ItemClicks clicks;
};

}  // namespace orvelle::qt
