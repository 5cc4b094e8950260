// Nothing is clipped: on every page, in both palettes, at the scale that the test runs at, in the window's usual size
// and in a larger one.
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSlider>
#include <QTreeWidget>

#include "adapters/looks/Theme.h"
#include "adapters/qt/windows/WarningDialog.h"
#include "panel/MultiFSWarningDlg.h"
#include "tests/qt/forms/PlausiblePanel.h"
#include "tests/qt/forms/ShownPanel.h"
#include "tests/qt/forms/Whole.h"

namespace orvelle::qt {
namespace {

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
    // In the size that the load gives it on a screen with room enough, which the test's own need not be.
    static void ShowInUsualSize(PanelControls& panel, MainWindow& window) {
        Show(panel);
        const int side = window.width() - window.Page(0).parentWidget()->width();
        window.resize(PageArea::UsualSize(window) + QSize(side, 0));
        QCoreApplication::processEvents();
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

TEST_P(LayoutTest, EveryPageIsWholeInTheUsualSizeAndNoneIsScrolled) {
    PanelControls panel;
    MainWindow window(panel);
    FillWithLongestTexts(panel);
    ShowInUsualSize(panel, window);
    ExpectAllPagesWhole(panel, window);
    for (const auto* area : window.findChildren<ScrolledArea*>()) {
        EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0) << area->widget()->objectName().toStdString();
        EXPECT_EQ(area->verticalScrollBar()->maximum(), 0) << area->widget()->objectName().toStdString();
    }
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
    ShowInUsualSize(panel, window);
    QSet<int> fields;
    QSet<int> sliders;
    QSet<int> buttons;
    for (int page = 0; page < PageCount; ++page) {
        for (Long other = 0; other < PageCount; ++other) panel.Panels(other).Visible = other == page;
        QCoreApplication::processEvents();
        for (const QLineEdit* field : window.Page(page).findChildren<QLineEdit*>(Qt::FindDirectChildrenOnly))
            fields.insert(field->width());
        for (const QComboBox* field : window.Page(page).findChildren<QComboBox*>()) fields.insert(field->width());
        for (const QSlider* field : window.Page(page).findChildren<QSlider*>())
            if (field->isVisible()) sliders.insert(field->width());
        for (const QPushButton* button : window.Page(page).findChildren<QPushButton*>())
            if (button != window.WidgetOf(panel.VVLCalibrate)) buttons.insert(button->width());
    }
    EXPECT_EQ(fields.size(), 1);
    EXPECT_EQ(sliders.size(), 1);
    EXPECT_EQ(buttons.size(), 1);
}

INSTANTIATE_TEST_SUITE_P(Palettes, LayoutTest, testing::Values(Scheme::Light, Scheme::Dark),
                         [](const auto& palette) { return palette.param == Scheme::Light ? "Light" : "Dark"; });

}  // namespace
}  // namespace orvelle::qt
