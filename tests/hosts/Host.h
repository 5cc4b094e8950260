// One of the computers that tests/hosts/with-hosts makes: programs are started there, and its link is cut.
#pragma once

#include <string>
#include <vector>

namespace orvelle::hosts {

// Runs a program to its end; whether it ended well.
bool Run(const std::vector<std::string>& words);

class Host {
public:
    // 1 to 3: the computer that the set-up calls c01 to c03.
    explicit Host(int hostNumber) : number(hostNumber) {}

    std::string Name() const { return "c0" + std::to_string(number); }
    std::string Address() const { return "10.99.0." + std::to_string(number); }
    // The command line by which a program starts there.
    std::vector<std::string> Start(const std::vector<std::string>& words) const;

    // At its own end.
    void CutLink() const { SetLink("down"); }
    void HealLink() const { SetLink("up"); }
    // At the switch's end: the host sees nothing but that nobody answers, and that its cable is out.
    void PullCable() const { SetPort("down"); }
    void PlugCable() const { SetPort("up"); }
    // From now on its frames pass `relay`, which moves them between the two interfaces that are named to it.
    std::vector<std::string> TakeBadWay(const std::string& relay, int percent, int milliseconds) const;

private:
    void SetLink(const std::string& state) const;
    void SetPort(const std::string& state) const;

    int number;
};

}  // namespace orvelle::hosts
