#include "replay/peers/VoiceEnginePeer.h"

namespace orvelle::replay {

bool VoiceEnginePeer::Running() { return Ask("Running", {}, false); }

bool VoiceEnginePeer::Start(Long mode) { return Ask("Start", {mode}, true); }

void VoiceEnginePeer::Stop() { Call("Stop"); }

void VoiceEnginePeer::InputSquelch(double value) { WriteProperty("InputSquelch", value); }

void VoiceEnginePeer::OutputSquelch(double value) { WriteProperty("OutputSquelch", value); }

std::string VoiceEnginePeer::InputDevices() { return ReadProperty<std::string>("InputDevices", ""); }

std::string VoiceEnginePeer::OutputDevices() { return ReadProperty<std::string>("OutputDevices", ""); }

void VoiceEnginePeer::InputDevice(Long device) { Call("InputDevice", {device}); }

void VoiceEnginePeer::OutputDevice(Long output, Long device) { Call("OutputDevice", {output, device}); }

void VoiceEnginePeer::OutputVolume(Long output, Long value) { Call("OutputVolume", {output, value}); }

void VoiceEnginePeer::SignalVolume(Long output, Long value) { Call("SignalVolume", {output, value}); }

void VoiceEnginePeer::OutputFilter(Long output, bool on) { Call("OutputFilter", {output, on}); }

void VoiceEnginePeer::ChannelOutput(Long room, Long output, bool on) { Call("ChannelOutput", {room, output, on}); }

bool VoiceEnginePeer::InputStatus() { return ReadProperty("InputStatus", false); }

bool VoiceEnginePeer::OutputStatus(Long output) { return Ask("OutputStatus", {output}, false); }

bool VoiceEnginePeer::RoomJoin(Long room, const std::string& clientName, const std::string& roomAddress) {
    return Ask("RoomJoin", {room, clientName, roomAddress}, true);
}

void VoiceEnginePeer::RoomLeave(Long room) { Call("RoomLeave", {room}); }

void VoiceEnginePeer::RoomMute(Long room, bool mute) { Call("RoomMute", {room, mute}); }

std::string VoiceEnginePeer::RoomStatus(Long room) { return Ask<std::string>("RoomStatus", {room}, ""); }

bool VoiceEnginePeer::Calibrate(Long inputDevice, Long outputDevice, float& inputSquelch, float& outputSquelch) {
    const Values answer = Answer("Calibrate", {inputDevice, outputDevice}, {false, 0.0, 0.0});
    inputSquelch = static_cast<float>(answer[1].As<double>());
    outputSquelch = static_cast<float>(answer[2].As<double>());
    PrintCall("Calibrate", {inputDevice, outputDevice}, {answer[0], inputSquelch, outputSquelch});
    return answer[0].As<bool>();
}

}  // namespace orvelle::replay
