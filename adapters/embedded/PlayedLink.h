// What the two links inside this process have alike: whoever plays the far side takes the link up and down, and the
// panel's near end opens and closes it as its line. The link stands while both want it. What is said reaches the panel
// after the delay.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "adapters/shared/Changes.h"
#include "adapters/shared/Delivery.h"
#include "platform/sides/LinkSide.h"
#include "platform/sides/PlayedLinkSide.h"

namespace orvelle::embedded {

class PlayedLink : public LinkSide, public PlayedLinkSide {
public:
    void SetLink(LinkState state) override;
    LinkState Link() const override { return link; }
    bool IsUp() const override { return isUp; }
    std::string Server() const override { return server; }
    PlayedLinkSide* Played() override { return this; }
    void SeeServer(const std::string& name) override;
    const std::vector<std::string>& ServersSeen() const override { return serversSeen; }
    void SetDelay(Long milliseconds) override { delivery.SetDelay(milliseconds); }
    Long Delay() const override { return delivery.Delay(); }
    Ticket Observe(std::function<void()> observer) override { return changes.Observe(std::move(observer)); }

protected:
    explicit PlayedLink(EventLoop& loop) : changes(loop), delivery(loop) {}

    void OpenLink(const std::string& newServer);
    void CloseLink();
    bool IsOpen() const { return isOpen; }
    void MarkChange() { changes.Mark(); }
    // Brought only if the link stands then.
    void SayWhileUp(std::function<void()> event);

private:
    // The line's events, raised from the loop.
    virtual void RaiseUp() = 0;
    virtual void RaiseLost() = 0;
    virtual void RaiseServerFound(const std::string& name) = 0;

    void ComeUp();

    Changes changes;
    Delivery delivery;
    LinkState link = LinkState::Down;
    bool isOpen = false;
    bool isUp = false;
    std::string server;
    std::vector<std::string> serversSeen;
};

}  // namespace orvelle::embedded
