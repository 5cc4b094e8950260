#include "adapters/qt/windows/Pages.h"

#include <QGridLayout>
#include <QPushButton>
#include <QStyle>
#include <QWidget>
#include <algorithm>

#include "adapters/looks/Theme.h"
#include "adapters/qt/widgets/GreyedNotice.h"
#include "adapters/qt/widgets/Heading.h"
#include "adapters/qt/widgets/SliderNumber.h"
#include "adapters/qt/windows/Shortcuts.h"
#include "ui_Extra.h"
#include "ui_FrameworkLink.h"
#include "ui_JoyToKey.h"
#include "ui_KeyToKey.h"
#include "ui_Options.h"
#include "ui_Overview.h"
#include "ui_RogerWilco.h"
#include "ui_SimulatorLink.h"
#include "ui_TeamSpeak.h"
#include "ui_VatsimKeys.h"
#include "ui_VatsimVoice.h"
#include "ui_VoiceAtis.h"
#include "ui_Volumes.h"

namespace orvelle::qt {

namespace {

// The widest text of each column of the grid.
constexpr char WidestLabel[] = "Inband voice signal tone Volume";
constexpr char WidestField[] = "<Press a key sequence on FS PC keyboard>";
constexpr char WidestButton[] = "Delete Selected";

constexpr int Fields = 1;  // column of the grid
constexpr int FirstButton = 2;
constexpr int LastButton = 3;

struct Columns {
    int Label;
    int Field;
    int Button;
};

Columns ColumnsFor(const QWidget& widget) {
    const QFontMetrics metrics(widget.font());
    const auto widthOf = [&metrics](const char* text) { return metrics.horizontalAdvance(QLatin1String(text)); };
    return {widthOf(WidestLabel) + Unit / 2, widthOf(WidestField) + 2 * Unit, widthOf(WidestButton) + 3 * Unit};
}

bool IsUsed(const QGridLayout& grid, int column) {
    for (int row = 0; row < grid.rowCount(); ++row)
        if (grid.itemAtPosition(row, column) != nullptr) return true;
    return false;
}

}  // namespace

void AlignToGrid(QWidget& page) {
    const Columns columns = ColumnsFor(page);
    for (Heading* heading : page.findChildren<Heading*>()) heading->FollowFont();
    for (QPushButton* button : page.findChildren<QPushButton*>()) button->setMinimumWidth(columns.Button);
    for (QGridLayout* grid : page.findChildren<QGridLayout*>()) {
        if (!grid->objectName().endsWith(QLatin1String("ieldGrid"))) continue;
        grid->setColumnMinimumWidth(0, columns.Label);
        grid->setColumnMinimumWidth(Fields, columns.Field);
        grid->setColumnStretch(Fields, 1);
        // A column with nothing in it has no gap before it.
        for (int column = FirstButton; column <= LastButton; ++column)
            grid->setColumnMinimumWidth(column, columns.Button + (IsUsed(*grid, column) ? 0 : Unit));
    }
}

namespace {

template <typename PageForm>
QWidget* Make(QWidget* parent) {
    auto* page = new QWidget(parent);
    PageForm().setupUi(page);
    AlignToGrid(*page);
    for (SliderNumber* number : page->findChildren<SliderNumber*>()) number->Follow();
    LetDeleteDelete(*page);
    return page;
}

// The tables' pages are greyed while no simulator is there.
QWidget* Telling(QWidget* page) {
    new GreyedNotice(*page,
                     QWidget::tr("Greyed while the simulator is not connected: its keys and buttons come over that "
                                 "link. The page Velmarc tells how it stands."));
    return page;
}

}  // namespace

QWidget* MakePage(PanelNumber panel, QWidget* parent) {
    switch (panel) {
        case OverviewPanel:
            return Make<Ui::Overview>(parent);
        case SimulatorLinkPanel:
            return Make<Ui::SimulatorLink>(parent);
        case RogerWilcoPanel:
            return Make<Ui::RogerWilco>(parent);
        case TeamSpeakPanel:
            return Make<Ui::TeamSpeak>(parent);
        case JoyToKeyPanel:
            return Telling(Make<Ui::JoyToKey>(parent));
        case VatsimVoicePanel:
            return Make<Ui::VatsimVoice>(parent);
        case VolumesPanel:
            return Make<Ui::Volumes>(parent);
        case KeyToKeyPanel:
            return Telling(Make<Ui::KeyToKey>(parent));
        case FrameworkLinkPanel:
            return Make<Ui::FrameworkLink>(parent);
        case OptionsPanel:
            return Make<Ui::Options>(parent);
        case VoiceAtisPanel:
            return Make<Ui::VoiceAtis>(parent);
        case ExtraPanel:
            return Make<Ui::Extra>(parent);
        case VatsimKeysPanel:
            return Make<Ui::VatsimKeys>(parent);
    }
    return nullptr;  // for no panel
}

QSize PageSize(const QWidget& window) {
    const Columns columns = ColumnsFor(window);
    // The highest page: the volumes, of 12 rows and a title.
    constexpr int Rows = 14;
    const int row = QFontMetrics(window.font()).height() + 2 * Unit;
    return {columns.Label + columns.Field + 2 * columns.Button + 3 * Unit + 4 * Unit, Rows * row + 4 * Unit};
}

}  // namespace orvelle::qt
