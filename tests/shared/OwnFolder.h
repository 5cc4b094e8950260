// A folder of the test's own, which goes with it.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

namespace orvelle {

struct OwnFolder {
    OwnFolder() {
        std::string name = testing::TempDir() + "orvelle-tests-XXXXXX";
        if (mkdtemp(name.data())) Path = name;
        EXPECT_FALSE(Path.empty()) << name;
    }
    OwnFolder(const OwnFolder&) = delete;
    OwnFolder& operator=(const OwnFolder&) = delete;
    ~OwnFolder() {
        std::error_code error;
        if (!Path.empty()) std::filesystem::remove_all(Path, error);
    }

    std::filesystem::path Path;
};

}  // namespace orvelle
