// An error that leaves a handler reaches the program, wherever in the loop the handler ran.
#include <gtest/gtest.h>

#include <QDialog>
#include <QPushButton>
#include <QTimer>

#include "adapters/qt/services/Application.h"
#include "adapters/qt/services/QtEventLoop.h"
#include "adapters/qt/services/QtTimers.h"
#include "platform/RuntimeError.h"
#include "platform/controls/Form.h"
#include "platform/controls/Timer.h"
#include "tests/qt/shell/Main.h"
#include "tests/qt/shell/ToleratedLeaks.h"
#include "tests/qt/shell/Waiting.h"
#include "tests/qt/shell/WidgetInput.h"

namespace orvelle::qt {
namespace {

class FailureTest : public testing::Test {
protected:
    FailureTest() { Failures().clear(); }

    bool FailureComes() {
        return ComesTrue([] { return !Failures().empty(); });
    }
};

TEST_F(FailureTest, OfAPostedTaskIsTold) {
    QtEventLoop loop;
    loop.Post([] { throw RuntimeError(RuntimeError::TypeMismatch); });
    EXPECT_TRUE(FailureComes());
    EXPECT_EQ(Failures(), std::vector<int>{RuntimeError::TypeMismatch});
}

TEST_F(FailureTest, OfAButtonsClickIsTold) {
    [[maybe_unused]] const ToleratedLeaks leaks;
    QPushButton button;
    QObject::connect(&button, &QPushButton::clicked, [] { throw RuntimeError(RuntimeError::TypeMismatch); });
    button.show();
    ASSERT_TRUE(WaitForWindowExposed(&button));
    ClickMouse(&button, Qt::LeftButton);
    EXPECT_EQ(Failures(), std::vector<int>{RuntimeError::TypeMismatch});
}

TEST_F(FailureTest, OfATimersTickIsTold) {
    Form form("form", "");
    Timer timer(form, "timer", 1);
    QtTimers timers;
    const Ticket attached = form.Attach(timers);
    timer.Tick = [&] {
        timer.Enabled = false;
        throw RuntimeError(RuntimeError::Overflow);
    };
    timer.Enabled = true;
    EXPECT_TRUE(FailureComes());
    EXPECT_EQ(Failures(), std::vector<int>{RuntimeError::Overflow});
}

TEST_F(FailureTest, InTheLoopOfADialogIsToldWhileTheDialogIsOpen) {
    QDialog dialog;
    bool wasOpen = false;
    QTimer::singleShot(0, &dialog, [] { throw RuntimeError(RuntimeError::SubscriptOutOfRange); });
    QTimer::singleShot(1, &dialog, [&] {
        wasOpen = dialog.isVisible() && !Failures().empty();
        dialog.reject();
    });
    dialog.exec();
    EXPECT_TRUE(wasOpen);
    EXPECT_EQ(Failures(), std::vector<int>{RuntimeError::SubscriptOutOfRange});
}

TEST_F(FailureTest, BeforeTheLoopEndsTheRun) {
    auto& application = static_cast<Application&>(*qApp);
    EXPECT_EQ(application.Run([] { throw RuntimeError(RuntimeError::TypeMismatch); }), EXIT_FAILURE);
    EXPECT_EQ(Failures(), std::vector<int>{RuntimeError::TypeMismatch});
}

TEST_F(FailureTest, LeavesNoSettingForProgramsThatAreStarted) {
    EXPECT_FALSE(qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION"));
}

}  // namespace
}  // namespace orvelle::qt
