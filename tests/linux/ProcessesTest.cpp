#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "adapters/linux/LinuxProcesses.h"
#include "adapters/shared/FileDescriptor.h"
#include "tests/linux/WaitUntil.h"

namespace orvelle::linux {
namespace {

using Texts = std::vector<std::string>;

// A folder of the test's own with blanks in its name, and the stand-in program in it.
class Processes : public testing::Test {
protected:
    Processes() {
        EXPECT_NE(mkdtemp(folder.data()), nullptr);
        setenv("WRITES_DOWN_INTO", Path("written").c_str(), 1);
        processes.Told = [this](const std::string& sentence) { told.push_back(sentence); };
    }
    ~Processes() override {
        while (waitpid(-1, nullptr, 0) > 0) {
        }
        std::filesystem::remove_all(folder);
    }

    std::string Path(const std::string& name) const { return folder + "/" + name; }
    std::string MakeFile(const std::string& name, const std::string& text, mode_t mode) {
        std::ofstream(Path(name)) << text;
        chmod(Path(name).c_str(), mode);
        return Path(name);
    }
    std::string PutProgram(const std::string& name) {
        std::filesystem::create_symlink(WRITES_DOWN, Path(name));
        return Path(name);
    }

    // The lines with this first word that the started program wrote down.
    Texts Written(const std::string& what) {
        EXPECT_TRUE(WaitUntil([&] { return std::filesystem::exists(Path("written")); }));
        Texts lines;
        std::ifstream file(Path("written"));
        for (std::string line; std::getline(file, line);)
            if (line.starts_with(what + " ")) lines.push_back(line.substr(what.size() + 1));
        return lines;
    }

