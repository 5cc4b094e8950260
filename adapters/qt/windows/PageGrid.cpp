#include "adapters/qt/windows/PageGrid.h"

#include <QComboBox>
#include <QFontMetrics>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <algorithm>

#include "adapters/looks/Theme.h"

namespace orvelle::qt {

namespace {

// The widest text of each column, the one by which labels wrap into two lines, and the widest of the usual captions.
constexpr char WidestLabel[] = "Inband voice signal tone Volume";
constexpr char WidestField[] = "<Press a key sequence on FS PC keyboard>";
constexpr char WidestButton[] = "Delete Selected";
constexpr char WrappedLabel[] = "FS Priv PTT Joystick";
constexpr char UsualButton[] = "Rescan";

constexpr int Fields = 1;  // column of the grid
constexpr int FirstButton = 2;
constexpr int LastButton = 3;
constexpr int ColumnCount = 4;

constexpr int Gaps = (ColumnCount - 1) * Unit;
constexpr int Margins = 2 * 2 * Unit;
constexpr int LeastButton = 80;      // the style's own, logical pixels
constexpr int LeastCharacters = 12;  // of a box to choose from

int WidthOf(const QFontMetrics& metrics, const char* text) { return metrics.horizontalAdvance(QLatin1String(text)); }

bool IsUsed(const QGridLayout& grid, int column) {
    for (int row = 0; row < grid.rowCount(); ++row)
        if (grid.itemAtPosition(row, column) != nullptr) return true;
    return false;
}

// Of what `lack` asks for, what lies between `width` and `least`.
void GiveWay(int& width, int least, int& lack) {
    const int given = std::clamp(lack, 0, std::max(0, width - least));
    width -= given;
    lack -= given;
}

}  // namespace

PageGrid::PageGrid(QWidget& formPage) : page(formPage) {
    for (QGridLayout* grid : page.findChildren<QGridLayout*>()) {
        if (!grid->objectName().endsWith(QLatin1String("ieldGrid"))) continue;
        grids.push_back(grid);
        for (int index = 0; index < grid->count(); ++index) {
            Cell cell{grid, grid->itemAt(index), 0, 0, 0, 0, {}, false};
            grid->getItemPosition(index, &cell.Row, &cell.Column, &cell.Rows, &cell.Columns);
            cell.Alignment = cell.Item->alignment();
            cell.IsLabel = cell.Column == 0 && cell.Columns == 1 && grid->itemAtPosition(cell.Row, Fields) != nullptr;
            cells.push_back(cell);
        }
    }
    for (QComboBox* box : page.findChildren<QComboBox*>()) {
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMinimumContentsLength(LeastCharacters);
    }
}

int PageGrid::Columns::Width() const { return Label + Field + 2 * Button + Gaps + Margins; }

PageGrid::Columns PageGrid::UsualColumns(const QFontMetrics& metrics) {
    return {WidthOf(metrics, WidestLabel) + Unit / 2, WidthOf(metrics, WidestField) + 2 * Unit,
            WidthOf(metrics, WidestButton) + 3 * Unit, Columns::Place::Beside};
}

PageGrid::Columns PageGrid::ColumnsFor(const QFontMetrics& metrics, int width) {
    Columns columns = UsualColumns(metrics);
    const int leastButton = std::max(LeastButton, WidthOf(metrics, UsualButton) + 3 * Unit);
    int lack = columns.Width() - width;
    int buttons = 2 * columns.Button;
    GiveWay(buttons, 2 * leastButton, lack);
    columns.Button = buttons / 2;
    GiveWay(columns.Label, WidthOf(metrics, WrappedLabel) + 2 * Unit, lack);
    if (lack > 0) columns = {0, 0, leastButton, Columns::Place::Above};
    return columns;
}

void PageGrid::Fit(int width) {
    const Columns columns = ColumnsFor(QFontMetrics(page.font()), width);
    for (QPushButton* button : page.findChildren<QPushButton*>())
        button->setMinimumWidth(std::max(columns.Button, button->sizeHint().width()));
    Place(columns.Labels);
    for (QGridLayout* grid : grids) {
        grid->setColumnMinimumWidth(0, columns.Label);
        grid->setColumnMinimumWidth(Fields, columns.Field);
        grid->setColumnStretch(Fields, 1);
        // A column with nothing in it has no gap before it.
        for (int column = FirstButton; column <= LastButton; ++column)
            grid->setColumnMinimumWidth(column, columns.Button + (IsUsed(*grid, column) ? 0 : Unit));
    }
    Wrap(columns.Label);
}

// Above its field a label has a row of its own, and the field begins where the label does.
void PageGrid::Place(Columns::Place labels) {
    if (labels == placed) return;
    placed = labels;
    for (const Cell& cell : cells) cell.Grid->removeItem(cell.Item);
    for (const Cell& cell : cells) {
        int row = cell.Row, column = cell.Column, columns = cell.Columns;
        if (labels == Columns::Place::Above) {
            row = 2 * cell.Row + (cell.IsLabel ? 0 : 1);
            if (cell.IsLabel) columns = ColumnCount;
            if (cell.Column == Fields) {
                column = 0;
                columns = cell.Columns + 1;
            }
        }
        if (QLayout* layout = cell.Item->layout())
            cell.Grid->addLayout(layout, row, column, cell.Rows, columns, cell.Alignment);
        else
            cell.Grid->addItem(cell.Item, row, column, cell.Rows, columns, cell.Alignment);
    }
}

void PageGrid::Wrap(int width) {
    for (const Cell& cell : cells) {
        if (!cell.IsLabel) continue;
        const QLayout* indented = cell.Item->layout();
        auto* label = qobject_cast<QLabel*>(indented ? indented->itemAt(0)->widget() : cell.Item->widget());
        if (label == nullptr) continue;
        const int indent = indented ? indented->contentsMargins().left() : 0;
        const int needed = label->fontMetrics().horizontalAdvance(label->text()) + indent;
        label->setWordWrap(placed == Columns::Place::Beside && needed > width);
    }
}

QSize PageGrid::UsualSize(const QWidget& window) {
    const QFontMetrics metrics(window.font());
    // The highest page: the volumes, of 12 rows and a title.
    constexpr int Rows = 14;
    const int row = metrics.height() + 2 * Unit;
    return {UsualColumns(metrics).Width(), Rows * row + 2 * 2 * Unit};
}

int PageGrid::MostWidth(const QWidget& window) {
    const Columns columns = UsualColumns(QFontMetrics(window.font()));
    return columns.Width() + columns.Field;
}

}  // namespace orvelle::qt
