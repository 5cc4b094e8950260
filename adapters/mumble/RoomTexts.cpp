#include "adapters/mumble/RoomTexts.h"

#include <charconv>

#include "adapters/shared/HostAndPort.h"
#include "adapters/shared/Utf8.h"

namespace orvelle::mumble {

namespace {

constexpr std::size_t LongestReason = 200;  // bytes

}  // namespace

std::string ShownServer(const RoomAddress& address) {
    return WriteHostAndPort({address.Host, address.Port}, DefaultPort);
}

std::string ShownChannel(const RoomAddress& address) {
    std::string shown;
    const std::string& name = address.Channel;
    for (std::size_t at = 0; at < name.size(); ++at) {
        unsigned code = 0;
        const char* const begin = name.data() + at + 1;
        const bool isWritten =
            name[at] == '#' && at + 2 < name.size() && std::from_chars(begin, begin + 2, code, 16).ptr == begin + 2;
        shown += isWritten ? static_cast<char>(code) : name[at];
        if (isWritten) at += 2;
    }
    return shown;
}

std::string JoiningText(const RoomAddress& address) {
    return "Joining " + ShownChannel(address) + " at " + ShownServer(address);
}

std::string InText(const RoomAddress& address) {
    return "In " + ShownChannel(address) + (address.IsEcho() ? ", where you hear yourself" : "");
}

std::string ListeningText(const RoomAddress& address) {
    return "In " + ShownChannel(address) + ", but the server only lets us listen";
}

std::string ReconnectingText() { return "Reconnecting"; }

std::string PasswordText(const RoomAddress& address) { return ShownServer(address) + " asks for its password"; }

std::string TroubleText(RoomTrouble trouble, const RoomAddress& address) {
    const std::string server = ShownServer(address);
    const std::string channel = ShownChannel(address);
    switch (trouble) {
        case RoomTrouble::NoSuchHost:
            return "There is no computer named " + address.Host + ".";
        case RoomTrouble::Refused:
            return "No voice server runs at " + server + ".";
        case RoomTrouble::Unreachable:
            return server + " can't be reached.";
        case RoomTrouble::Silent:
            return server + " does not answer.";
        case RoomTrouble::NoVoiceServer:
            return "What answers at " + server + " is no voice server.";
        case RoomTrouble::Closed:
            return server + " closed the connection; it may be full, or we came too often.";
        case RoomTrouble::AnotherCertificate:
            return server + " is not the server that it was.";
        case RoomTrouble::OldVersion:
            return server + " takes other versions of voice software only.";
        case RoomTrouble::NameRefused:
            return server + " does not take our name.";
        case RoomTrouble::NameOfAnother:
            return server + " does not know this name with our certificate.";
        case RoomTrouble::NameInUse:
            return "Somebody at " + server + " has our name already.";
        case RoomTrouble::PasswordMissing:
            return server + " lets nobody in without its password.";
        case RoomTrouble::PasswordWrong:
            return "The password for " + server + " is wrong; join again to give another.";
        case RoomTrouble::ServerFull:
            return server + " is full.";
        case RoomTrouble::CertificateMissing:
            return server + " asks for a certificate and does not take ours.";
        case RoomTrouble::RefusedWithoutReason:
            return server + " does not let us in.";
        case RoomTrouble::NoRightToMake:
            return server + " does not let us make the channel " + channel + ".";
        case RoomTrouble::NoRightToEnter:
            return server + " does not let us into the channel " + channel + ".";
        case RoomTrouble::ChannelNameRefused:
            return server + " takes no channel named " + channel + ".";
        case RoomTrouble::ChannelFull:
            return "The channel " + channel + " is full.";
        case RoomTrouble::Kicked:
            return KickedText("");
        case RoomTrouble::AnotherDevice:
            return "Somebody else came to " + server + " with our name.";
        case RoomTrouble::MovedAway:
            return "The server's operator took us out of " + channel + ".";
    }
    return "";
}

std::string KickedText(const std::string& reason) {
    std::string shown;
    for (const char character : reason.substr(0, LongestReason))
        if (static_cast<unsigned char>(character) >= ' ' && character != '\x7F') shown += character;
    if (shown.empty() || !IsUtf8(shown)) return "The server's operator put us out.";
    return "The server's operator put us out: " + shown;
}

std::string AnotherCertificateText(const RoomAddress& address, const std::string& file) {
    return TroubleText(RoomTrouble::AnotherCertificate, address) +
           " If its operator says that its certificate is new, remove its line from " + file + ".";
}

}  // namespace orvelle::mumble
