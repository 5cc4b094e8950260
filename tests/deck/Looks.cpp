// How the deck looks: in each palette, with the desktop's letters and with those of 12 points, nothing is clipped or
// left out, and a picture of each page is left for a look.
#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>

#include "adapters/looks/Theme.h"
#include "deck/fields/Readout.h"
#include "tests/deck/DeckRig.h"

namespace orvelle {
namespace {

class DeckLooks : public DeckRig, public testing::WithParamInterface<std::tuple<Scheme, int>> {
protected:
    DeckLooks() {
        ApplyTheme(std::get<Scheme>(GetParam()));
        QFont font = usualFont;
        if (IsLarge()) font.setPointSize(std::get<int>(GetParam()));
        QApplication::setFont(font);
        deck = std::make_unique<DeckWindow>(Sides());
        // Its size where the screen is large enough; the offscreen one is not at scale 2.
        deck->resize(deck->UsualSize().width(), 700);
        deck->show();
        PlayFlight();
    }
    ~DeckLooks() override {
        deck.reset();
        QApplication::setFont(usualFont);
    }

    static bool IsLarge() { return std::get<int>(GetParam()) > 0; }

    // A moment with something in every field.
    void PlayFlight();

    static QString SchemeName() { return std::get<Scheme>(GetParam()) == Scheme::Dark ? "dark" : "light"; }

    const QFont usualFont = QApplication::font();
    std::unique_ptr<DeckWindow> deck;
};

void DeckLooks::PlayFlight() {
    ConnectAll();
    auto& network = setUp.NetworkLink;
    setUp.SimulatorLink.SeeServer("127.0.0.1");
    setUp.SimulatorLink.SeeServer("TOWERPC");
    network.SetStatus(1);
    network.SetCallsign("ORV123");
    network.SetFrequency(0, "122.800");
    network.SetFrequency(1, "121.500");
    network.SetVoice(0, {1, "rw.example.net", "Innsbruck Tower", "pilot", "secret"});
    network.SetVoice(1, {3, "voice.example.net", "lowi_app", "1234567", "secret"});
    network.SetReceive("B");
    network.SetTransmit("1");
    for (const char* role : {"RWCom1", "VVL"}) {
        tessaly.CreateInterface("VOICE", role);
        tessaly.CloseInterface();
    }
    network.Claim("COCKPIT2", "TSCom1", VoiceRecordType);
    tessaly.OpenInterface(2);
    for (Long index = 0; index < 28; ++index) tessaly.SetParam(index, index < 2 ? 3 + 4 * index : 0);
    tessaly.SetParam(8, 2);
    tessaly.SetParamText(8, "voice.example.net/lowi_app");
    tessaly.CloseInterface();
    Settle();

    heldKeys.Hold({"Ctrl", "F12"});
    setUp.VVL.Start(3);
    Settle();
    setUp.VVL.RoomJoin(1, "ORV123 (1234567)", "voice.example.net/lowi_app");
    setUp.VVL.ChannelOutput(1, 0, true);
    setUp.VVL.RoomMute(1, false);
    Settle();
    setUp.VVL.SetRoomAudio(1, true);
    setUp.VVL.SetJoinDelay(60'000);
    setUp.VVL.RoomJoin(0, "ORV123 (pilot)", "voice.example.net/tower");
    velmarc.PlaySound("Tessaly\\RADIO_ONCHANNEL.wav");
    velmarc.PlaySound("Tessaly\\RADIO_NOCHANNEL.wav");
    deck->TellOfProgram("No program was started, because there is no file \"/home/pilot/RogerWilco/roger.exe\".");
    network.WriteParameter(2, 13, 1);
    setUp.SimulatorLink.PressKey("Ctrl");
    setUp.SimulatorLink.PressKey("F8");
    Settle();
}

TEST_P(DeckLooks, NothingIsClipped) {
    auto& pages = *deck->findChild<QTabWidget*>("DeckPages");
    for (int index = 0; index < pages.count(); ++index) {
        pages.setCurrentIndex(index);
        Settle();
        const auto& area = *qobject_cast<QScrollArea*>(pages.widget(index));
        if (!IsLarge()) {
            EXPECT_EQ(area.verticalScrollBar()->maximum(), 0) << "page " << index << " is too high";
        }
        EXPECT_EQ(area.horizontalScrollBar()->maximum(), 0) << "page " << index << " is too wide";
        for (const QWidget* widget : area.findChildren<QWidget*>()) {
            if (!widget->isVisible()) continue;
            const bool showsText = qobject_cast<const QAbstractButton*>(widget) ||
                                   qobject_cast<const QComboBox*>(widget) || qobject_cast<const QLabel*>(widget);
            if (!showsText) continue;
            const auto* readout = dynamic_cast<const deck::Readout*>(widget);
            const QSize needed =
                readout ? QSize(0, readout->heightForWidth(readout->width())) : widget->minimumSizeHint();
            EXPECT_GE(widget->width(), needed.width()) << widget->objectName().toStdString() << " on page " << index;
            EXPECT_GE(widget->height(), needed.height()) << widget->objectName().toStdString() << " on page " << index;
        }
        QDir().mkpath(PICTURES);
        const QString name = QString("%1/deck-%2-%3%4-%5x.png")
                                 .arg(PICTURES)
                                 .arg(index + 1)
                                 .arg(SchemeName(), IsLarge() ? "-large" : "")
                                 .arg(deck->devicePixelRatio());
        EXPECT_TRUE(deck->grab().save(name));
    }
}

INSTANTIATE_TEST_SUITE_P(Palettes, DeckLooks,
                         testing::Combine(testing::Values(Scheme::Light, Scheme::Dark), testing::Values(0, 12)));

}  // namespace
}  // namespace orvelle
