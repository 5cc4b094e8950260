// The forms are complete: every control has its widget and every widget its control.
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QTreeView>

#include "adapters/qt/windows/WarningDialog.h"
#include "panel/MultiFSWarningDlg.h"
#include "tests/qt/forms/ShownPanel.h"
#include "tests/qt/shell/WidgetInput.h"

namespace orvelle::qt {
namespace {

class FormsTest : public ShownPanel {};

std::string Joined(const QStringList& names) { return names.join(QLatin1Char(' ')).toStdString(); }

TEST_F(FormsTest, EveryControlHasItsWidget) { EXPECT_EQ(Joined(window.Bindings().ControlsWithoutWidget()), ""); }

TEST_F(FormsTest, EveryWidgetHasItsControl) { EXPECT_EQ(Joined(window.Bindings().WidgetsWithoutControl(window)), ""); }

TEST_F(FormsTest, AControlWithoutWidgetAndAWidgetWithoutControlAreTold) {
    const Label forgotten(panel, "Forgotten", &panel.Panels(0), "");
    QLabel stray(&window);
    stray.setObjectName(QStringLiteral("Stray"));
    EXPECT_EQ(Joined(window.Bindings().ControlsWithoutWidget()), "Forgotten");
    EXPECT_EQ(Joined(window.Bindings().WidgetsWithoutControl(window)), "Stray");
}

TEST_F(FormsTest, AWidgetOfAnotherKindIsNoneOfTheControl) {
    const CommandButton wrong(panel, "Wrong", &panel.Panels(0), "");
    auto* label = new QLabel(&window.Page(0));
    label->setObjectName(QStringLiteral("Wrong"));
    Binder binder(panel);
    binder.Bind(window.Page(0));
    EXPECT_EQ(binder.WidgetOf(wrong), nullptr);
    EXPECT_TRUE(binder.ControlsWithoutWidget().contains(QStringLiteral("Wrong")));
}

TEST_F(FormsTest, MembersOfAnArrayAreNamedByTheirIndex) {
    EXPECT_EQ(Binder::WidgetName(panel.optRWDriver(2)), QStringLiteral("optRWDriver_2"));
    EXPECT_EQ(window.WidgetOf(panel.optRWDriver(2))->objectName(), QStringLiteral("optRWDriver_2"));
    EXPECT_EQ(window.WidgetOf(panel.Panels(12)), &window.Page(12));
}

TEST_F(FormsTest, TimersListsOfImagesAndMenusAreNoWidgets) {
    for (const Control* control :
         std::initializer_list<const Control*>{&panel.Timer1, &panel.IconList, &panel.mnuTray, &panel.mnuTrayQuit}) {
        EXPECT_FALSE(IsShown(*control));
        EXPECT_EQ(window.WidgetOf(*control), nullptr);
    }
}

TEST_F(FormsTest, EachControlSitsOnThePageOfItsFrame) {
    for (const Control* control : panel.Controls()) {
        if (control->Container == nullptr || !IsShown(*control)) continue;
        EXPECT_TRUE(window.WidgetOf(*control->Container)->isAncestorOf(window.WidgetOf(*control))) << control->Name;
    }
}

TEST_F(FormsTest, EveryControlThatIsActedOnSaysWhatItDoesAndHasANameToReadOut) {
    for (const Control* control : panel.Controls()) {
        const bool isActedOn = IsShown(*control) && control->Container != nullptr &&
                               dynamic_cast<const Label*>(control) == nullptr &&
                               dynamic_cast<const StatusBar*>(control) == nullptr;
        if (!isActedOn) continue;
        const QWidget* widget = window.WidgetOf(*control);
        EXPECT_FALSE(widget->toolTip().isEmpty()) << control->Name;
        QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
        EXPECT_FALSE(accessible->text(QAccessible::Name).trimmed().isEmpty()) << control->Name;
    }
}

TEST_F(FormsTest, TheButtonsOfAMappingAreToldApartByTheNamesReadOut) {
    EXPECT_NE(window.WidgetOf(panel.RWJoySet)->accessibleName(), window.WidgetOf(panel.RWKeySet)->accessibleName());
    EXPECT_TRUE(window.WidgetOf(panel.RWJoySet)->accessibleName().startsWith(QStringLiteral("Set, ")));
    panel.RWJoySet.Caption = "Cancel";
    EXPECT_TRUE(window.WidgetOf(panel.RWJoySet)->accessibleName().startsWith(QStringLiteral("Cancel, ")));
}

TEST_F(FormsTest, TheWarningIsCompleteAsSoonAsItShows) {
    MultiFSWarningDlg warning;
    WarningDialog dialog(warning);
    warning.Show();
    for (const Control* control : warning.Controls()) EXPECT_NE(dialog.WidgetOf(*control), nullptr) << control->Name;
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Multiple FS/Velmarc running on network"));
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_FALSE(dialog.isModal());
    ClickMouse(dialog.WidgetOf(warning.OKButton), Qt::LeftButton);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_FALSE(warning.IsLoaded());
}

TEST_F(FormsTest, TheWarningGoesByTheEnterAndTheEscapeKey) {
    // The warning would belong to the active window, and the screen that is none gives it no focus of its own then.
    window.hide();
    MultiFSWarningDlg warning;
    WarningDialog dialog(warning);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        warning.Show();
        ASSERT_TRUE(WaitForWindowActive(&dialog));
        ClickKey(&dialog, key);
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_FALSE(warning.IsLoaded());
    }
}

}  // namespace
}  // namespace orvelle::qt
