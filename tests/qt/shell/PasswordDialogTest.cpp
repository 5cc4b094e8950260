// Voice servers' passwords: asked for one at a time, without holding anything up.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <memory>
#include <vector>

#include "adapters/qt/services/QtVoiceDialogs.h"
#include "adapters/qt/windows/PasswordDialog.h"
#include "tests/qt/shell/Waiting.h"

namespace orvelle::qt {
namespace {

class PasswordDialogTest : public testing::Test {
protected:
    using Answer = std::optional<std::string>;

    Ticket Ask(const std::string& server, PasswordQuestion why = PasswordQuestion::First) {
        return dialogs->AskPassword(server, why, [this](const Answer& answer) { answers.push_back(answer); });
    }

    // The one that is seen; null for none.
    static PasswordDialog* Shown() {
        PasswordDialog* found = nullptr;
        int count = 0;
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* dialog = qobject_cast<PasswordDialog*>(window); dialog != nullptr && dialog->isVisible()) {
                found = dialog;
                ++count;
            }
        EXPECT_LE(count, 1);
        return found;
    }
    static std::string ServerOf(const PasswordDialog& shown) {
        return shown.findChild<QLabel*>("PasswordServer")->text().toStdString();
    }
    static void Type(PasswordDialog& shown, const QString& text) {
        auto* field = shown.findChild<QLineEdit*>("Password");
        TypeText(field, text);
        ClickKey(field, Qt::Key_Return);
    }

    std::unique_ptr<QtVoiceDialogs> dialogs = std::make_unique<QtVoiceDialogs>([] { return nullptr; });
    std::vector<Answer> answers;
};

TEST_F(PasswordDialogTest, AskedAgainItSaysThatTheAnswerWasNotRight) {
    const Ticket first = Ask("one");
    EXPECT_EQ(Shown()->findChild<QLabel*>("PasswordWrong"), nullptr);
    Type(*Shown(), "a");
    const Ticket again = Ask("one", PasswordQuestion::AfterWrong);
    ASSERT_NE(Shown(), nullptr);
    EXPECT_EQ(Shown()->findChild<QLabel*>("PasswordWrong")->text(), "That password was not right.");
    EXPECT_EQ(Shown()->findChild<QLineEdit*>("Password")->text(), "");
    QDir().mkpath(PICTURES);
    EXPECT_TRUE(Shown()->grab().save(PICTURES "/password-again.png"));
}

TEST_F(PasswordDialogTest, WhatIsTypedIsTheAnswer) {
    const Ticket ticket = Ask("voice.example:64739");
    PasswordDialog* shown = Shown();
    ASSERT_NE(shown, nullptr);
    EXPECT_FALSE(shown->isModal());
    EXPECT_EQ(ServerOf(*shown), "voice.example:64739");
    auto* field = shown->findChild<QLineEdit*>("Password");
    EXPECT_EQ(field->echoMode(), QLineEdit::Password);
    ClickKey(field, Qt::Key_Return);  // nothing was typed yet
    EXPECT_TRUE(answers.empty());
    field->insert("\u00e4");
    Type(*shown, " sesam");
    EXPECT_EQ(answers, std::vector<Answer>{"\u00e4 sesam"});
    EXPECT_EQ(field->text(), "");
    EXPECT_EQ(Shown(), nullptr);
}

TEST_F(PasswordDialogTest, WhoClosesItGivesUp) {
    const Ticket first = Ask("one");
    ClickKey(Shown(), Qt::Key_Escape);
    EXPECT_EQ(answers, std::vector<Answer>{std::nullopt});
    const Ticket second = Ask("two");
    CloseFromTheFrame(Shown());
    EXPECT_EQ(answers.size(), 2U);
    EXPECT_EQ(answers.back(), std::nullopt);
}

TEST_F(PasswordDialogTest, QuestionsComeOneAtATime) {
    const Ticket first = Ask("one");
    const Ticket second = Ask("two");
    const Ticket third = Ask("three");
    for (const char* server : {"one", "two", "three"}) {
        ASSERT_NE(Shown(), nullptr);
        EXPECT_EQ(ServerOf(*Shown()), server);
        Type(*Shown(), server);
    }
    EXPECT_EQ(answers, (std::vector<Answer>{"one", "two", "three"}));
    EXPECT_EQ(Shown(), nullptr);
}

TEST_F(PasswordDialogTest, AQuestionIsTakenBackWithItsTicket) {
    Ticket first = Ask("one");
    Ticket second = Ask("two");
    Ticket third = Ask("three");
    second.End();
    EXPECT_EQ(ServerOf(*Shown()), "one");
    first.End();
    ASSERT_NE(Shown(), nullptr);
    EXPECT_EQ(ServerOf(*Shown()), "three");
    third.End();
    EXPECT_EQ(Shown(), nullptr);
    EXPECT_TRUE(answers.empty());
}

TEST_F(PasswordDialogTest, AnAnswerMayAskAgainAndEndItsOwnTicket) {
    Ticket ticket, again;
    ticket = dialogs->AskPassword("one", PasswordQuestion::First, [&](const Answer&) {
        ticket.End();
        again = Ask("one");
    });
    Type(*Shown(), "wrong");
    ASSERT_NE(Shown(), nullptr);
    Type(*Shown(), "right");
    EXPECT_EQ(answers, std::vector<Answer>{"right"});
}

TEST_F(PasswordDialogTest, TicketsMayOutliveTheDialogs) {
    Ticket first = Ask("one");
    Ticket second = Ask("two");
    dialogs.reset();
    EXPECT_EQ(Shown(), nullptr);
    first.End();
    EXPECT_TRUE(answers.empty());
}

TEST_F(PasswordDialogTest, AnyNameOfAServerIsShownAsItIs) {
    const std::string name = "<b>voice</b>&amp;" + std::string(1000, 'x');
    const Ticket ticket = Ask(name);
    PasswordDialog* shown = Shown();
    EXPECT_EQ(ServerOf(*shown), name);
    EXPECT_EQ(shown->findChild<QLabel*>("PasswordServer")->textFormat(), Qt::PlainText);
    EXPECT_LT(shown->width(), 640);
}

TEST_F(PasswordDialogTest, AssistiveProgramsReadNoPassword) {
    const Ticket ticket = Ask("one");
    auto* field = Shown()->findChild<QLineEdit*>("Password");
    TypeText(field, "secret");
    QAccessibleInterface* reached = QAccessible::queryAccessibleInterface(field);
    EXPECT_EQ(reached->text(QAccessible::Name), "Password");
    EXPECT_TRUE(reached->state().passwordEdit);
    EXPECT_FALSE(reached->text(QAccessible::Value).contains("secret"));
    EXPECT_FALSE(reached->textInterface()->text(0, 6).contains("secret"));
}

TEST(WipeTest, LeavesNothing) {
    std::string text = "a password that is long enough to lie elsewhere";
    const char* place = text.data();
    Wipe(text);
    EXPECT_EQ(text, "");
    EXPECT_EQ(std::string(place + 1, 8), std::string(8, '\0'));
}

}  // namespace
}  // namespace orvelle::qt