    std::string folder = testing::TempDir() + "two words XXXXXX";
    LinuxProcesses processes{":65000"};
    Texts told;
};

TEST_F(Processes, StartAPathWithoutBlanks) {
    EXPECT_EQ(
        processes.WinExec(std::string(WRITES_DOWN) + " /join1 srv1/ops /priority high /netspeed 2 /callsign ABC123", 7),
        33);
    EXPECT_EQ(Written("argument"), (Texts{"[/join1]", "[srv1/ops]", "[/priority]", "[high]", "[/netspeed]", "[2]",
                                          "[/callsign]", "[ABC123]"}));
    EXPECT_EQ(told, Texts{"Started " + std::string(WRITES_DOWN) +
                          " /join1 srv1/ops /priority high /netspeed 2 /callsign ABC123"});
}

TEST_F(Processes, StartAQuotedPath) {
    EXPECT_EQ(processes.WinExec("\"" + PutProgram("voice program") + "\" /leave ", 7), 33);
    EXPECT_EQ(Written("argument"), (Texts{"[/leave]"}));
}

TEST_F(Processes, StartAQuotedPathWithATrailingBlankAndNothingElse) {
    EXPECT_EQ(processes.WinExec("\"" + PutProgram("voice program") + "\" ", 7), 33);
    EXPECT_EQ(Written("argument"), Texts{});
}

TEST_F(Processes, StartAPathWithBlanksThatIsNotQuoted) {
    EXPECT_EQ(processes.WinExec(PutProgram("voice program") + " /join1 a/b", 7), 33);
    EXPECT_EQ(Written("argument"), (Texts{"[/join1]", "[a/b]"}));
}

TEST_F(Processes, PassQuotedArgumentsWhole) {
    EXPECT_EQ(processes.WinExec(std::string(WRITES_DOWN) + R"( "one two" x"y z" "")", 7), 33);
    EXPECT_EQ(Written("argument"), (Texts{"[one two]", "[xy z]", "[]"}));
}

TEST_F(Processes, UseNoShell) {
    EXPECT_EQ(processes.WinExec(std::string(WRITES_DOWN) + " $HOME;id `id` * > x | y & \\n", 7), 33);
    EXPECT_EQ(Written("argument"), (Texts{"[$HOME;id]", "[`id`]", "[*]", "[>]", "[x]", "[|]", "[y]", "[&]", "[\\n]"}));
}

TEST_F(Processes, SearchANameInThePath) {
    PutProgram("voice-program");
    const std::string before = getenv("PATH");
    setenv("PATH", ("::/nowhere:" + folder + ":" + before).c_str(), 1);
    EXPECT_EQ(processes.WinExec("voice-program a", 7), 33);
    EXPECT_EQ(Written("argument"), Texts{"[a]"});
    EXPECT_EQ(processes.WinExec("voice-programme a", 7), 2);
    setenv("PATH", before.c_str(), 1);
}

TEST_F(Processes, DoNotSearchTheWorkingDirectory) {
    PutProgram("voice-program");
    const std::string before = processes.GetCurrentDirectoryA(4096);
    const std::string path = getenv("PATH");
    setenv("PATH", "", 1);
    processes.SetCurrentDirectoryA(folder);
    EXPECT_EQ(processes.WinExec("voice-program", 7), 2);
    EXPECT_EQ(processes.WinExec("./voice-program", 7), 33);
    EXPECT_EQ(Written("directory"), Texts{std::filesystem::canonical(folder)});
    processes.SetCurrentDirectoryA(before);
    setenv("PATH", path.c_str(), 1);
}

TEST_F(Processes, OfMissingFilesAreToldAndNothingElse) {
    const std::string missing = Path("missing");
    EXPECT_EQ(processes.WinExec("\"" + missing + "\" /leave ", 7), 2);
    EXPECT_EQ(processes.WinExec("/nowhere/rw /leave ", 7), 2);
    EXPECT_EQ(processes.WinExec(R"(C:\Program Files\RogerWilco\rw.exe /leave )", 7), 2);
    EXPECT_EQ(processes.WinExec("/join1 srv1/ops", 7), 2);
    EXPECT_EQ(processes.WinExec("/etc/passwd/rw", 7), 2);
    EXPECT_EQ(told, (Texts{"No program was started, because there is no file " + missing + ".",
                           "No program was started, because there is no file /nowhere/rw.",
                           "No program was started, because there is no file C:\\Program.",
                           "No program was started, because there is no file /join1.",
                           "No program was started, because there is no file /etc/passwd/rw."}));
}

TEST_F(Processes, WithoutAPathAreToldByTheirNamesAndPages) {
    EXPECT_EQ(processes.WinExec(" /join1 srv1/ops", 7), 2);
    EXPECT_EQ(processes.WinExec("   /leave ", 7), 2);
    EXPECT_EQ(processes.WinExec("", 7), 2);
    const std::string rogerWilco =
        "RogerWilco was not started: the path to its program is empty; set it on the page RogerWilco.";
    EXPECT_EQ(told, (Texts{rogerWilco, rogerWilco,
                           "TeamSpeak was not started: the path to its program is empty; set it on the page "
                           "TeamSpeak."}));
}

TEST_F(Processes, OfAnEmptyLineDoNotExist) {
    EXPECT_EQ(processes.WinExec("", 7), 2);
    EXPECT_EQ(processes.WinExec("  ", 7), 2);
    EXPECT_EQ(processes.WinExec("\"\" /leave", 7), 2);
    EXPECT_EQ(told.size(), 3U);
}

TEST_F(Processes, OfDirectoriesAndOfFilesWithoutPermissionAreRefused) {
    const std::string plain = MakeFile("plain", "#!/bin/true\n", 0644);
    EXPECT_EQ(processes.WinExec("\"" + plain + "\"", 7), 5);
    EXPECT_EQ(processes.WinExec("\"" + folder + "\"", 7), 5);
    EXPECT_EQ(processes.WinExec("/tmp /leave ", 7), 5);
    EXPECT_EQ(told[0], "The program " + plain + " could not be started: Permission denied.");
}

TEST_F(Processes, OfWhatIsNoProgramAreRefused) {
    EXPECT_EQ(processes.WinExec("\"" + MakeFile("text", "hello\n", 0755) + "\"", 7), 11);
    EXPECT_EQ(processes.WinExec("\"" + MakeFile("script", "#!/nowhere/interpreter\n", 0755) + "\"", 7), 2);
}

TEST_F(Processes, TakeALongLineAndRefuseATooLongOne) {
    const std::string argument(100000, 'x');
    EXPECT_EQ(processes.WinExec(std::string(WRITES_DOWN) + " " + argument, 7), 33);
    EXPECT_EQ(Written("argument"), Texts{"[" + argument + "]"});
    EXPECT_EQ(processes.WinExec(std::string(WRITES_DOWN) + " " + std::string(4000000, 'x'), 7), 8);
    EXPECT_EQ(processes.WinExec("/" + std::string(100000, 'x'), 7), 2);
}

TEST_F(Processes, EndALineAtAZero) {
    EXPECT_EQ(processes.WinExec(std::string(WRITES_DOWN) + std::string(" a\0 b", 5), 7), 33);
    EXPECT_EQ(Written("argument"), Texts{"[a]"});
}

TEST_F(Processes, StartProgramsWithNothingOfOurs) {
    const FileDescriptor inheritable(open("/dev/zero", O_RDONLY));
    sigset_t some;
    sigset_t before;
    sigemptyset(&some);
    sigaddset(&some, SIGTERM);
    sigprocmask(SIG_BLOCK, &some, &before);
    const auto pipeAction = signal(SIGPIPE, SIG_IGN);
    EXPECT_EQ(processes.WinExec(WRITES_DOWN, 7), 33);
    signal(SIGPIPE, pipeAction);
    sigprocmask(SIG_SETMASK, &before, nullptr);

    EXPECT_EQ(Written("files"), Texts{"0=/dev/null 1=/dev/null 2=/dev/null"});
    EXPECT_NE(Written("session"), Texts{std::to_string(getsid(0))});
    EXPECT_EQ(Written("blocked"), Texts{});
    EXPECT_EQ(Written("ignored"), Texts{});
}

TEST_F(Processes, LeaveNoZombiesAndNoFilesBehind) {
    const auto openFiles = [] {
        return std::distance(std::filesystem::directory_iterator("/proc/self/fd"),
                             std::filesystem::directory_iterator());
    };
    const auto before = openFiles();
    for (int start = 0; start < 20; ++start) {
        EXPECT_EQ(processes.WinExec("/bin/true", 7), 33);
        EXPECT_EQ(processes.WinExec("/bin/missing", 7), 2);
    }
    // No child is left, once the loop has served what it was called for.
    pollfd ready{processes.Descriptor(), POLLIN, 0};
    EXPECT_TRUE(WaitUntil([&] {
        if (poll(&ready, 1, 0) > 0) processes.Serve();
        siginfo_t child;
        return waitid(P_ALL, 0, &child, WEXITED | WNOHANG | WNOWAIT) == -1 && errno == ECHILD;
    }));
    EXPECT_EQ(poll(&ready, 1, 0), 0);
    EXPECT_EQ(openFiles(), before);
}

TEST_F(Processes, AskForNoFocusOnlyIfMinimised) {
    EXPECT_EQ(processes.WinExec(WRITES_DOWN, 7), 33);
    const Texts id = Written("startup");
    ASSERT_EQ(id.size(), 1U);
    EXPECT_TRUE(id[0].starts_with("id OrvelleCP-"));
    EXPECT_TRUE(id[0].ends_with("_TIME0"));

    std::filesystem::remove(Path("written"));
    EXPECT_EQ(processes.WinExec(WRITES_DOWN, 1), 33);
    EXPECT_EQ(Written("startup"), Texts{"id none"});
}

TEST_F(Processes, KnowTheirOwnFile) {
    EXPECT_EQ(processes.GetModuleFileNameA(), std::filesystem::read_symlink("/proc/self/exe"));
    EXPECT_TRUE(processes.GetModuleFileNameA().ends_with("linux-tests"));
}

TEST_F(Processes, KeepAndChangeTheWorkingDirectory) {
    const std::string before = processes.GetCurrentDirectoryA(4096);
    EXPECT_EQ(before, std::filesystem::current_path());
    processes.SetCurrentDirectoryA(folder);
    EXPECT_EQ(processes.GetCurrentDirectoryA(4096), std::filesystem::canonical(folder));
    processes.SetCurrentDirectoryA("/nowhere/at/all");
    processes.SetCurrentDirectoryA("");
    EXPECT_EQ(processes.GetCurrentDirectoryA(4096), std::filesystem::canonical(folder));
    EXPECT_EQ(processes.GetCurrentDirectoryA(5), "");
    EXPECT_EQ(processes.GetCurrentDirectoryA(0), "");
    processes.SetCurrentDirectoryA("/");
    EXPECT_EQ(processes.GetCurrentDirectoryA(2), "/");
    EXPECT_EQ(processes.GetCurrentDirectoryA(1), "");
    processes.SetCurrentDirectoryA(before);
}

}  // namespace
}  // namespace orvelle::linux
