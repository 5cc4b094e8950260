// The panel as a program: how it begins and how it ends.
#include <QDir>

#include "tests/endtoend/StartedPanel.h"
#include "tests/store/LockedStore.h"

namespace orvelle {

namespace {

class ProcessTest : public StartedPanel {
protected:
    // The panel's window is on the screen; a message to the user is one more of the same name.
    bool Shows(const QProcess& process, int windows = 1) {
        return ComesTrue([&] {
            QProcess search;
            search.start("xdotool", {"search", "--onlyvisible", "--all", "--pid", QString::number(process.processId()),
                                     "--name", "^Orvelle Control Panel$"});
            search.waitForFinished();
            return search.readAllStandardOutput().count('\n') >= windows;
        });
    }
};

TEST_F(ProcessTest, ASecondInstanceEndsSilently) {
    QProcess first;
    Start(first);
    ASSERT_TRUE(Shows(first));
    QProcess second;
    Start(second);
    ASSERT_TRUE(IsOver(second));
    EXPECT_EQ(second.exitCode(), 0);
    EXPECT_EQ(second.readAllStandardOutput() + second.readAllStandardError(), "");
    EXPECT_EQ(first.state(), QProcess::Running);
    first.terminate();
    EXPECT_TRUE(IsOver(first));
}

TEST_F(ProcessTest, TheDoorsMessageEndsTheProgramInOrder) {
    QProcess panel;
    Start(panel);
    ASSERT_TRUE(Shows(panel));
    ASSERT_TRUE(user.Input.SendDoorMessage("OrvelleCP Stub1", 1237, 0, 0));
    ASSERT_TRUE(IsOver(panel));
    EXPECT_EQ(panel.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(panel.exitCode(), 0);
    // The unload kept the window's place.
    EXPECT_NE(Settings().GetSettingLong("OrvelleCP", "Top", -1), -1);
}

TEST_F(ProcessTest, AnotherMessageThroughTheDoorDoesNothing) {
    QProcess panel;
    Start(panel);
    ASSERT_TRUE(Shows(panel));
    ASSERT_TRUE(user.Input.SendDoorMessage("OrvelleCP Stub1", 1236, 0, 0));
    ASSERT_TRUE(user.Input.SendDoorMessage("OrvelleCP Stub1", 1237, 0, 0));
    ASSERT_TRUE(IsOver(panel));
    EXPECT_EQ(panel.exitCode(), 0);
}

TEST_F(ProcessTest, WhatASignalledEndCannotWriteIsTold) {
    QProcess panel;
    Start(panel);
    ASSERT_TRUE(Shows(panel));
    const store::LockedStore locked(folder.filePath("OrvelleCP/settings.sqlite").toStdString());
    panel.terminate();
    ASSERT_TRUE(IsOver(panel));
    const QByteArray said = panel.readAllStandardError();
    EXPECT_TRUE(said.contains("could not be written (database is locked). Lost are the changes of")) << said.data();
}

TEST_F(ProcessTest, WhatAnOrderlyEndCannotWriteIsToldInADialogToo) {
    QProcess panel;
    Start(panel);
    ASSERT_TRUE(Shows(panel));
    const store::LockedStore locked(folder.filePath("OrvelleCP/settings.sqlite").toStdString());
    QByteArray said;
    const auto says = [&] {
        said += panel.readAllStandardError();
        return said.contains("Lost are the changes of");
    };
    ASSERT_TRUE(user.Input.SendDoorMessage("OrvelleCP Stub1", 1237, 0, 0));
    ASSERT_TRUE(ComesTrue(says)) << said.data();
    EXPECT_EQ(panel.state(), QProcess::Running);
    EXPECT_TRUE(ComesTrue([&] {
        if (panel.state() == QProcess::Running) user.Do({"key", "Return"});
        return panel.state() == QProcess::NotRunning;
    }));
    EXPECT_EQ(panel.exitCode(), 0);
}

TEST_F(ProcessTest, WithoutADisplayOneSentenceTellsSo) {
    QProcess panel;
    Start(panel, PANEL_PROGRAM, ":4242");
    ASSERT_TRUE(IsOver(panel));
    EXPECT_EQ(panel.exitCode(), 1);
    const QByteArray said = panel.readAllStandardError();
    EXPECT_TRUE(said.startsWith("OrvelleCP: ") && said.count('\n') == 1 && said.contains("4242")) << said.toStdString();
}

TEST_F(ProcessTest, WithoutItsKeyGuardBesideItTellsSoAtTheStart) {
    const QString alone = folder.filePath("orvelle-panel");
    ASSERT_TRUE(QFile::copy(PANEL_PROGRAM, alone));
    QProcess panel;
    Start(panel, alone);
    EXPECT_TRUE(Shows(panel, 2));
    ASSERT_TRUE(user.Input.SendDoorMessage("OrvelleCP Stub1", 1237, 0, 0));
    EXPECT_TRUE(IsOver(panel));
    EXPECT_EQ(panel.exitCode(), 0);
}

TEST_F(ProcessTest, WithoutALockTellsSoAtTheStart) {
    QProcess panel;
    const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
    qputenv("XDG_RUNTIME_DIR", "/proc/none");
    Start(panel);
    qputenv("XDG_RUNTIME_DIR", before);
    EXPECT_TRUE(Shows(panel, 2));
    ASSERT_TRUE(user.Input.SendDoorMessage("OrvelleCP Stub1", 1237, 0, 0));
    EXPECT_TRUE(IsOver(panel));
}

TEST_F(ProcessTest, ADamagedStoreIsSetAsideAndToldAndThePanelLives) {
    QDir(folder.path()).mkpath("OrvelleCP");
    QFile damaged(folder.filePath("OrvelleCP/settings.sqlite"));
    ASSERT_TRUE(damaged.open(QFile::WriteOnly));
    damaged.write(QByteArray(8192, 'x'));
    damaged.close();
    QProcess panel;
    Start(panel);
    ASSERT_TRUE(Shows(panel));
    EXPECT_TRUE(ComesTrue([this] { return QDir(folder.filePath("OrvelleCP")).entryList({"*damaged*"}).size() == 1; }));
    user.Do({"search", "--sync", "--onlyvisible", "--pid", QString::number(panel.processId()), "--class", "."});
    ASSERT_TRUE(user.Input.SendDoorMessage("OrvelleCP Stub1", 1237, 0, 0));
    EXPECT_TRUE(IsOver(panel));
    EXPECT_EQ(panel.exitCode(), 0);
}

}  // namespace

}  // namespace orvelle
