// The window for joining a set-up, on a played side: what the user does there and what is shown, and how it looks.
#include "deck/join/JoinDialog.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>

#include "adapters/looks/Signs.h"
#include "adapters/looks/Theme.h"
#include "adapters/qt/services/QtEventLoop.h"
#include "deck/DeckWindow.h"
#include "platform/sides/FarSides.h"
#include "tests/deck/PlayedJoinSide.h"
#include "tests/qt/shell/WidgetInput.h"

namespace orvelle {
namespace {

class JoinDialogRig : public testing::Test {
protected:
    void Open() {
        dialog = std::make_unique<deck::JoinDialog>(side);
        dialog->show();
        dialog->activateWindow();
        EXPECT_TRUE(WaitForWindowActive(dialog.get()));
        Settle();
    }
    static void Settle() {
        for (int round = 0; round < 20; ++round) {
            QCoreApplication::sendPostedEvents();
            QCoreApplication::processEvents();
        }
    }
    template <typename Widget>
    Widget& At(const char* name) {
        auto* widget = dialog->findChild<Widget*>(name);
        if (!widget) ADD_FAILURE() << "no widget " << name;
        return *widget;
    }
    bool IsEnabled(const char* name) { return At<QWidget>(name).isEnabled(); }
    std::string Sentence() { return At<QLabel>("JoinSentence").text().toStdString(); }
    std::string Code() { return At<QLineEdit>("JoinCode").text().toStdString(); }
    void Type(const QString& text) {
        TypeText(&At<QLineEdit>("JoinCode"), text);
        Settle();
    }

    void AnswerLeaving(QMessageBox::StandardButton answer) {
        // Without a window manager nothing gives the focus back after a question.
        dialog->activateWindow();
        EXPECT_TRUE(WaitForWindowActive(dialog.get()));
        ClickKey(dialog.get(), Qt::Key_L, Qt::AltModifier);
        const auto question = [this] { return dialog->findChild<QMessageBox*>("AsksToLeave"); };
        ASSERT_TRUE(WaitFor([&] { return question() != nullptr; }));
        EXPECT_EQ(question()->defaultButton(), question()->button(QMessageBox::No));
        question()->button(answer)->click();
        EXPECT_TRUE(WaitFor([&] { return question() == nullptr; }));
    }

