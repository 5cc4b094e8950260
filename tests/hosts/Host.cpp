#include "tests/hosts/Host.h"

#include <gtest/gtest.h>

#include "tests/linux/ChildProcess.h"

namespace orvelle::hosts {

namespace {

std::vector<std::string> InNamespace(const std::string& name, const std::vector<std::string>& words) {
    std::vector<std::string> command{"nsenter", "--net=/run/netns/" + name};
    command.insert(command.end(), words.begin(), words.end());
    return command;
}

void RunAtSwitch(const std::vector<std::string>& words) {
    EXPECT_TRUE(Run(InNamespace("switch", words))) << testing::PrintToString(words);
}

}  // namespace

bool Run(const std::vector<std::string>& words) { return linux::ChildProcess(words).Wait() == 0; }

std::vector<std::string> Host::Start(const std::vector<std::string>& words) const { return InNamespace(Name(), words); }

std::vector<std::string> Host::TakeBadWay(const std::string& relay, int percent, int milliseconds) const {
    const std::string port = "port-" + Name(), outer = "outer-" + Name(), inner = "inner-" + Name();
    RunAtSwitch({"ip", "link", "set", port, "nomaster"});
    RunAtSwitch({"ip", "link", "add", outer, "type", "veth", "peer", "name", inner});
    RunAtSwitch({"ip", "link", "set", inner, "master", "switch", "up"});
    RunAtSwitch({"ip", "link", "set", outer, "up"});
    return InNamespace("switch", {relay, port, outer, std::to_string(percent), std::to_string(milliseconds)});
}

void Host::SetLink(const std::string& state) const { EXPECT_TRUE(Run(Start({"ip", "link", "set", "eth0", state}))); }

void Host::SetPort(const std::string& state) const { RunAtSwitch({"ip", "link", "set", "port-" + Name(), state}); }

}  // namespace orvelle::hosts
