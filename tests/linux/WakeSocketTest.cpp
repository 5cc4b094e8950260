// The socket by which others wake the panel, and what it takes from whom.
#include "adapters/linux/WakeSocket.h"

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

#include <cstring>
#include <filesystem>

namespace orvelle::linux {
namespace {

class WakeSocketTest : public testing::Test {
protected:
    WakeSocketTest() { panel.Listen(); }
    ~WakeSocketTest() override { std::filesystem::remove_all(folder); }

    // Sends bytes as they are, as that user; false if the system doesn't let it.
    bool Send(const std::string& bytes, uid_t user = getuid()) const {
        const FileDescriptor sender(socket(AF_UNIX, SOCK_DGRAM, 0));
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::strcpy(address.sun_path, Path().c_str());
        alignas(cmsghdr) char control[CMSG_SPACE(sizeof(ucred))]{};
        iovec part{const_cast<char*>(bytes.data()), bytes.size()};
        msghdr message{};
        message.msg_name = &address;
        message.msg_namelen = sizeof address;
        message.msg_iov = &part;
        message.msg_iovlen = 1;
        message.msg_control = control;
        message.msg_controllen = sizeof control;
        cmsghdr* const header = CMSG_FIRSTHDR(&message);
        header->cmsg_level = SOL_SOCKET;
        header->cmsg_type = SCM_CREDENTIALS;
        header->cmsg_len = CMSG_LEN(sizeof(ucred));
        const ucred said{getpid(), user, getgid()};
        std::memcpy(CMSG_DATA(header), &said, sizeof said);
        return sendmsg(sender.Number(), &message, MSG_DONTWAIT) >= 0;
    }
    std::string Path() const { return folder + "/wake"; }

    static std::string NewFolder() {
        std::string made = testing::TempDir() + "wake-XXXXXX";
        EXPECT_NE(mkdtemp(made.data()), nullptr);
        return made;
    }

    const std::string folder = NewFolder();
    WakeSocket panel{Path()};
    const WakeSocket other{Path()};
};

TEST_F(WakeSocketTest, TakesWishesInTheirOrder) {
    EXPECT_EQ(panel.Take(), std::nullopt);
    EXPECT_TRUE(other.Ask(Wish::ShowDeck));
    EXPECT_TRUE(other.Ask(Wish::ShowPanel));
    EXPECT_EQ(panel.Take(), Wish::ShowDeck);
    EXPECT_EQ(panel.Take(), Wish::ShowPanel);
    EXPECT_EQ(panel.Take(), std::nullopt);
}

TEST_F(WakeSocketTest, DropsWhatIsNoWish) {
    for (const std::string& bytes : {std::string(), std::string("show"), std::string("show deck\n"),
                                     std::string("show deck\0", 10), std::string(100'000, 'x')}) {
        ASSERT_TRUE(Send(bytes)) << bytes.size();
        EXPECT_EQ(panel.Take(), std::nullopt) << bytes.size();
    }
    ASSERT_TRUE(Send("show deck"));
    EXPECT_EQ(panel.Take(), Wish::ShowDeck);
}

// Only root can say so; for others the system itself refuses, and nothing comes.
TEST_F(WakeSocketTest, DropsWhatComesFromAnotherUser) {
    EXPECT_EQ(Send("show deck", getuid() + 1), getuid() == 0);
    EXPECT_EQ(panel.Take(), std::nullopt);
}

TEST_F(WakeSocketTest, IsOfThisUserAlone) {
    struct stat status;
    ASSERT_EQ(stat(Path().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600U);
}

TEST_F(WakeSocketTest, AskingNeverWaits) {
    for (int wish = 0; wish < 1000; ++wish) ASSERT_TRUE(other.Ask(Wish::ShowPanel));
    EXPECT_EQ(panel.Take(), Wish::ShowPanel);
}

TEST_F(WakeSocketTest, OneThatWasLeftBehindTakesNothingAndGivesWay) {
    {
        WakeSocket gone(Path());
        gone.Listen();
    }
    EXPECT_FALSE(other.Ask(Wish::ShowPanel));
    WakeSocket next(Path());
    next.Listen();
    EXPECT_TRUE(other.Ask(Wish::ShowPanel));
    EXPECT_EQ(next.Take(), Wish::ShowPanel);
}

TEST_F(WakeSocketTest, WithoutAPlaceThereIsNone) {
    for (const std::string& path : {folder + "/none/wake", folder + "/" + std::string(200, 'x')}) {
        WakeSocket nowhere(path);
        EXPECT_FALSE(nowhere.Ask(Wish::ShowPanel));
        nowhere.Listen();
        EXPECT_EQ(nowhere.Descriptor(), -1);
    }
}

}  // namespace
}  // namespace orvelle::linux
