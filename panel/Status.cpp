// What the panel knows at a glance: six status lines, the voice engine's status bar and one picture, chosen by a letter
// for each of the six things. It reads the live state and changes no state of the logic.
#include "panel/FrmOrvelle.h"
#include "panel/StatusTexts.h"
#include "platform/RuntimeError.h"

namespace orvelle {

namespace {

constexpr Long GoodColour = ButtonTextColour;
constexpr Long BadColour = 255;

void ShowLine(Label& line, const std::string& text, Long colour) {
    line.Caption = text;
    line.ForeColor = colour;
}

}  // namespace

struct FrmOrvelle::DriverStatus {
    Label& Line;
    const CheckBox& Enable;
    const ControlArray<OptionButton>& Driver;
    Long Com1;
    Long Com2;
    const DriverTexts& Texts;
};

void FrmOrvelle::RefreshStatus() {
    std::string key;
    key += SimulatorLetter();
    key += FrameworkLetters();
    key += RogerWilcoLetter();
    key += TeamSpeakLetter();
    RefreshVatsimBar();
    key += VatsimLetter();
    ShowStatusPicture(key);
}

char FrmOrvelle::SimulatorLetter() {
    if (Velmarc.LinkUp()) {
        ShowLine(StatusVelmarc, "FS with Velmarc is up and running", GoodColour);
        return 'V';
    }
    ShowLine(StatusVelmarc, "FSwith Velmarc isnt connected. Start FS or check configuration.", BadColour);
    return 'R';
}

std::string FrmOrvelle::FrameworkLetters() {
    if (!Tessaly.LinkUp()) {
        StatusMainUser.Caption = "";
        ShowLine(StatusTessaly, "Kestrine isnt connected. Start Tessaly or check configuration", BadColour);
        return "RR";
    }
    ShowLine(StatusTessaly, "Kestrine is up and running", GoodColour);
    if (SessionHandle == 0) {
        ShowLine(StatusMainUser, "You are not connected to Kestrine multiplayer", BadColour);
        return "VR";
    }
    ShowLine(StatusMainUser, "You are connected multiplayer", GoodColour);
    return "VV";
}

char FrmOrvelle::RogerWilcoLetter() {
    return DriverLetter({StatusRogerWilco, RWEnable, optRWDriver, RWCom1, RWCom2, RogerWilcoTexts});
}

char FrmOrvelle::TeamSpeakLetter() {
    return DriverLetter({StatusTeamSpeak, TSEnable, optTSDriver, TSCom1, TSCom2, TeamSpeakTexts});
}

char FrmOrvelle::DriverLetter(const DriverStatus& driver) {
    const auto ready = [&driver](const char* text) {
        ShowLine(driver.Line, text, GoodColour);
        return 'V';
    };
    const auto elsewhere = [&driver](const char* text) {
        ShowLine(driver.Line, text, BadColour);
        return 'R';
    };
    const DriverTexts& texts = driver.Texts;
    const bool com1 = driver.Com1 != 0;
    const bool com2 = driver.Com2 != 0;

    if (driver.Enable.Value != 1) {
        ShowLine(driver.Line, texts.Disabled, GoodColour);
        return 'R';
    }
    if (driver.Driver(0).Value) {
        if (com1 && com2) return ready(texts.BothHeld);
        if (com1) return elsewhere(texts.Com1Alone);
        if (com2) return elsewhere(texts.Com2Alone);
        return elsewhere(texts.NoneHeld);
    }
    if (driver.Driver(1).Value) return com1 ? ready(texts.Com1Held) : elsewhere(texts.Com1Elsewhere);
    if (driver.Driver(2).Value) return com2 ? ready(texts.Com2Held) : elsewhere(texts.Com2Elsewhere);
    return 'R';
}

void FrmOrvelle::RefreshVatsimBar() {
    const bool ready = OwnVVL != 0 && VVLEnable.Value == 1 && MultiplayerConnected;
    if (ready && !VVLRunning) VVLStatusBar.SetPanelText(2, "Operational");
    if (!ready && VVLRunning) VVLStatusBar.SetPanelText(2, "Not Operational");
    VVLStatusBar.SetPanelText(1, MultiplayerConnected ? "VATSIM Detected" : "VATSIM Not detected");
}

char FrmOrvelle::VatsimLetter() {
    if (VVLEnable.Value != 1) {
        ShowLine(StatusVVL, "VATSIM Voice is disabled on this computer.", GoodColour);
        return 'R';
    }
    if (OwnVVL == 0) {
        ShowLine(StatusVVL, "VATSIM Voice is disabled. VATSIM Voice looks to be assign on a another computer.",
                 BadColour);
        return 'R';
    }
    if (!MultiplayerConnected) {
        ShowLine(StatusVVL, "VATSIM Voice is enabled. Engine not started, you aren't connected to VATSIM.", GoodColour);
        return 'Y';
    }
    ShowLine(StatusVVL, "VATSIM Voice is enabled. Engine started, VATSIM connected.", GoodColour);
    return 'V';
}

void FrmOrvelle::ShowStatusPicture(const std::string& key) {
    try {
        ST.TrayIcon(IconList.Image(key));
        StatusIcon.Picture = ST.TrayIcon();
    } catch (const RuntimeError&) {
        const HandlerDepth::Suspension suspension(handlers);
        Messages.MsgBox("Missing icon " + key);
    }
}

}  // namespace orvelle
