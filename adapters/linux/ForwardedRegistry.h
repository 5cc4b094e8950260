// A registry that stands before another one and answers as that does; for a class that gives some values another
// meaning and overrides what it needs for that.
#pragma once

#include <string>

#include "platform/Registry.h"

namespace orvelle::linux {

class ForwardedRegistry : public Registry {
public:
    explicit ForwardedRegistry(Registry& behind) : registry(behind) {}

    void WriteRegistryString(Long root, const std::string& path, const std::string& name,
                             const std::string& value) override {
        registry.WriteRegistryString(root, path, name, value);
    }
    std::string ReadRegistryString(Long root, const std::string& path, const std::string& name,
                                   const std::string& defaultValue) override {
        return registry.ReadRegistryString(root, path, name, defaultValue);
    }
    void DeleteRegistryValue(Long root, const std::string& path, const std::string& name) override {
        registry.DeleteRegistryValue(root, path, name);
    }
    void WriteRegistryLong(Long root, const std::string& path, const std::string& name, Long value) override {
        registry.WriteRegistryLong(root, path, name, value);
    }
    Long ReadRegistryLong(Long root, const std::string& path, const std::string& name, Long defaultValue) override {
        return registry.ReadRegistryLong(root, path, name, defaultValue);
    }
    std::string ReadRegistryDefault(const std::string& path, const std::string& name,
                                    const std::string& defaultValue) override {
        return registry.ReadRegistryDefault(path, name, defaultValue);
    }

protected:
    Registry& registry;
};

}  // namespace orvelle::linux
