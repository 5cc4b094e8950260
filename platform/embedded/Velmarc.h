// The simulator link inside this process: the panel holds one end as its VelmarcControl, the deck plays the simulator's
// computer at the other. Every server name leads to the deck. The link keeps what is held down over there: when it is
// lost, each key and button is reported as released, then the loss. Main thread only; nothing fails towards the caller.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "platform/Velmarc.h"
#include "platform/embedded/Changes.h"
#include "platform/embedded/Delivery.h"
#include "platform/embedded/LinkState.h"

namespace orvelle {

class ControlValues;

// What the panel is told of the computer at the other end while the link is up.
struct SimulatorComputer {
    std::string IPAddress = LoopbackAddress;
    std::string ComputerName = "FLIGHTDECK";
    std::string DesktopName = "Simulator";
};

class EmbeddedVelmarc : public VelmarcControl {
public:
    // `controlValues` keeps the server between runs. `thisComputer` lists the names and addresses of this computer.
    EmbeddedVelmarc(EventLoop& loop, ControlValues& controlValues, std::vector<std::string> thisComputer);

    void SetServer(const std::string& name) override;
    std::string GetServer() override;  // AutomaticServer until one was set
    bool LinkUp() override;
    void ClientReady() override;
    std::string IPAddress() override;
    std::string ComputerName() override;
    std::string DesktopName() override;
    bool IsLocalAddress(const std::string& name) override;
    void PlaySound(const std::string& path) override;

    // The deck's side. Each operation takes effect at once over there and reaches the panel after the delay.
    void SetLink(LinkState state);
    LinkState Link() const { return link; }  // as wanted; LinkUp is what the panel knows
    void SeeServer(const std::string& name);
    const std::vector<std::string>& ServersSeen() const { return serversSeen; }
    void SetComputer(const SimulatorComputer& computer);
    const SimulatorComputer& Computer() const { return computer; }
    void SetDelay(Long milliseconds) { delivery.SetDelay(milliseconds); }
    Long Delay() const { return delivery.Delay(); }

    // Keys by the names that the panel shows ("Ctrl", "A", "F8"). A key that is held already repeats. False, and
    // nothing is held, while the link is wanted down.
    bool PressKey(const std::string& key);
    void RepeatKey(const std::string& key);  // nothing unless it is held
    void ReleaseKey(const std::string& key);
    // A button by its device and its name there: "Stick" and "Button 3" reach the panel as "Stick.Button 3".
    bool PressButton(const std::string& device, const std::string& button);
    void ReleaseButton(const std::string& device, const std::string& button);
    void ReleaseAll();                 // in the order in which they went down
    std::string HeldSequence() const;  // the keys held, joined by "+"
    std::vector<std::string> HeldButtons() const;
    // Whether the simulator is the active application over there.
    void SetSimulatorActive(bool active);
    bool SimulatorActive() const { return simulatorActive; }

    // What the panel asked for: sounds, oldest first, the last 200 of them, and how often it said ClientReady.
    const std::vector<std::string>& Sounds() const { return sounds; }
    std::size_t SoundsPlayed() const { return soundsPlayed; }
    std::size_t TimesReady() const { return timesReady; }

    Changes Changed;

    void Stop();  // the panel has ended: nothing is raised any more

private:
    enum class Device { Keyboard, Joystick };
    struct Held {
        Device From;
        std::string Name;
        bool operator==(const Held&) const = default;
    };

    bool IsHeld(const Held& thing) const;
    void Release(const Held& thing);
    void ReportKeyDown(const std::string& key, bool repeat);

    Delivery delivery;
    ControlValues& values;
    std::vector<std::string> localNames;
    SimulatorComputer computer;
    LinkState link = LinkState::Down;
    bool linkUp = false;
    bool simulatorActive = true;
    std::vector<Held> held;  // in the order in which they went down
    std::vector<std::string> serversSeen;
    std::vector<std::string> sounds;
    std::size_t soundsPlayed = 0;
    std::size_t timesReady = 0;
};

}  // namespace orvelle