    qt::QtEventLoop loop;
    PlayedJoinSide side{loop};
    std::unique_ptr<deck::JoinDialog> dialog;
};

class JoinDialogTest : public JoinDialogRig {};

TEST_F(JoinDialogTest, ACodeIsGroupedWhileItIsTypedAndJoinsByEnter) {
    Open();
    EXPECT_TRUE(At<QWidget>("JoinCode").hasFocus());
    EXPECT_FALSE(IsEnabled("JoinSetUp"));
    Type("0w0020g");
    EXPECT_EQ(Code(), "0W00-20G");
    Type("30g2gc1r8 1450-p32a99");
    EXPECT_EQ(Code(), PlayedJoinSide::RightCode) << "what is too much is left out";
    EXPECT_TRUE(IsEnabled("JoinSetUp"));
    ClickKey(&At<QLineEdit>("JoinCode"), Qt::Key_Return);
    Settle();
    EXPECT_EQ(side.Asked,
              (std::vector<std::string>{"look", std::string("join ") + PlayedJoinSide::RightCode + " at "}));
    EXPECT_FALSE(IsEnabled("JoinSetUp"));
    EXPECT_FALSE(IsEnabled("JoinCode"));
    EXPECT_TRUE(IsEnabled("CancelJoin"));
    EXPECT_EQ(At<QProgressBar>("JoinProgress").maximum(), 0) << "it moves";
    side.Answer(JoinState::Failed, "Nobody answers.");
    Settle();
    EXPECT_EQ(Sentence(), "Nobody answers.");
    EXPECT_TRUE(IsEnabled("JoinSetUp"));
    EXPECT_FALSE(IsEnabled("CancelJoin"));
    EXPECT_EQ(At<QProgressBar>("JoinProgress").maximum(), 1) << "it rests";
}

TEST_F(JoinDialogTest, TheCursorStaysWhereItIsInACode) {
    Open();
    Type("0W002");
    At<QLineEdit>("JoinCode").setCursorPosition(1);
    Type("xy");
    EXPECT_EQ(Code(), "0XYW-002");
    EXPECT_EQ(At<QLineEdit>("JoinCode").cursorPosition(), 3);
    ClickKey(&At<QLineEdit>("JoinCode"), Qt::Key_Backspace);
    EXPECT_EQ(Code(), "0XW0-02");
    EXPECT_EQ(At<QLineEdit>("JoinCode").cursorPosition(), 2);
}

TEST_F(JoinDialogTest, AMistypedCodeIsToldInTheFieldBeforeAnythingIsTried) {
    Open();
    const QColor usual = At<QLineEdit>("JoinCode").palette().color(QPalette::Text);
    Type("0W00-20G3-0G2G-C1R8-1450-P32B");
    EXPECT_TRUE(Sentence().starts_with("The code is mistyped")) << Sentence();
    EXPECT_NE(At<QLineEdit>("JoinCode").palette().color(QPalette::Text), usual);
    EXPECT_FALSE(IsEnabled("JoinSetUp"));
    ClickKey(&At<QLineEdit>("JoinCode"), Qt::Key_Return);
    EXPECT_EQ(side.Asked, std::vector<std::string>{"look"});
    ClickKey(&At<QLineEdit>("JoinCode"), Qt::Key_Backspace);
    EXPECT_EQ(Sentence(), "");
    EXPECT_EQ(At<QLineEdit>("JoinCode").palette().color(QPalette::Text), usual);
    Type("A");
    EXPECT_TRUE(IsEnabled("JoinSetUp"));
}

TEST_F(JoinDialogTest, SetUpsThatAreFoundFillTheListAndThePickedOneTheHost) {
    Open();
    auto& list = At<QListWidget>("SeenSetUps");
    EXPECT_EQ(list.count(), 0);
    side.Network = {{"Club", "clubpc.local:8884"}, {"<b>Home</b>", "simpc.local"}};
    side.Answer(JoinState::Idle, "");
    Settle();
    ASSERT_EQ(list.count(), 2);
    EXPECT_EQ(list.item(1)->text(), "<b>Home</b> at simpc.local");
    EXPECT_EQ(At<QLineEdit>("JoinHost").text(), "");
    list.setFocus();
    ClickKey(&list, Qt::Key_Down);
    ClickKey(&list, Qt::Key_End);
    EXPECT_EQ(At<QLineEdit>("JoinHost").text(), "simpc.local");
    side.Network.erase(side.Network.begin());
    side.Answer(JoinState::Idle, "");
    Settle();
    EXPECT_EQ(list.count(), 1);
    EXPECT_EQ(At<QLineEdit>("JoinHost").text(), "simpc.local") << "what was picked stays";
}

TEST_F(JoinDialogTest, AJoinedSetUpIsShownAndCanBeLeftOrMoved) {
    side.Place = {"Home", "simpc:8884", 7};
    Open();
    EXPECT_EQ(At<QLabel>("JoinedSetUp").text(), "Home, as computer 7");
    EXPECT_EQ(At<QLabel>("JoinedBroker").text(), "simpc:8884");
    EXPECT_FALSE(IsEnabled("JoinCode"));
    EXPECT_FALSE(IsEnabled("MoveToHost"));
    ClickKey(dialog.get(), Qt::Key_H, Qt::AltModifier);
    EXPECT_TRUE(At<QWidget>("JoinHost").hasFocus());
    TypeText(&At<QLineEdit>("JoinHost"), "other");
    ClickKey(&At<QLineEdit>("JoinHost"), Qt::Key_Return);
    AnswerLeaving(QMessageBox::No);
    AnswerLeaving(QMessageBox::Yes);
    EXPECT_TRUE(WaitFor([this] { return side.Asked.size() == 3; }));
    EXPECT_EQ(side.Asked, (std::vector<std::string>{"look", "move to other", "leave"}));
    side.Place.reset();
    side.Answer(JoinState::Succeeded, "This computer has left the set-up Home.");
    Settle();
    EXPECT_EQ(At<QLabel>("JoinedSetUp").text(), "None");
    EXPECT_TRUE(IsEnabled("JoinCode"));
    EXPECT_FALSE(IsEnabled("LeaveSetUp"));
}

TEST_F(JoinDialogTest, ClosedWhileItTriesItCancels) {
    Open();
    Type(PlayedJoinSide::RightCode);
    ClickMouse(&At<QPushButton>("JoinSetUp"), Qt::LeftButton);
    side.Asked.clear();
    dialog.reset();
    EXPECT_EQ(side.Asked, (std::vector<std::string>{"cancel", "look no more"}));
}

TEST_F(JoinDialogTest, EveryFieldHasATip) {
    Open();
    for (const char* name :
         {"LeaveSetUp", "SeenSetUps", "JoinHost", "JoinCode", "JoinSetUp", "MoveToHost", "CancelJoin"})
        EXPECT_FALSE(At<QWidget>(name).toolTip().isEmpty()) << name;
}

TEST_F(JoinDialogTest, TheDeckOpensItOnceAndOnlyWhereASetUpCanBeJoined) {
    FarSides sides;
    EXPECT_EQ(DeckWindow(sides).findChild<QPushButton*>("JoinASetUp"), nullptr);
    sides.Join = &side;
    DeckWindow window(sides);
    window.OpenIn({QPoint(0, 0), window.UsualSize()});
    auto* button = window.findChild<QPushButton*>("JoinASetUp");
    ASSERT_NE(button, nullptr);
    EXPECT_FALSE(button->toolTip().isEmpty());
    for (int times = 0; times < 2; ++times) {
        ClickMouse(button, Qt::LeftButton);
        Settle();
        EXPECT_EQ(window.findChildren<deck::JoinDialog*>().size(), 1);
    }
    window.findChild<deck::JoinDialog*>()->close();
    for (int round = 0; round < 3; ++round) QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(side.Asked, (std::vector<std::string>{"look", "look no more"}));
}

class JoinDeckLooks : public JoinDialogRig, public testing::WithParamInterface<Scheme> {
protected:
    JoinDeckLooks() { ApplyTheme(GetParam()); }

