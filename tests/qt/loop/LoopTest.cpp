// Qt's event loop in a program that has no windows.
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>

#include "adapters/qt/services/QtEventLoop.h"
#include "platform/RuntimeError.h"
#include "tests/shared/EventLoopDescriptorCases.h"
#include "tests/shared/EventLoopTaskCases.h"

namespace orvelle {
namespace {

// Keeps the errors that left a task.
class TestApplication : public QCoreApplication {
public:
    TestApplication(int& count, char** arguments) : QCoreApplication(count, arguments) {}

    bool notify(QObject* receiver, QEvent* event) override {
        try {
            return QCoreApplication::notify(receiver, event);
        } catch (const RuntimeError& error) {
            Failures.push_back(error.Number);
            return true;
        }
    }

    std::vector<int> Failures;
};

TestApplication& Application() { return static_cast<TestApplication&>(*QCoreApplication::instance()); }

struct QtDriver {
    QtDriver() { Failures.clear(); }

    static std::unique_ptr<EventLoop> NewLoop() { return std::make_unique<qt::QtEventLoop>(); }
    static bool Until(EventLoop&, const std::function<bool()>& isTrue) {
        const QDeadlineTimer deadline(60'000);
        while (!isTrue() && !deadline.hasExpired()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
        return isTrue();
    }

    std::vector<int>& Failures = Application().Failures;
};

INSTANTIATE_TYPED_TEST_SUITE_P(ByQt, EventLoopTasks, QtDriver);
INSTANTIATE_TYPED_TEST_SUITE_P(ByQt, EventLoopDescriptors, QtDriver);

TEST(QtEventLoopTest, ATaskThatEndedItsTicketIsNotEnteredByALoopInsideIt) {
    qt::QtEventLoop loop;
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    ASSERT_EQ(write(ends[1], "a", 1), 1);
    int entered = 0;
    Ticket ticket = loop.WhenReadable(ends[0], [&] {
        ++entered;
        ticket.End();
        for (int turn = 0; turn < 5; ++turn) QCoreApplication::processEvents();
    });
    EXPECT_TRUE(QtDriver::Until(loop, [&] { return entered > 0; }));
    EXPECT_EQ(entered, 1);
    for (const int end : ends) close(end);
}

}  // namespace
}  // namespace orvelle

int main(int argumentCount, char** arguments) {
    testing::InitGoogleTest(&argumentCount, arguments);
    orvelle::TestApplication application(argumentCount, arguments);
    return RUN_ALL_TESTS();
}
