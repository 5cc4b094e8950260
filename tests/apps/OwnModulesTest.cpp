#include "apps/OwnModules.h"

#include <fstream>

#include "adapters/linux/OwnFile.h"

namespace orvelle {
namespace {

TEST(OwnModulesTest, AreLookedForBesideTheProgramThenInThePrivateFolder) {
    const std::filesystem::path own = std::filesystem::path(linux::OwnFile()).parent_path();
    const auto places = PlacesOfModule("orvelle-some.so");
    ASSERT_EQ(places.size(), 2U);
    EXPECT_EQ(places[0], own / "orvelle-some.so");
    EXPECT_EQ(places[1].filename(), "orvelle-some.so");
    EXPECT_EQ(places[1].parent_path().filename(), "orvelle");
    EXPECT_EQ(places[1], places[1].lexically_normal());
}

TEST(OwnModulesTest, ThatAreMissingOrDamagedAreToldInPartsOfASentence) {
    std::string why;
    EXPECT_EQ(FunctionOfModule("orvelle-none.so", "NewNone", why), nullptr);
    EXPECT_EQ(why, "the module orvelle-none.so is not installed");
    const std::string damaged = linux::BesideOwnFile("orvelle-damaged.so");
    std::ofstream(damaged) << "no module\n";
    EXPECT_EQ(FunctionOfModule("orvelle-damaged.so", "NewNone", why), nullptr);
    EXPECT_NE(why.find(damaged), std::string::npos) << why;
    std::filesystem::remove(damaged);
}

}  // namespace
}  // namespace orvelle
