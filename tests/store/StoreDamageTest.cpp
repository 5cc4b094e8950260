// What becomes of a store whose file can't be used as it stands: one sentence for the user, nothing lost, and a run
// that goes on.
#include <gtest/gtest.h>

#include <functional>
#include <random>

#include "tests/store/FaultyDisk.h"
#include "tests/store/StoreFolder.h"

namespace orvelle::store {
namespace {

namespace fs = std::filesystem;
using Texts = std::vector<std::string>;

constexpr const char* StoreName = "OrvelleCP.sqlite";
constexpr const char* AsideName = "OrvelleCP.sqlite.damaged-1";

class StoreDamageTest : public testing::Test {
protected:
    // The file was set aside byte for byte, the user was told once, and a new store works.
    void ExpectReplaced(const std::string& damaged) {
        folder.Sentences.clear();
        {
            auto store = folder.Open();
            EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Left", 1), 1);
            store.SaveSettingLong("OrvelleCP", "Left", 2);
            store.HandlerEnded();
        }
        ASSERT_EQ(folder.Sentences.size(), 1U);
        EXPECT_EQ(folder.Sentences[0], "The settings file \"" + folder.Path().string() +
                                           "\" is damaged and was kept as \"" + folder.Path(AsideName).string() +
                                           "\". The panel starts with default settings.");
        EXPECT_EQ(BytesOf(folder.Path(AsideName)), damaged);
        EXPECT_EQ(folder.Open().GetSettingLong("OrvelleCP", "Left", 1), 2);
        EXPECT_EQ(folder.Sentences.size(), 1U);
    }

