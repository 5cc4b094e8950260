// A whole panel that finds its set-up on the network, or can't, and what it tells its user of that.
#include <QApplication>
#include <QLabel>
#include <chrono>
#include <csignal>
#include <memory>

#include "adapters/looks/Text.h"
#include "tests/avahi/AvahiRig.h"
#include "tests/endtoend/PanelTest.h"
#include "tests/linux/ChildProcess.h"
#include "tests/mqtt/broker/BrokerProcess.h"

namespace orvelle {

namespace {

// As the system reads addresses; a host is announced by a name with a dot that isn't a whole address.
constexpr const char* ThisComputer = "127.1";

// The network of the Avahi tests, with a loop of its own that nobody needs here.
class Network : public avahi::AvahiRig {
public:
    using AvahiRig::SignalDaemon;
    using AvahiRig::StartBus;
    using AvahiRig::StartDaemon;

    // A set-up that is announced to be at that host.
    static std::unique_ptr<linux::ChildProcess> Show(const std::string& setUp, const std::string& host, int port) {
        return std::make_unique<linux::ChildProcess>(std::vector<std::string>{"avahi-publish", "-s", "-H", host, setUp,
                                                                              "_orvelle._tcp", std::to_string(port),
                                                                              "version=1", "setup=" + setUp});
    }

private:
    void TestBody() override {}
};

class FoundTest : public PanelTest {
protected:
    void Join(const mqtt::SetUpSetting& setUp) {
        EXPECT_EQ(mqtt::WriteSetUpFile(folder.filePath("setup.json").toStdString(), setUp), "");
    }
    void PlaySimulator() {
        simulator = std::make_unique<linux::ChildProcess>(std::vector<std::string>{
            PLAYS_SIMULATOR, std::to_string(broker.Port()), mqtt::WriteKey(broker.SetUpOf(1).Key), ""});
    }
    bool IsConnected() {
        return ComesTrue([this] { return panel.Panels(4).Enabled(); });
    }
    // What the balloon beside the icon says, "" where there is none.
    static std::string Balloon() {
        std::string words;
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            if (!window->inherits("QBalloonTip") || !window->isVisible()) continue;
            for (const QLabel* label : window->findChildren<QLabel*>()) words += FromQt(label->text()) + "|";
        }
        return words;
    }
    static bool BalloonSays(const std::string& part) {
        return ComesTrue([&] { return Balloon().find(part) != std::string::npos; });
    }

    Network network;
    mqtt::BrokerProcess broker;
    std::unique_ptr<linux::ChildProcess> simulator;
};

TEST_F(FoundTest, ASetUpThatHasMovedIsReachedByItsNameAndServersAreListed) {
    network.StartBus();
    network.StartDaemon();
    const auto test = Network::Show("Test", ThisComputer, broker.Port());
    const auto club = Network::Show("Club", "club.example", 8884);
    mqtt::SetUpSetting setUp = broker.SetUpOf(2);
    setUp.Host = "no-such-host.invalid";
    Join(setUp);
    PlaySimulator();
    house.Open();
    EXPECT_TRUE(IsConnected());
    EXPECT_TRUE(ComesTrue([this] { return panel.VelmarcServer.IndexOf("club.example") >= 0; }));
    EXPECT_TRUE(ComesTrue([this] { return panel.VelmarcServer.IndexOf(ThisComputer) >= 0; }));
    EXPECT_TRUE(ComesTrue([this] { return panel.TessalyServer.IndexOf("club.example") >= 0; }));
}

TEST_F(FoundTest, AnAvahiDaemonThatHangsDelaysNothing) {
    network.StartBus();
    network.StartDaemon();
    network.SignalDaemon(SIGSTOP);
    Join(broker.SetUpOf(2));
    PlaySimulator();
    const auto begin = std::chrono::steady_clock::now();
    house.Open();
    EXPECT_TRUE(IsConnected());
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(20)) << "its answer is awaited for 25";
    network.SignalDaemon(SIGCONT);
}

TEST_F(FoundTest, WithoutAnAvahiDaemonTheRestWorksAndTheUserIsToldOnce) {
    Join(broker.SetUpOf(2));
    PlaySimulator();
    house.Open();
    EXPECT_TRUE(IsConnected());
    EXPECT_TRUE(BalloonSays("no Avahi daemon"));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(FoundTest, AComputerThatWasRemovedIsToldSo) {
    mqtt::SetUpSetting setUp = broker.SetUpOf(2);
    setUp.Key[0] ^= 1;
    Join(setUp);
    house.Open();
    EXPECT_TRUE(BalloonSays("this computer was removed"));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

}  // namespace

}  // namespace orvelle
