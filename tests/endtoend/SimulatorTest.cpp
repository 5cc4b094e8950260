// The window of the simulator's program over its own broker.
#include <gtest/gtest.h>

#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTemporaryDir>

#include "adapters/looks/Text.h"
#include "adapters/qt/services/QtEventLoop.h"
#include "apps/SimulatorProgram.h"
#include "apps/SimulatorWindow.h"
#include "tests/endtoend/User.h"
#include "tests/mqtt/broker/BrokerProcess.h"

namespace orvelle {

namespace {

SimulatorCommand Serving(const QString& folder) {
    SimulatorCommand command;
    command.Data = folder.toStdString();
    command.Port = mqtt::FreePort();
    return command;
}

TEST(SimulatorTest, AnAddedComputerHasACodeAndIsListed) {
    const QTemporaryDir folder;
    qt::QtEventLoop loop;
    SimulatorProgram program(loop, Serving(folder.filePath("data")));
    SimulatorWindow window(program);
    ASSERT_EQ(program.Open(), "");
    window.show();
    auto& computers = *window.findChild<QListWidget*>("Computers");
    ASSERT_TRUE(ComesTrue([&] { return program.AtBroker.IsThere() && computers.count() == 1; }));
    window.findChild<QPushButton*>("AddComputer")->click();
    EXPECT_TRUE(mqtt::ReadJoinCode(FromQt(window.findChild<QLabel*>("Code")->text())));
    EXPECT_TRUE(ComesTrue([&] { return computers.count() == 2 && computers.item(1)->text() == "c02"; }));
    program.Close();
}

}  // namespace

}  // namespace orvelle
