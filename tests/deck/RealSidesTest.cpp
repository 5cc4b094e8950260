// The deck's pages on far sides that are real: what can only be played has no part there.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>

#include "adapters/shared/SessionDesk.h"
#include "deck/DeckWindow.h"
#include "platform/sides/LinkSide.h"

namespace orvelle {
namespace {

class RealLink : public LinkSide {
public:
    void SetLink(LinkState state) override { link = state; }
    LinkState Link() const override { return link; }
    bool IsUp() const override { return link == LinkState::Up; }
    std::string Server() const override { return "simpc"; }
    PlayedLinkSide* Played() override { return nullptr; }
    Ticket Observe(std::function<void()>) override { return {}; }

private:
    LinkState link = LinkState::Down;
};

class RealNetwork : public SessionDesk {
public:
    bool WriteParameter(Long, Long, Long) override { return false; }
    bool WriteText(Long, Long, const std::string&) override { return false; }
    std::map<Long, InterfaceRecord> Records() const override {
        return {{131073, {.Owner = "COCKPIT2", .Type = "VOICE", .Role = "VVL"}}};
    }
    std::size_t Writes() const override { return 0; }
    PlayedNetworkSide* PlayedNetwork() override { return nullptr; }
    Ticket Observe(std::function<void()>) override { return {}; }

private:
    void SaySession() override {}
};

TEST(DeckOnRealSides, LeavesOutWhatCanOnlyBePlayed) {
    RealLink link;
    RealNetwork network;
    DeckWindow window({.Network = &network, .NetworkLink = &link});
    for (const char* name : {"NetworkServerSeen", "NetworkServersSeen", "NetworkSeeServer", "NetworkDelay",
                             "DropRecord", "AnnounceRecord", "OtherComputer", "ClaimVVL", "RefuseSession", "OddClaim"})
        EXPECT_EQ(window.findChild<QWidget*>(name), nullptr) << name;
    window.findChild<QCheckBox*>("NetworkLink")->click();
    EXPECT_EQ(link.Link(), LinkState::Up);
    window.findChild<QCheckBox*>("SessionOpen")->click();
    EXPECT_NE(network.Session().Handle, 0);
    EXPECT_EQ(window.findChild<QTableWidget*>("Records")->rowCount(), 1);
}

}  // namespace
}  // namespace orvelle