    FaultyDisk disk;
    StoreFolder folder;
};

struct Damage {
    const char* Name;
    std::function<void(const StoreFolder&)> Do;
};

class StoreDamagedFileTest : public StoreDamageTest, public testing::WithParamInterface<Damage> {};

TEST_P(StoreDamagedFileTest, IsSetAside) {
    folder.Fill();
    GetParam().Do(folder);
    ExpectReplaced(BytesOf(folder.Path()));
}

void CutTo(const StoreFolder& folder, std::uintmax_t size) { fs::resize_file(folder.Path(), size); }

void Overwrite(const StoreFolder& folder, std::size_t offset, std::size_t size) {
    std::string bytes = BytesOf(folder.Path());
    bytes.replace(offset, size, std::string(size, '\x55'));
    WriteBytes(folder.Path(), bytes);
}

INSTANTIATE_TEST_SUITE_P(
    EveryKind, StoreDamagedFileTest,
    testing::Values(
        Damage{"Empty", [](const StoreFolder& folder) { CutTo(folder, 0); }},
        Damage{"OneByte", [](const StoreFolder& folder) { CutTo(folder, 1); }},
        Damage{"HalfAHeader", [](const StoreFolder& folder) { CutTo(folder, 50); }},
        Damage{"AHeaderAlone", [](const StoreFolder& folder) { CutTo(folder, 100); }},
        Damage{"OnePage", [](const StoreFolder& folder) { CutTo(folder, 4096); }},
        Damage{"AllButTheLastByte", [](const StoreFolder& folder) { CutTo(folder, fs::file_size(folder.Path()) - 1); }},
        Damage{"AllButTheLastPage",
               [](const StoreFolder& folder) { CutTo(folder, fs::file_size(folder.Path()) - 4096); }},
        Damage{"AText", [](const StoreFolder& folder) { WriteBytes(folder.Path(), "Left=7\nTop=3\n"); }},
        Damage{"Garbage",
               [](const StoreFolder& folder) {
                   std::mt19937 random(1);
                   std::string bytes(20000, '\0');
                   for (char& byte : bytes) byte = static_cast<char>(random());
                   WriteBytes(folder.Path(), bytes);
               }},
        Damage{"GarbageInTheHeader", [](const StoreFolder& folder) { Overwrite(folder, 0, 100); }},
        Damage{"GarbageInTheSchema", [](const StoreFolder& folder) { Overwrite(folder, 100, 3996); }},
        Damage{"AGarbagePage", [](const StoreFolder& folder) { Overwrite(folder, 8192, 4096); }},
        Damage{"OlderThanTheFirst", [](const StoreFolder& folder) { folder.Run("PRAGMA user_version = 0"); }},
        Damage{"ANegativeVersion", [](const StoreFolder& folder) { folder.Run("PRAGMA user_version = -1"); }},
        Damage{"SomebodyElses", [](const StoreFolder& folder) { folder.Run("PRAGMA application_id = 1"); }},
        Damage{"SomebodyElsesAndNewer",
               [](const StoreFolder& folder) { folder.Run("PRAGMA application_id = 1; PRAGMA user_version = 9"); }},
        Damage{"WithoutATable", [](const StoreFolder& folder) { folder.Run("DROP TABLE registry"); }},
        Damage{"WithAStrangeTable",
               [](const StoreFolder& folder) { folder.Run("ALTER TABLE setting ADD COLUMN more"); }}),
    [](const auto& tested) { return tested.param.Name; });

TEST_F(StoreDamageTest, NeverTakesANameThatIsTaken) {
    WriteBytes(folder.Path(AsideName), "kept");
    WriteBytes(folder.Path("OrvelleCP.sqlite.damaged-2-wal"), "kept");
    WriteBytes(folder.Path(), "damaged");
    folder.Open();
    EXPECT_EQ(BytesOf(folder.Path(AsideName)), "kept");
    EXPECT_EQ(BytesOf(folder.Path("OrvelleCP.sqlite.damaged-2-wal")), "kept");
    EXPECT_EQ(BytesOf(folder.Path("OrvelleCP.sqlite.damaged-3")), "damaged");
}

// The log of a damaged file must not be taken for the log of the new one.
TEST_F(StoreDamageTest, SetsTheLogAsideWithItsFile) {
    folder.Fill();
    std::string log;
    {
        auto store = folder.Open();
        store.SaveSettingLong("OrvelleCP", "Left", 8);
        store.HandlerEnded();
        log = BytesOf(folder.Path("OrvelleCP.sqlite-wal"));
        ASSERT_FALSE(log.empty());
    }
    for (const char* main : {"damaged", ""}) {
        SCOPED_TRACE(main);
        StoreFolder other;
        if (*main != '\0') WriteBytes(other.Path(), main);
        WriteBytes(other.Path("OrvelleCP.sqlite-wal"), log);
        EXPECT_EQ(other.Open().GetSettingLong("OrvelleCP", "Left", 1), 1);
        EXPECT_EQ(other.Sentences.size(), 1U);
        EXPECT_EQ(BytesOf(other.Path("OrvelleCP.sqlite.damaged-1-wal")), log);
        EXPECT_EQ(BytesOf(other.Path(AsideName)), main);
    }
}

TEST_F(StoreDamageTest, EveryLengthIsEitherWholeOrSetAside) {
    folder.Fill();
    const std::string whole = BytesOf(folder.Path());
    for (std::size_t size = 1; size < whole.size(); size += 1 + size / 3) {
        SCOPED_TRACE(size);
        StoreFolder other;
        WriteBytes(other.Path(), whole.substr(0, size));
        other.Open();
        EXPECT_EQ(other.Sentences.size(), 1U);
        EXPECT_EQ(BytesOf(other.Path(AsideName)), whole.substr(0, size));
    }
}

TEST_F(StoreDamageTest, AChangedByteNeverEndsTheProgram) {
    folder.Fill();
    const std::string whole = BytesOf(folder.Path());
    std::mt19937 random(2);
    for (int count = 0; count < 200; ++count) {
        std::string bytes = whole;
        const std::size_t offset = random() % (count % 2 == 0 ? 200 : bytes.size());
        bytes[offset] = static_cast<char>(bytes[offset] ^ (1 << random() % 8));
        SCOPED_TRACE(offset);
        StoreFolder other;
        WriteBytes(other.Path(), bytes);
        {
            auto store = other.Open();
            store.SaveSettingLong("OrvelleCP", "Topmost", 1);
            store.HandlerEnded();
            EXPECT_EQ(store.GetSettingLong("OrvelleCP", "Topmost", 0), 1);
        }
        EXPECT_LE(other.Sentences.size(), 1U);
        if (fs::exists(other.Path(AsideName))) {
            EXPECT_EQ(BytesOf(other.Path(AsideName)), bytes);
        }
    }
}

TEST_F(StoreDamageTest, ANewerFileIsLeftAsItIs) {
    folder.Fill();
    folder.Run("PRAGMA user_version = 3");
    ExpectInMemory(folder, "is of a newer version and was left as it is", 1);
}

TEST_F(StoreDamageTest, ANewerFileIsLeftAsItIsWhereOnlyItsLogTellsTheVersion) {
    folder.Fill();
    std::string main;
    std::string log;
    {
        const auto store = folder.Open();
        folder.Run("PRAGMA user_version = 3");
        main = BytesOf(folder.Path());
        log = BytesOf(folder.Path("OrvelleCP.sqlite-wal"));
        ASSERT_FALSE(log.empty());
    }
    WriteBytes(folder.Path("newer.sqlite"), main);
    WriteBytes(folder.Path("newer.sqlite-wal"), log);
    folder.Open("newer.sqlite").SaveSettingLong("OrvelleCP", "Left", 2);
    EXPECT_EQ(folder.Sentences.size(), 1U);
    EXPECT_EQ(BytesOf(folder.Path("newer.sqlite")), main);
    EXPECT_EQ(BytesOf(folder.Path("newer.sqlite-wal")), log);
}

TEST_F(StoreDamageTest, AFolderInTheFilesPlaceIsLeftAlone) {
    fs::create_directory(folder.Path());
    folder.Open();
    ASSERT_EQ(folder.Sentences.size(), 1U);
    EXPECT_NE(folder.Sentences[0].find("cannot be used"), std::string::npos);
    EXPECT_EQ(folder.Files(), Texts{StoreName});
}

TEST_F(StoreDamageTest, AFileInTheFoldersPlaceIsLeftAlone) {
    WriteBytes(folder.Path(), "a file");
    folder.Open("OrvelleCP.sqlite/inside.sqlite");
    ASSERT_EQ(folder.Sentences.size(), 1U);
    EXPECT_NE(folder.Sentences[0].find("cannot be used"), std::string::npos);
    EXPECT_EQ(BytesOf(folder.Path()), "a file");
}

}  // namespace
}  // namespace orvelle::store
