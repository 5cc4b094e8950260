#include "adapters/pulse/WaveFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>

namespace orvelle::pulse {
namespace {

namespace files = std::filesystem;

std::string Number(std::uint32_t number, int bytes) {
    std::string text;
    for (; bytes > 0; --bytes, number >>= 8) text += static_cast<char>(number & 0xFF);
    return text;
}

std::string Wave(std::uint32_t channels, std::uint32_t rate, std::uint32_t bits, const std::string& samples) {
    return "RIFF" + Number(0, 4) + "WAVElist" + Number(3, 4) + "odd" + '\0' + "fmt " + Number(16, 4) + Number(1, 2) +
           Number(channels, 2) + Number(rate, 4) + Number(0, 4) + Number(0, 2) + Number(bits, 2) + "data" +
           Number(static_cast<std::uint32_t>(samples.size()), 4) + samples;
}

class WaveFileTest : public testing::Test {
protected:
    WaveFileTest() {
        std::string pattern = files::temp_directory_path() / "orvelle-sounds-XXXXXX";
        folder = mkdtemp(pattern.data());
        files::create_directories(folder / "in" / "Tessaly");
        std::ofstream(folder / "outside.wav") << "outside";
        std::ofstream(folder / "in" / "Tessaly" / "A.wav") << "inside";
    }
    ~WaveFileTest() override { files::remove_all(folder); }

    std::optional<WaveFile> Read(const std::string& bytes) {
        std::ofstream(folder / "file", std::ios::binary) << bytes;
        return ReadWaveFile(folder / "file");
    }
    std::string Found(const std::string& name) {
        const auto file = FileInFolder(folder / "in", name);
        return file ? file->filename().string() : "";
    }

    files::path folder;
};

TEST_F(WaveFileTest, IsReadWithWholeFrames) {
    const auto wave = Read(Wave(2, 44100, 16, "abcdefghij"));
    ASSERT_TRUE(wave);
    EXPECT_EQ(wave->Rate, 44100U);
    EXPECT_EQ(wave->Channels, 2);
    EXPECT_EQ(wave->Samples, "abcdefgh");
    EXPECT_EQ(ReadWaveFile(files::path(SOUNDS) / "Tessaly" / "RADIO_NOCHANNEL.wav")->Samples.size(), 8820U);
}

TEST_F(WaveFileTest, OfAnotherKindIsNone) {
    for (const auto& bytes : {Wave(3, 44100, 16, "abcdef"), Wave(0, 44100, 16, "abcd"), Wave(1, 7999, 16, "abcd"),
                              Wave(1, 48001, 16, "abcd"), Wave(1, 44100, 8, "abcd"), Wave(1, 44100, 16, ""),
                              std::string("RIFF"), std::string()})
        EXPECT_FALSE(Read(bytes));
}

TEST_F(WaveFileTest, ThatWasCutAnywhereDoesNoHarm) {
    const std::string whole = Wave(1, 8000, 16, "abcdef");
    for (std::size_t size = 0; size < whole.size() - 6; ++size) EXPECT_FALSE(Read(whole.substr(0, size))) << size;
    EXPECT_EQ(Read(whole.substr(0, whole.size() - 1))->Samples, "abcd");
}

TEST_F(WaveFileTest, IsNoPipeAndNothingLong) {
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_FALSE(ReadWaveFile(folder / "pipe"));
    Read(Wave(1, 8000, 16, "abcdef"));
    files::resize_file(folder / "file", (8 << 20) + 1);
    EXPECT_FALSE(ReadWaveFile(folder / "file"));
}

TEST_F(WaveFileTest, LiesInTheFolder) {
    EXPECT_EQ(Found("Tessaly\\A.wav"), "A.wav");
    EXPECT_EQ(Found("Tessaly/A.wav"), "A.wav");
    files::create_symlink(folder / "outside.wav", folder / "in" / "link.wav");
    for (const std::string name : {"", "/", "Tessaly\\a.wav", "..\\outside.wav", "Tessaly/../../outside.wav",
                                   "/etc/passwd", "\\etc\\passwd", "link.wav", "none.wav"})
        EXPECT_EQ(Found(name), "") << name;
    EXPECT_EQ(Found(std::string("Tessaly/A.wav\0x", 15)), "");
}

}  // namespace
}  // namespace orvelle::pulse
