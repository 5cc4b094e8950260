#include "tests/heard/StockClient.h"

#include <sqlite3.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace orvelle::heard {

namespace {

void Run(const std::string& commands) {
    linux::ChildProcess shell({"sh", "-c", commands});
    if (shell.Wait() != 0) throw std::runtime_error("the stock client's home: " + shell.Errors());
}

std::string Printed(const std::string& commands) {
    linux::ChildProcess shell({"sh", "-c", commands});
    return shell.ReadLine();
}

// Without a certificate the client begins with questions.
std::string OwnCertificate(const std::filesystem::path& folder) {
    const std::string at = "cd '" + folder.string() + "' && ";
    Run(at +
        "openssl req -x509 -newkey rsa:2048 -nodes -keyout key -out certificate -days 3650 -subj /CN=stock && "
        "openssl pkcs12 -export -inkey key -in certificate -passout pass: -out both");
    std::ifstream file(folder / "both", std::ios::binary);
    std::string escaped;
    constexpr const char* Digits = "0123456789abcdef";
    for (auto byte = std::istreambuf_iterator<char>(file); byte != std::istreambuf_iterator<char>(); ++byte) {
        const auto value = static_cast<unsigned char>(*byte);
        escaped += std::string("\\x") + Digits[value / 16] + Digits[value % 16];
    }
    return "\"@ByteArray(" + escaped + ")\"";
}

// Frames of ten milliseconds, each by itself; no delay and no jitter are provided for beyond that; what is recorded is
// sent as it is, always.
void Configure(const std::filesystem::path& home, const StockUser& user) {
    std::filesystem::create_directories(home / ".config/Mumble");
    std::ofstream(home / ".config/Mumble/Mumble.conf")
        << "[General]\nlastupdate=2\n[audio]\ninput=PulseAudio\noutput=PulseAudio\ntransmit=0\noutputdelay=1\n"
           "[pulseaudio]\ninput="
        << user.Microphone << "\noutput=" << user.Output
        << "\n[net]\nframesperpacket=1\njitterbuffer=1\ncertificate=" << OwnCertificate(home) << '\n';
}

// The server's certificate counts as one that the user has accepted; else the client asks.
void Accept(const std::filesystem::path& home, const StockUser& user) {
    const std::string place = user.Host + ":" + std::to_string(user.Port);
    std::string digest = Printed("openssl s_client -connect " + place +
                                 " </dev/null 2>/dev/null | openssl x509 -outform DER | sha1sum | cut -c 1-40");
    const std::filesystem::path folder = home / ".local/share/Mumble/Mumble";
    std::filesystem::create_directories(folder);
    const std::string statements =
        "create table cert (id integer primary key autoincrement, hostname text, port integer, digest text);"
        "insert into cert (hostname, port, digest) values ('" +
        user.Host + "', " + std::to_string(user.Port) + ", '" + digest + "')";
    sqlite3* database = nullptr;
    const bool isKept = sqlite3_open((folder / "mumble.sqlite").c_str(), &database) == SQLITE_OK &&
                        sqlite3_exec(database, statements.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK;
    sqlite3_close(database);
    if (!isKept) throw std::runtime_error("the stock client's list of certificates can't be written");
}

std::string InUrl(const std::string& channel) {
    std::string text;
    for (const char character : channel) text += character == '#' ? std::string("%23") : std::string(1, character);
    return text;
}

}  // namespace

StockClient::StockClient(const StockUser& user) {
    std::string pattern = std::filesystem::temp_directory_path() / "orvelle-stock-XXXXXX";
    home = mkdtemp(pattern.data());
    Configure(home, user);
    Accept(home, user);
    const std::string own = home.string();
    process = std::make_unique<linux::ChildProcess>(std::vector<std::string>{
        "env", "HOME=" + own, "XDG_CONFIG_HOME=" + own + "/.config", "XDG_DATA_HOME=" + own + "/.local/share",
        "XDG_RUNTIME_DIR=" + own, "PULSE_SERVER=unix:" + std::string(std::getenv("XDG_RUNTIME_DIR")) + "/pulse/native",
        "mumble", "-m",
        "mumble://" + user.Name + "@" + user.Host + ":" + std::to_string(user.Port) + "/" + InUrl(user.Channel) +
            "?version=1.2.0"});
}

StockClient::~StockClient() {
    process.reset();
    std::error_code error;
    std::filesystem::remove_all(home, error);
}

}  // namespace orvelle::heard
