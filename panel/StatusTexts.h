// The status lines of the two outside voice programs, which differ in their words alone.
#pragma once

namespace orvelle {

struct DriverTexts {
    const char* Disabled;
    // Driven by the transmit selector, by which of the two roles this computer holds
    const char* BothHeld;
    const char* Com1Alone;
    const char* Com2Alone;
    const char* NoneHeld;
    // Driven by one radio
    const char* Com1Held;
    const char* Com1Elsewhere;
    const char* Com2Held;
    const char* Com2Elsewhere;
};

inline constexpr DriverTexts RogerWilcoTexts{
    "RogerWilco is disabled on this computer.",
    "RogerWilco is enabled. Dont start RogerWilco Manually, let the software handle it for you.",
    "RogerWilco is enabled on COM1 but not on COM2. COM2 looks to be assign on a another computer. Dont start Roger "
    "Wilco Manually, let the software handle it for you.",
    "RogerWilco is enabled on COM2 but not on COM1. COM2 looks to be assign on a another computer. Dont start Roger "
    "Wilco Manually, let the software handle it for you.",
    "RogerWilco is disabled. COM1 and COM2 looks to be assign on a another computer.",
    "RogerWilco is enabled on COM1. Dont start RogerWilco Manually, let the software handle it for you.",
    "RogerWilco is disabled. COM1 looks to be assign on a another computer.",
    "RogerWilco is enabled on COM2. Dont start RogerWilco Manually, let the software handle it for you.",
    "RogerWilco is disabled. COM2 looks to be assign on a another computer.",
};

inline constexpr DriverTexts TeamSpeakTexts{
    "Teamspeak is disabled on this computer.",
    "Teamspeak is enabled. Dont start Teamspeak manually, let the software handle it for you.",
    "Teamspeak is enabled on COM1 but not on COM2. COM2 looks to be assign on a another computer. Dont start Roger "
    "Wilco Manually, let the software handle it for you.",
    "Teamspeak is enabled on COM2 but not on COM1. COM2 looks to be assign on a another computer. Dont start Roger "
    "Wilco Manually, let the software handle it for you.",
    "Teamspeak is disabled. COM1 and COM2 looks to be assign on a another computer.",
    "Teamspeak is enabled on COM1. Dont start Teamspeak manually, let the software handle it for you.",
    "Teamspeak is disabled. COM1 looks to be assign on a another computer.",
    "Teamspeak is enabled on COM2. Dont start Teamspeak manually, let the software handle it for you.",
    "Teamspeak is disabled. COM2 looks to be assign on a another computer.",
};

}  // namespace orvelle
