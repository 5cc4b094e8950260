#include "platform/qt/MainWindow.h"

#include <algorithm>
#include <string>

#include "platform/controls/Label.h"
#include "platform/qt/StatusImage.h"
#include "platform/qt/Theme.h"
#include "ui_MainWindow.h"

namespace orvelle {

namespace {

constexpr int Overview = 0;
// Room for the names in the tree, counted in characters.
constexpr int TreeCharacters = 24;

}  // namespace

MainWindow::MainWindow(Form& panelForm) : FormWindow(panelForm) {
    Ui::MainWindow window;
    window.setupUi(this);
    pages = window.pages;
    pages->setMinimumSize(PageSize(*this));
    window.twCategory->setFixedWidth(fontMetrics().averageCharWidth() * TreeCharacters);
    binder.Bind(*this);
    for (int panel = 0; panel < PageCount; ++panel)
        frames[static_cast<std::size_t>(panel)] = form.Find("Panels(" + std::to_string(panel) + ")");
    pages->setCurrentWidget(&Page(Overview));
    TellSize();
}

void MainWindow::TellSize() {
    auto* overview = dynamic_cast<Frame*>(frames[Overview]);
    if (overview == nullptr) return;
    const QSize needed = layout()->totalSizeHint();
    const int left = needed.width() - pages->sizeHint().width();
    overview->Left = left * TwipsPerPixel;
    overview->Top = 0;
    overview->Width = (needed.width() - left) * TwipsPerPixel;
    overview->Height = needed.height() * TwipsPerPixel;
}

int MainWindow::PanelOf(const Control& frame) const {
    return static_cast<int>(std::find(frames.begin(), frames.end(), &frame) - frames.begin());
}

QWidget& MainWindow::Page(int panel) {
    QWidget*& page = made.at(static_cast<std::size_t>(panel));
    if (page == nullptr) {
        page = MakePage(panel, pages);
        pages->addWidget(page);
        binder.Bind(*page);
    }
    return *page;
}

QWidget* MainWindow::WidgetOf(const Control& control) {
    const Control* frame = control.Container == nullptr ? &control : control.Container;
    if (const int panel = PanelOf(*frame); panel < PageCount) Page(panel);
    return FormWindow::WidgetOf(control);
}

void MainWindow::ControlChanged(Control& control, ControlProperty property) {
    FormWindow::ControlChanged(control, property);
    if (property == ControlProperty::Visible && control.Visible)
        if (const int panel = PanelOf(control); panel < PageCount) pages->setCurrentWidget(&Page(panel));
    if (property == ControlProperty::Picture)
        if (const auto* image = dynamic_cast<const Image*>(&control)) setWindowIcon(StatusIcon(image->Picture().Name));
}

}  // namespace orvelle
