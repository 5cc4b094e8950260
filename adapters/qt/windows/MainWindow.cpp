#include "adapters/qt/windows/MainWindow.h"

#include <QEvent>
#include <algorithm>
#include <string>

#include "adapters/looks/ScreenRoom.h"
#include "adapters/looks/Theme.h"
#include "adapters/qt/widgets/StatusImage.h"
#include "adapters/qt/windows/Mnemonics.h"
#include "adapters/qt/windows/Shortcuts.h"
#include "platform/controls/Buttons.h"
#include "platform/controls/Label.h"
#include "ui_MainWindow.h"

namespace orvelle::qt {

namespace {

// The room that the tree needs: its widest name at its deepest level.
constexpr char WidestNode[] = "Key Management";
constexpr int TreeLevels = 3;

// Any page is of use in it, scrolled; and the smallest screens have room for it.
constexpr QSize LeastSize(640, 360);

// The side is a shade apart from the page, and the chosen node stands out no more than it must.
QPalette SidePalette(QPalette palette) {
    const QColor shade = palette.color(QPalette::Button);
    const QColor highlight = palette.color(QPalette::Highlight);
    const auto mix = [](int ground, int tint) { return (3 * ground + tint) / 4; };
    const QColor chosen(mix(shade.red(), highlight.red()), mix(shade.green(), highlight.green()),
                        mix(shade.blue(), highlight.blue()));
    palette.setColor(QPalette::Base, shade);
    palette.setColor(QPalette::Window, shade);
    palette.setColor(QPalette::Highlight, chosen);
    palette.setColor(QPalette::HighlightedText, palette.color(QPalette::WindowText));
    return palette;
}

}  // namespace

MainWindow::MainWindow(Form& panelForm) : FormWindow(panelForm) {
    Ui::MainWindow window;
    window.setupUi(this);
    pages = window.pages;
    tree = window.twCategory;
    side = window.side;
    setMinimumSize(LeastSize);
    FollowFont();
    FollowPalette();
    binder.Bind(*this);
    for (int panel = 0; panel < PageCount; ++panel)
        frames[static_cast<std::size_t>(panel)] = form.Find("Panels(" + std::to_string(panel) + ")");
    pages->setCurrentWidget(&AreaOf(OverviewPanel));
    TellSize();
    LetKeysTurnPages(*this, *tree);
    if (auto* quit = dynamic_cast<MenuEntry*>(form.Find("mnuTrayQuit")))
        LetKeyDo(*this, QKeySequence(Qt::CTRL | Qt::Key_Q), [quit] { quit->UserClick(); });
}

void MainWindow::FollowFont() {
    tree->setFixedWidth(fontMetrics().horizontalAdvance(QLatin1String(WidestNode)) + TreeLevels * tree->indentation() +
                        2 * Unit);
}

void MainWindow::FollowPalette() {
    tree->setPalette(SidePalette(palette()));
    side->setPalette(tree->palette());
}

void MainWindow::changeEvent(QEvent* event) {
    FormWindow::changeEvent(event);
    if (tree == nullptr) return;
    if (event->type() == QEvent::FontChange) FollowFont();
    if (event->type() == QEvent::PaletteChange) FollowPalette();
}

void MainWindow::TellSize() {
    auto* overview = dynamic_cast<Frame*>(frames[OverviewPanel]);
    if (overview == nullptr) return;
    const int left = ListWidth();
    const QSize wanted = PageArea::UsualSize(*this) + QSize(left, 0);
    const QSize size = wanted.boundedTo(MostWindowSize(*screen())).expandedTo(LeastSize);
    overview->Left = left * TwipsPerPixel;
    overview->Top = 0;
    overview->Width = (size.width() - left) * TwipsPerPixel;
    overview->Height = size.height() * TwipsPerPixel;
}

int MainWindow::PanelOf(const Control& frame) const {
    return static_cast<int>(std::find(frames.begin(), frames.end(), &frame) - frames.begin());
}

int MainWindow::ListWidth() const { return side->sizeHint().width(); }

QWidget& MainWindow::Page(int panel) { return *AreaOf(panel).widget(); }

PageArea& MainWindow::AreaOf(int panel) {
    PageArea*& area = made.at(static_cast<std::size_t>(panel));
    if (area == nullptr) {
        area = new PageArea(MakePage(static_cast<PanelNumber>(panel), pages), pages);
        pages->addWidget(area);
        binder.Bind(*area->widget());
        neededFields.ShowAll();
        AssignMnemonics(*area->widget());
    }
    return *area;
}

QWidget* MainWindow::WidgetOf(const Control& control) {
    const Control* frame = control.Container == nullptr ? &control : control.Container;
    if (const int panel = PanelOf(*frame); panel < PageCount) Page(panel);
    return FormWindow::WidgetOf(control);
}

void MainWindow::ControlChanged(Control& control, ControlProperty property) {
    FormWindow::ControlChanged(control, property);
    neededFields.ControlChanged(control);
    if (property == ControlProperty::Visible && control.Visible)
        if (const int panel = PanelOf(control); panel < PageCount) pages->setCurrentWidget(&AreaOf(panel));
    if (property == ControlProperty::Picture)
        if (const auto* image = dynamic_cast<const Image*>(&control)) setWindowIcon(StatusIcon(image->Picture().Name));
}

}  // namespace orvelle::qt
