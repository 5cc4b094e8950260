// The icon in a real tray, its mouse messages, the menu, and the stand-in for a tray that is not there.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QMenu>
#include <QPixmap>
#include <QProcess>
#include <QScreen>
#include <vector>

#include "adapters/looks/Text.h"
#include "adapters/qt/services/QtTray.h"
#include "adapters/qt/windows/PopupMenus.h"
#include "platform/controls/Buttons.h"
#include "platform/controls/Form.h"
#include "tests/qt/shell/RealInput.h"
#include "tests/qt/shell/Waiting.h"
#include "tests/qt/shell/WidgetInput.h"

namespace orvelle::qt {
namespace {

constexpr Long CallbackMessage = 1125;
constexpr Long IconId = 7;

QWidget* FindTopLevel(const char* className) {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (qstrcmp(widget->metaObject()->className(), className) == 0 && widget->isVisible()) return widget;
    return nullptr;
}

QWidget* FindByName(const char* objectName) {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (widget->objectName() == objectName && widget->isVisible()) return widget;
    return nullptr;
}

// Qt's window for the icon, which the tray embeds.
QWidget* EmbeddedIcon() { return FindTopLevel("QSystemTrayIconSys"); }
QWidget* StandIn() { return FindByName("StandInIcon"); }

class TrayProgram {
public:
    TrayProgram() {
        process.start("trayer", {"--edge", "top", "--align", "right", "--expand", "true", "--widthtype", "request",
                                 "--height", "32"});
        EXPECT_TRUE(ComesTrue([this] { return input.HasTray(); }));
    }
    ~TrayProgram() {
        process.kill();
        process.waitForFinished();
        EXPECT_TRUE(ComesTrue([this] { return !input.HasTray(); }));
    }

private:
    RealInput input;
    QProcess process;
};

struct HookedWindow : Control {
    explicit HookedWindow(Form& form) : Control(form, "ST") {}
    std::vector<std::pair<Long, Long>> Messages;  // wParam, lParam
};

class TrayTest : public testing::Test {
protected:
    TrayTest() {
        table.SetLong(window, WindowProcedureIndex, reinterpret_cast<std::intptr_t>(&Procedure));
        record.Window = &window;
        record.Id = IconId;
        record.Flags = NotifyIconMessage | NotifyIconPicture | NotifyIconTip;
        record.CallbackMessage = CallbackMessage;
        record.Icon = {Picture::Icon, "first"};
        record.Tip = std::string("Orvelle\0 rest", 13);
    }

    static Long Procedure(Control& control, Long message, Long wParam, Long lParam) {
        if (message == CallbackMessage) static_cast<HookedWindow&>(control).Messages.emplace_back(wParam, lParam);
        return 0;
    }

    QIcon IconOf(const Picture& picture) {
        asked.push_back(picture.Name);
        QPixmap pixmap(64, 64);
        pixmap.fill(picture.Name == "first" ? Qt::darkGreen : Qt::darkRed);
        return QIcon(pixmap);
    }

    // The tray gives the icon its size and place some time after it took it.
    bool PointerComesTo(QWidget& icon) {
        constexpr int SmallestIcon = 16;
        return ComesTrue([&] {
            input.MoveTo(input.MiddleOf(icon));
            return icon.height() >= SmallestIcon && icon.underMouse() && input.PointsAt(icon);
        });
    }
    void ClickHere(int button) {
        input.Press(button);
        input.Release(button);
    }

    bool Comes(Long mouseMessage) {
        const bool came = ComesTrue([this] { return !window.Messages.empty(); });
        const bool isIt = came && window.Messages.front() == std::pair(IconId, mouseMessage);
        window.Messages.clear();
        return isIt;
    }

