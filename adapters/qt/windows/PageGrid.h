// The one grid of all pages: labels, fields, and two columns of buttons, as wide as the font needs them. Where the page
// has less room the columns give way, on all pages alike: first the buttons, down to their usual captions, then the
// labels, which wrap, and then a label stands above its field. Widths are logical pixels of a page with its margins.
#pragma once

#include <QSize>
#include <vector>

class QFontMetrics;
class QGridLayout;
class QLayoutItem;
class QWidget;

namespace orvelle::qt {

class PageGrid {
public:
    // The page outlives the grid.
    explicit PageGrid(QWidget& formPage);

    // For the room that the page has now; to be called again when that or the font changes.
    void Fit(int width);

    // What every page has room in with nothing giving way, and the greatest width that is of use to one.
    static QSize UsualSize(const QWidget& window);
    static int MostWidth(const QWidget& window);

private:
    struct Columns {
        int Label;
        int Field;
        int Button;
        enum class Place { Beside, Above } Labels;

        int Width() const;  // of the page
    };
    // Where the form put an item.
    struct Cell {
        QGridLayout* Grid;
        QLayoutItem* Item;
        int Row, Column, Rows, Columns;
        Qt::Alignment Alignment;
        bool IsLabel;  // of a field in the same row
    };

    static Columns UsualColumns(const QFontMetrics& metrics);
    static Columns ColumnsFor(const QFontMetrics& metrics, int width);
    void Place(Columns::Place labels);
    void Wrap(int width);

    QWidget& page;
    std::vector<QGridLayout*> grids;
    std::vector<Cell> cells;
    Columns::Place placed = Columns::Place::Beside;
};

}  // namespace orvelle::qt
