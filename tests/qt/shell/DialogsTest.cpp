// The real dialogs, answered as the user answers them.
#include <gtest/gtest.h>

#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QTemporaryDir>

#include "adapters/qt/services/QtDialogs.h"
#include "adapters/x11/Display.h"
#include "tests/qt/shell/Answerer.h"
#include "tests/qt/shell/Waiting.h"
#include "tests/qt/shell/WidgetInput.h"

namespace orvelle::qt {
namespace {

class FileDialogTest : public testing::Test {
protected:
    FileDialogTest() {
        for (const char* name : {"roger", "other"}) {
            QFile file(folder.filePath(name));
            EXPECT_TRUE(file.open(QFile::WriteOnly));
        }
        dialog.DialogTitle("Search for RogerWilco");
        dialog.Flags(4100);
    }

    std::string PathOf(const char* name) const { return folder.filePath(name).toStdString(); }

    QTemporaryDir folder;
    QtFileDialog dialog{[] { return nullptr; }};
};

TEST_F(FileDialogTest, GivesTheFileThatWasPicked) {
    dialog.FileName(PathOf("roger"));
    std::string title;
    std::string start;
    Answerer<QFileDialog> answer([&](QFileDialog& shown) {
        title = shown.windowTitle().toStdString();
        start = shown.directory().path().toStdString() + "/" + shown.findChild<QLineEdit*>()->text().toStdString();
        const auto* files = shown.findChild<QListView*>("listView");
        EXPECT_TRUE(ComesTrue([&] { return files->model()->rowCount(files->rootIndex()) == 2; }));
        auto* name = shown.findChild<QLineEdit*>();
        EXPECT_TRUE(ComesTrue([&] { return name->hasFocus(); }));
        name->selectAll();
        TypeText(name, "other");
        ClickKey(name, Qt::Key_Return);
    });
    dialog.ShowOpen();
    EXPECT_EQ(title, "Search for RogerWilco");
    EXPECT_EQ(start, PathOf("roger"));
    EXPECT_EQ(dialog.FileName(), PathOf("other"));
}

TEST_F(FileDialogTest, ACancelLeavesTheNameThatWasPutIn) {
    for (const std::string& name : {PathOf("roger"), std::string("\"C:\\Program Files\\rw.exe\" "), std::string()}) {
        dialog.FileName(name);
        Answerer<QFileDialog> answer([](QFileDialog& shown) { shown.reject(); });
        dialog.ShowOpen();
        EXPECT_EQ(dialog.FileName(), name);
    }
}

TEST_F(FileDialogTest, AQuotedPathIsFound) {
    dialog.FileName(std::string("\"").append(PathOf("roger")).append("\" "));
    std::string start;
    Answerer<QFileDialog> answer([&](QFileDialog& shown) {
        start = shown.directory().path().toStdString();
        shown.reject();
    });
    dialog.ShowOpen();
    EXPECT_EQ(start, folder.path().toStdString());
}

TEST(MessageBoxTest, ShowsItsTextWithOneButtonOverTheWindow) {
    QWidget window;
    window.show();
    QtMessageBox box([&] { return &window; });
    std::string text;
    int buttons = 0;
    QWidget* parent = nullptr;
    Answerer<QMessageBox> answer([&](QMessageBox& shown) {
        text = shown.text().toStdString();
        buttons = static_cast<int>(shown.buttons().size());
        parent = shown.parentWidget();
        shown.accept();
    });
    box.MsgBox("Missing icon <VTNRSP>");
    EXPECT_EQ(text, "Missing icon <VTNRSP>");
    EXPECT_EQ(buttons, 1);
    EXPECT_EQ(parent, &window);
}

TEST(MessageBoxTest, StandsAloneWhileTheWindowIsHidden) {
    QWidget window;
    QtMessageBox box([&] { return &window; });
    QWidget* parent = &window;
    Answerer<QMessageBox> answer([&](QMessageBox& shown) {
        parent = shown.parentWidget();
        shown.accept();
    });
    box.MsgBox("text");
    EXPECT_EQ(parent, nullptr);
}

TEST(DisplayTest, AMissingDisplayIsToldInOneSentence) {
    const QByteArray display = qgetenv("DISPLAY");
    EXPECT_EQ(MissingDisplay(), "");
    qputenv("DISPLAY", ":12345");
    EXPECT_EQ(MissingDisplay(), "the X display \":12345\" can't be opened");
    qunsetenv("DISPLAY");
    EXPECT_EQ(MissingDisplay(), "there is no X display to show the panel on (DISPLAY is not set)");
    qputenv("DISPLAY", display);
}

}  // namespace
}  // namespace orvelle::qt
