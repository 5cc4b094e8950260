// A registry in memory, for tests of what stands before one.
#pragma once

#include <map>
#include <string>

#include "platform/Registry.h"

namespace orvelle::linux {

// Keeps texts of one root; numbers pass through it.
class KeptRegistry : public Registry {
public:
    void WriteRegistryString(Long, const std::string& path, const std::string& name,
                             const std::string& value) override {
        texts[path + '\\' + name] = value;
    }
    std::string ReadRegistryString(Long, const std::string& path, const std::string& name,
                                   const std::string& defaultValue) override {
        const auto found = texts.find(path + '\\' + name);
        return found == texts.end() ? defaultValue : found->second;
    }
    void DeleteRegistryValue(Long, const std::string& path, const std::string& name) override {
        texts.erase(path + '\\' + name);
    }
    void WriteRegistryLong(Long, const std::string&, const std::string&, Long value) override { number = value; }
    Long ReadRegistryLong(Long, const std::string&, const std::string&, Long) override { return number; }
    std::string ReadRegistryDefault(const std::string& path, const std::string& name,
                                    const std::string& defaultValue) override {
        return ReadRegistryString(LocalMachine, path, name, defaultValue);
    }

private:
    std::map<std::string, std::string> texts;
    Long number = 0;
};

}  // namespace orvelle::linux