    void LookAt(const char* what) {
        for (const QWidget* widget : dialog->findChildren<QWidget*>()) {
            if (!widget->isVisible()) continue;
            const QString name = widget->objectName();
            if (const auto* label = qobject_cast<const QLabel*>(widget); label && label->wordWrap()) {
                EXPECT_GE(label->height(), label->heightForWidth(label->width())) << what << ": " << name.toStdString();
            } else if (qobject_cast<const QPushButton*>(widget) || qobject_cast<const QLabel*>(widget)) {
                EXPECT_GE(widget->width(), widget->minimumSizeHint().width()) << what << ": " << name.toStdString();
                EXPECT_GE(widget->height(), widget->minimumSizeHint().height()) << what << ": " << name.toStdString();
            }
        }
        const auto& code = At<QLineEdit>("JoinCode");
        constexpr int AroundText = 12;
        EXPECT_GE(code.width(), code.fontMetrics().horizontalAdvance(PlayedJoinSide::RightCode) + AroundText);
        QDir().mkpath(PICTURES);
        const QString file = QString("%1/join-%2-%3-%4x.png")
                                 .arg(PICTURES, what)
                                 .arg(GetParam() == Scheme::Dark ? "dark" : "light")
                                 .arg(dialog->devicePixelRatio());
        EXPECT_TRUE(dialog->grab().save(file));
    }
};

TEST_P(JoinDeckLooks, NothingIsClippedAtAnySize) {
    side.Network = {{"Home", "simpc.local"},
                    {"Flying club of the whole valley", "a-computer-with-a-long-name.local:8884"}};
    Open();
    Type(PlayedJoinSide::RightCode);
    LookAt("ready");
    dialog->resize(dialog->minimumSizeHint());
    side.Answer(
        JoinState::Failed,
        "The set-up at a-computer-with-a-long-name.local:8884 doesn't take this code: it is another set-up's, or "
        "taken back.");
    Settle();
    LookAt("refused");
    dialog->resize(700, 600);
    Settle();
    LookAt("large");
    side.Place = {"Flying club of the whole valley", "a-computer-with-a-long-name.local:8884", 99};
    side.Answer(JoinState::Succeeded, "This computer is c99 of the set-up Flying club of the whole valley now.");
    Settle();
    LookAt("joined");
}

INSTANTIATE_TEST_SUITE_P(Palettes, JoinDeckLooks, testing::Values(Scheme::Light, Scheme::Dark));

}  // namespace
}  // namespace orvelle
