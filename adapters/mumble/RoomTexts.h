// What a room's user reads of it: every sentence of the voice rooms stands here. Asked by a room's connection.
#pragma once

#include <string>

#include "adapters/mumble/RoomAddress.h"

namespace orvelle::mumble {

// Why somebody is not in a room, or not any more.
enum class RoomTrouble {
    NoSuchHost,
    Refused,
    Unreachable,
    Silent,
    NoVoiceServer,
    Closed,
    AnotherCertificate,
    OldVersion,
    NameRefused,
    NameOfAnother,
    NameInUse,
    PasswordMissing,
    PasswordWrong,
    ServerFull,
    CertificateMissing,
    RefusedWithoutReason,
    NoRightToMake,
    NoRightToEnter,
    ChannelNameRefused,
    ChannelFull,
    Kicked,
    AnotherDevice,
    MovedAway
};

// The channel as the user wrote it.
std::string ShownChannel(const RoomAddress& address);
std::string ShownServer(const RoomAddress& address);

std::string JoiningText(const RoomAddress& address);
std::string InText(const RoomAddress& address);
std::string ListeningText(const RoomAddress& address);  // in it, but the server takes no voice of ours
std::string ReconnectingText();
std::string PasswordText(const RoomAddress& address);  // while the user is asked

std::string TroubleText(RoomTrouble trouble, const RoomAddress& address);
// `reason` is the operator's, "" for none; what could disturb a line of text is left out.
std::string KickedText(const std::string& reason);
// `file` keeps the certificates of the servers.
std::string AnotherCertificateText(const RoomAddress& address, const std::string& file);

}  // namespace orvelle::mumble
