// Nothing is clipped: on every page, in both palettes, at the scale that the test runs at, in the window's own size, in
// its smallest, and in a larger one.
#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QTreeWidget>

#include "adapters/looks/ElidedLabel.h"
#include "adapters/looks/Theme.h"
#include "adapters/qt/windows/WarningDialog.h"
#include "panel/MultiFSWarningDlg.h"
#include "tests/qt/forms/PlausiblePanel.h"
#include "tests/qt/forms/ShownPanel.h"

namespace orvelle::qt {
namespace {

// What the widget needs to show its whole text, or its least size.
QSize Needed(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        if (qobject_cast<const ElidedLabel*>(label) != nullptr) return label->minimumSizeHint();
        if (label->wordWrap()) return {label->minimumSizeHint().width(), label->heightForWidth(label->width())};
        return label->sizeHint();
    }
    if (const auto* field = qobject_cast<const QLineEdit*>(&widget)) {
        const int text = field->fontMetrics().horizontalAdvance(field->text());
        return {field->isReadOnly() ? text + 2 * Unit : 0, field->sizeHint().height()};
    }
    if (qobject_cast<const QAbstractButton*>(&widget) != nullptr) return widget.sizeHint();
    return widget.minimumSizeHint();
}

void ExpectWhole(const QWidget& window) {
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->objectName().isEmpty()) continue;
        const QSize needed = Needed(*widget);
        EXPECT_GE(widget->width(), needed.width()) << widget->objectName().toStdString();
        EXPECT_GE(widget->height(), needed.height()) << widget->objectName().toStdString();
        const QRect place(widget->mapTo(&window, QPoint(0, 0)), widget->size());
        EXPECT_TRUE(window.rect().contains(place)) << widget->objectName().toStdString();
    }
}

void ExpectNoOverlap(const QWidget& page) {
    const QList<QWidget*> widgets = page.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget* one : widgets) {
        for (const QWidget* other : widgets) {
            if (one >= other || !one->isVisible() || !other->isVisible()) continue;
            EXPECT_FALSE(one->geometry().intersects(other->geometry()))
                << one->objectName().toStdString() << " and " << other->objectName().toStdString();
        }
    }
}

class LayoutTest : public testing::TestWithParam<Scheme> {
protected:
    LayoutTest() { ApplyTheme(GetParam()); }
    ~LayoutTest() override { ApplyTheme(Scheme::Light); }

    // As the load leaves it.
    static void Show(PanelControls& panel) {
        panel.Width = panel.Panels(0).Left + panel.Panels(0).Width;
        panel.Height = panel.Panels(0).Top + panel.Panels(0).Height;
        panel.Show();
    }
    static void ExpectAllPagesWhole(PanelControls& panel, MainWindow& window) {
        for (int page = 0; page < PageCount; ++page) {
            SCOPED_TRACE("page " + std::to_string(page));
            for (Long other = 0; other < PageCount; ++other) panel.Panels(other).Visible = other == page;
            QCoreApplication::processEvents();
            ExpectWhole(window);
            ExpectNoOverlap(window.Page(page));
        }
    }
};

TEST_P(LayoutTest, EveryPageIsWholeInTheWindowsOwnSize) {
    PanelControls panel;
    MainWindow window(panel);
    FillWithLongestTexts(panel);
    Show(panel);
    const QSize size = window.size();
    ExpectAllPagesWhole(panel, window);
    EXPECT_EQ(window.size(), size) << "a page needed more room than all pages were to have";
}

TEST_P(LayoutTest, EveryPageIsWholeInTheSmallestWindow) {
    PanelControls panel;
    MainWindow window(panel);
    FillWithLongestTexts(panel);
    Show(panel);
    window.resize(window.minimumSizeHint());
    ExpectAllPagesWhole(panel, window);
}

TEST_P(LayoutTest, EveryPageIsWholeInALargeWindow) {
    PanelControls panel;
    MainWindow window(panel);
    FillPlausibly(panel);
    Show(panel);
    window.resize(1400, 900);
    ExpectAllPagesWhole(panel, window);
}

TEST_P(LayoutTest, TheWarningIsWhole) {
    MultiFSWarningDlg warning;
    WarningDialog dialog(warning);
    warning.Show();
    QCoreApplication::processEvents();
    ExpectWhole(dialog);
}

TEST_P(LayoutTest, TheTreeShowsItsNodesWhole) {
    PanelControls panel;
    MainWindow window(panel);
    FillPlausibly(panel);
    Show(panel);
    auto* tree = window.findChild<QTreeWidget*>();
    tree->expandAll();
    QCoreApplication::processEvents();
    EXPECT_LE(static_cast<QAbstractItemView*>(tree)->sizeHintForIndex(tree->model()->index(0, 0)).width(),
              tree->viewport()->width());
    for (QTreeWidgetItemIterator item(tree); *item != nullptr; ++item) {
        const QModelIndex index = tree->indexFromItem(*item);
        EXPECT_GE(tree->visualRect(index).width(), tree->sizeHintForIndex(index).width())
            << (*item)->text(0).toStdString();
    }
}

TEST_P(LayoutTest, FieldsAreOfOneWidthAndButtonsOfOneWidthOnAllPages) {
    PanelControls panel;
    MainWindow window(panel);
    FillPlausibly(panel);
    Show(panel);
    QSet<int> fields;
    QSet<int> buttons;
    for (int page = 0; page < PageCount; ++page) {
        for (Long other = 0; other < PageCount; ++other) panel.Panels(other).Visible = other == page;
        QCoreApplication::processEvents();
        for (const QLineEdit* field : window.Page(page).findChildren<QLineEdit*>(Qt::FindDirectChildrenOnly))
            fields.insert(field->width());
        for (const QComboBox* field : window.Page(page).findChildren<QComboBox*>()) fields.insert(field->width());
        for (const QSlider* field : window.Page(page).findChildren<QSlider*>())
            if (field->isVisible()) fields.insert(field->width());
        for (const QPushButton* button : window.Page(page).findChildren<QPushButton*>())
            if (button != window.WidgetOf(panel.VVLCalibrate)) buttons.insert(button->width());
    }
    EXPECT_EQ(fields.size(), 1);
    EXPECT_EQ(buttons.size(), 1);
}

INSTANTIATE_TEST_SUITE_P(Palettes, LayoutTest, testing::Values(Scheme::Light, Scheme::Dark),
                         [](const auto& palette) { return palette.param == Scheme::Light ? "Light" : "Dark"; });

}  // namespace
}  // namespace orvelle::qt
