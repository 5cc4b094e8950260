// A titled part of a page: rows of a label and its fields on one grid, the label columns of all sections of one width.
#pragma once

#include <QStringList>
#include <QWidget>
#include <initializer_list>

#include "adapters/looks/Theme.h"

class QGridLayout;

namespace orvelle::deck {

constexpr int SectionGap = Unit + Unit / 2;  // between two sections of a column

class Section : public QWidget {
public:
    // `columns` counts the fields' columns beside that of the labels; they share the width evenly.
    Section(const QString& name, const QString& title, int columns = 1);

    // The label's mnemonic leads to the first field. A null field leaves its column to the field before it; the last
    // field takes what columns are left.
    void AddRow(const QString& label, std::initializer_list<QWidget*> fields);
    // Over the whole width, labels' column included. `stretch` other than 0 takes the height that is left.
    void AddWide(QWidget* widget, int stretch = 0);
    // Captions over the fields' columns, also part of the names of the fields in the rows that follow.
    void AddCaptions(const QStringList& texts);
    QGridLayout& Grid() { return *grid; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void FollowFont();

    QGridLayout* grid;
    int columns;
    QStringList captions;
    int nextRow = 1;
};

// A field with a label of its own, whose mnemonic leads to it, in one place of a row.
QWidget* Labelled(const QString& label, QWidget* field);

}  // namespace orvelle::deck
