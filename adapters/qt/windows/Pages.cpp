#include "adapters/qt/windows/Pages.h"

#include <QWidget>

#include "adapters/qt/widgets/GreyedNotice.h"
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

constexpr int LeastCharactersOfALine = 26;

template <typename PageForm>
QWidget* Make(QWidget* parent) {
    auto* page = new QWidget(parent);
    PageForm().setupUi(page);
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

// The picture beside the status lines gives way before they are torn into single words.
QWidget* MakeOverview(QWidget* parent) {
    QWidget* page = Make<Ui::Overview>(parent);
    auto* lines = page->findChild<QWidget*>("statusLines");
    lines->setMinimumWidth(lines->fontMetrics().averageCharWidth() * LeastCharactersOfALine);
    return page;
}

}  // namespace

QWidget* MakePage(PanelNumber panel, QWidget* parent) {
    switch (panel) {
        case OverviewPanel:
            return MakeOverview(parent);
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

}  // namespace orvelle::qt