    WindowTable table;
    Form form{"form", ""};
    HookedWindow window{form};
    NotifyIconData record;
    std::vector<std::string> asked;
    RealInput input;
    QtTray tray{table, [this](const Picture& picture) { return IconOf(picture); }};
};

TEST_F(TrayTest, TheIconAppearsInTheTrayAndGoesAgain) {
    TrayProgram program;
    tray.Shell_NotifyIconA(NotifyIconAdd, record);
    ASSERT_TRUE(ComesTrue([] { return EmbeddedIcon() != nullptr; }));
    EXPECT_EQ(StandIn(), nullptr);
    EXPECT_EQ(EmbeddedIcon()->toolTip().toStdString() + asked.back(), "Orvellefirst");

    NotifyIconData change = record;
    change.Flags = NotifyIconPicture;
    change.Icon = {Picture::Icon, "second"};
    change.Tip = "not valid";
    tray.Shell_NotifyIconA(NotifyIconModify, change);
    EXPECT_EQ(asked.back(), "second");
    const std::size_t before = asked.size();
    tray.Shell_NotifyIconA(NotifyIconModify, change);
    EXPECT_EQ(asked.size(), before);

    tray.Shell_NotifyIconA(NotifyIconDelete, record);
    EXPECT_EQ(EmbeddedIcon(), nullptr);
    Settle();
    EXPECT_EQ(StandIn(), nullptr);
}

TEST_F(TrayTest, PressesOnTheIconReachTheHookedWindow) {
    TrayProgram program;
    tray.Shell_NotifyIconA(NotifyIconAdd, record);
    ASSERT_TRUE(ComesTrue([] { return EmbeddedIcon() != nullptr; }));
    ASSERT_TRUE(PointerComesTo(*EmbeddedIcon()));
    input.Press(1);
    EXPECT_TRUE(Comes(513));  // on the press
    input.Release(1);
    ClickHere(3);
    EXPECT_TRUE(Comes(516));
    ClickHere(2);
    ClickHere(1);
    EXPECT_TRUE(Comes(513));
    ClickHere(1);
    EXPECT_TRUE(Comes(515));
}

TEST_F(TrayTest, ASentenceIsABalloonBesideTheIconAsSoonAsThatIsThere) {
    tray.Tell("One.");
    TrayProgram program;
    tray.Shell_NotifyIconA(NotifyIconAdd, record);
    const auto says = [](const QString& words) {
        const QWidget* const balloon = FindTopLevel("QBalloonTip");
        const QList<QLabel*> labels = balloon != nullptr ? balloon->findChildren<QLabel*>() : QList<QLabel*>();
        return std::any_of(labels.begin(), labels.end(), [&](const QLabel* each) { return each->text() == words; });
    };
    EXPECT_TRUE(ComesTrue([&] { return says("One."); }));
    tray.Tell("Two.");
    tray.Tell("Three.");
    EXPECT_TRUE(ComesTrue([&] { return says("Two.\nThree."); }));
}

TEST_F(TrayTest, ADyingTrayBringsTheStandInAndANewTrayTakesTheIconBack) {
    {
        TrayProgram program;
        tray.Shell_NotifyIconA(NotifyIconAdd, record);
        ASSERT_TRUE(ComesTrue([] { return EmbeddedIcon() != nullptr; }));
    }
    ASSERT_TRUE(ComesTrue([] { return StandIn() != nullptr; }));
    EXPECT_EQ(EmbeddedIcon(), nullptr);
    {
        TrayProgram program;
        ASSERT_TRUE(ComesTrue([] { return EmbeddedIcon() != nullptr; }));
        EXPECT_EQ(StandIn(), nullptr);
        ASSERT_TRUE(PointerComesTo(*EmbeddedIcon()));
        ClickHere(1);
        EXPECT_TRUE(Comes(513));
    }
    EXPECT_TRUE(ComesTrue([] { return StandIn() != nullptr; }));
}

class StandInTest : public TrayTest {
protected:
    StandInTest() {
        tray.Shell_NotifyIconA(NotifyIconAdd, record);
        EXPECT_TRUE(ComesTrue([] { return StandIn() != nullptr; }));
        EXPECT_TRUE(WaitForWindowExposed(StandIn()));
    }

