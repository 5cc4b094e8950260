// The panel in the desktop's own places: programs that are installed are found, and "Autostart" is an entry there.
#include <QDir>
#include <QFile>

#include "tests/endtoend/PanelTest.h"

namespace orvelle {

namespace {

class PlacesTest : public PanelTest {
protected:
    ~PlacesTest() override { QFile::remove(Entry()); }

    // The user's own folder of entries; the display's home is this test program's alone.
    static QString Entry() {
        return QDir(qEnvironmentVariable("XDG_DATA_HOME")).filePath("applications/speak.desktop");
    }
    void InstallTeamSpeak() const {
        QDir().mkpath(QFileInfo(Entry()).path());
        QFile entry(Entry());
        ASSERT_TRUE(entry.open(QFile::WriteOnly));
        entry.write("[Desktop Entry]\nType=Application\nName=Speak\nMimeType=x-scheme-handler/teamspeak;\nExec=\"" +
                    QByteArray::fromStdString(VoiceProgram()) + "\" %u\n");
    }
};

TEST_F(PlacesTest, RescanFindsTheProgramThatOpensTeamSpeaksUrlsAndItIsStarted) {
    ASSERT_NO_FATAL_FAILURE(Open());
    ShowPage("Teamspeak");
    EXPECT_EQ(panel.TSPath.Text, "");
    ASSERT_NO_FATAL_FAILURE(InstallTeamSpeak());
    user.Click(OfPanel("TSRescan"));
    EXPECT_TRUE(ComesTrue([this] { return std::string(panel.TSPath.Text) == '"' + VoiceProgram() + "\" "; }));

    house.Computer.Processes().WinExec(panel.TSPath.Text, ShowMinimisedInactive);
    EXPECT_TRUE(ComesTrue([this] { return VoiceCommands() == "|\n"; })) << VoiceCommands();
}

TEST_F(PlacesTest, AutostartIsAnEntryOfThisPanel) {
    const QString file = QDir(qEnvironmentVariable("XDG_CONFIG_HOME")).filePath("autostart/OrvelleCP.desktop");
    ASSERT_NO_FATAL_FAILURE(Open());
    ShowPage("Options");
    user.Click(OfPanel("Autostart"));
    EXPECT_TRUE(ComesTrue([&] { return QFile::exists(file); }));
    user.Click(OfPanel("Autostart"));
    EXPECT_TRUE(ComesTrue([&] { return !QFile::exists(file); }));
}

}  // namespace

}  // namespace orvelle
