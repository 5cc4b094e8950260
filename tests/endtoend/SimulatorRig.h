// The simulator's program with its window, over its own broker, in a folder and on a port of the test's own.
#pragma once

#include <gtest/gtest.h>

#include <QTableWidget>
#include <QTemporaryDir>
#include <memory>
#include <string>
#include <vector>

#include "adapters/qt/services/QtEventLoop.h"
#include "apps/FreePort.h"
#include "apps/SimulatorProgram.h"
#include "apps/SimulatorWindow.h"
#include "tests/endtoend/User.h"

namespace orvelle {

class SimulatorRig : public testing::Test {
protected:
    SimulatorRig() {
        command.Data = folder.filePath("data").toStdString();
        command.Port = FreePort();
        command.Name = "Home";
        command.FlightGearPort = 0;
    }
    ~SimulatorRig() override {
        if (program) program->Close();
    }

    void Open() {
        program = std::make_unique<SimulatorProgram>(loop, command);
        window = std::make_unique<SimulatorWindow>(*program);
        program->Told = [this](const std::string& sentence) { window->Tell(sentence); };
        window->EndAsked = [this] { ++endsAsked; };
        window->show();
        ASSERT_EQ(program->Open(), "");
    }
    bool IsThere() {
        return ComesTrue([this] { return program->AtBroker.IsThere(); });
    }
    template <typename Widget>
    Widget& At(const char* name) {
        auto* widget = window->findChild<Widget*>(name);
        if (!widget) throw std::runtime_error(std::string("no widget ") + name);
        return *widget;
    }
    // A row of the table of computers, "" where there is none.
    std::string Row(int row) {
        const auto& table = At<QTableWidget>("Computers");
        std::string text;
        for (int column = 0; row < table.rowCount() && column < table.columnCount(); ++column)
            text += (column ? "|" : "") + table.item(row, column)->text().toStdString();
        return text;
    }

    const QTemporaryDir folder;
    qt::QtEventLoop loop;
    SimulatorCommand command;
    std::unique_ptr<SimulatorProgram> program;
    std::unique_ptr<SimulatorWindow> window;
    int endsAsked = 0;
};

}  // namespace orvelle