    // Its right end, in all its sizes.
    QPoint IconPlace() {
        return input.MiddleOf(*StandIn()) + QPoint((StandIn()->width() - StandIn()->height()) / 2, 0);
    }
};

TEST_F(StandInTest, TellsOfItselfUntilItIsUsedAndTakesTheSameClicks) {
    const auto* words = StandIn()->findChild<QLabel*>();
    EXPECT_TRUE(words->isVisible());
    EXPECT_TRUE(words->text().startsWith("This desktop has no notification area"));
    EXPECT_LE(words->heightForWidth(words->width()), words->height());
    EXPECT_EQ(StandIn()->toolTip(), "Orvelle\n" + words->text());

    const QPoint place = IconPlace();
    input.Click(place, 1);
    EXPECT_TRUE(Comes(513));
    EXPECT_FALSE(words->isVisible());
    EXPECT_EQ(StandIn()->size(), QSize(48, 48));
    EXPECT_TRUE(ComesTrue([&] { return IconPlace() == place; }));
    input.Click(place, 1);
    EXPECT_TRUE(Comes(515));
    input.Click(place, 3);
    EXPECT_TRUE(Comes(516));
    Settle();
    EXPECT_TRUE(window.Messages.empty());
}

TEST_F(StandInTest, SaysASentenceUntilItIsUsed) {
    const QPoint place = IconPlace();
    input.Click(place, 1);
    ASSERT_TRUE(Comes(513));
    const auto* words = StandIn()->findChild<QLabel*>();
    ASSERT_TRUE(ComesTrue([&] { return !words->isVisible() && IconPlace() == place; }));
    tray.Tell(FromQt(QString("quite a long sentence ").repeated(20)));
    EXPECT_TRUE(ComesTrue([&] { return words->isVisible(); }));
    EXPECT_LE(words->heightForWidth(words->width()), words->height());
    EXPECT_TRUE(ComesTrue([&] { return StandIn()->screen()->geometry().contains(StandIn()->geometry()); }));
    input.Click(place, 1);
    EXPECT_TRUE(ComesTrue([&] { return !words->isVisible() && IconPlace() == place; }));
}

TEST_F(StandInTest, StaysOnTopInTheLowerRightCornerAndCannotBeClosed) {
    EXPECT_TRUE(ComesTrue([this] {
        for (const std::string& state : input.WindowState(*StandIn()))
            if (state == "_NET_WM_STATE_ABOVE") return true;
        return false;
    }));
    const QRect screen = StandIn()->screen()->geometry();
    EXPECT_TRUE(screen.contains(StandIn()->geometry()));
    EXPECT_GT(StandIn()->x(), screen.center().x());
    EXPECT_GT(StandIn()->y(), screen.center().y());
    StandIn()->close();
    Settle();
    EXPECT_NE(StandIn(), nullptr);
}

TEST_F(StandInTest, IsDraggedWithoutAClick) {
    const QPoint before = input.MiddleOf(*StandIn());
    QPoint place = before;
    input.MoveTo(place);
    input.Press(1);
    // The window manager takes the drag over somewhere on the way, and tells Qt at its end.
    EXPECT_TRUE(ComesTrue([&] {
        place -= QPoint(5, 5);
        input.MoveTo(place);
        return before.x() - input.MiddleOf(*StandIn()).x() > 100;
    }));
    input.Release(1);
    Settle();
    EXPECT_TRUE(window.Messages.empty());
}

TEST_F(StandInTest, TakesTheKeyboardToo) {
    ClickKey(StandIn(), Qt::Key_Space);
    EXPECT_TRUE(Comes(513));
    ClickKey(StandIn(), Qt::Key_Menu);
    EXPECT_TRUE(Comes(516));
}

TEST(PopupMenusTest, TheMenuPopsUpAtTheMouseAndItsEntriesClick) {
    Form form("form", "");
    MenuEntry show(form, "mnuTrayShow", "Show");
    MenuEntry quit(form, "mnuTrayQuit", "Quit");
    Menu menu(form, "mnuTray", {&show, &quit});
    std::string clicked;
    show.Click = [&] { clicked = "show"; };
    quit.Click = [&] { clicked = "quit"; };
    PopupMenus menus;
    const Ticket attached = form.Attach(menus);
    RealInput input;

    const QPoint place(300, 200);
    input.MoveTo(place);
    ASSERT_TRUE(ComesTrue([&] { return QCursor::pos() == place; }));
    form.PopupMenu(menu);
    ASSERT_TRUE(ComesTrue([] { return FindByName("mnuTray") != nullptr; }));
    auto* shown = static_cast<QMenu*>(FindByName("mnuTray"));
    ASSERT_TRUE(WaitForWindowExposed(shown));
    EXPECT_LE((shown->pos() - place).manhattanLength(), 4);
    ASSERT_EQ(shown->actions().size(), 2);
    EXPECT_EQ(shown->actions()[1]->text(), "Quit");

    input.Click(shown->mapToGlobal(shown->actionGeometry(shown->actions()[1]).center()), 1);
    EXPECT_TRUE(ComesTrue([&] { return clicked == "quit"; }));
    EXPECT_TRUE(ComesTrue([] { return FindByName("mnuTray") == nullptr; }));
}

}  // namespace
}  // namespace orvelle::qt
