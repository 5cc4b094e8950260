#include "panel/Controls.h"

#include <initializer_list>
#include <set>
#include <string>

namespace orvelle {

namespace {

// The design size of the overview, twips; the shell replaces it by that of its layout before the load.
constexpr double DesignLeft = 2700;
constexpr double DesignWidth = 7800;
constexpr double DesignHeight = 6300;

// One key for each state of the six things shown: two letters at the first five places, three at the last.
std::set<std::string> StatusKeys() {
    std::set<std::string> keys{""};
    for (const std::string letters : {"VR", "VR", "VR", "VR", "VR", "VRY"}) {
        std::set<std::string> longer;
        for (const std::string& key : keys)
            for (const char letter : letters) longer.insert(key + letter);
        keys = std::move(longer);
    }
    return keys;
}

}  // namespace

PanelFrames::PanelFrames(Form& form) {
    for (Long panel = 0; panel < PanelCount; ++panel) Add(form, "Panels");
}

PanelControls::PanelControls()
    : Form("FrmOrvelle", "Orvelle Control Panel"), IconList(*this, "IconList", StatusKeys()) {
    Panels(OverviewPanel).Left = DesignLeft;
    Panels(OverviewPanel).Width = DesignWidth;
    Panels(OverviewPanel).Height = DesignHeight;
    for (Long panel = 1; panel < Panels.Count(); ++panel) Panels(panel).Visible = false;

    for (const char* caption : {"Autodetect", "Specific"})
        optVelmarc.Add(*this, "optVelmarc", &Panels(SimulatorLinkPanel), optVelmarc, caption);
    for (const char* caption :
         {"RogerWilco is driven by COMM transmit selector", "RogerWilco is driven on this computer by COMM 1",
          "RogerWilco is driven on this computer by COMM 2"})
        optRWDriver.Add(*this, "optRWDriver", &Panels(RogerWilcoPanel), optRWDriver, caption);
    for (const char* caption :
         {"Teamspeak is driven by COMM transmit selector", "Teamspeak is driven on this computer by COMM 1",
          "Teamspeak is driven on this computer by COMM 2"})
        optTSDriver.Add(*this, "optTSDriver", &Panels(TeamSpeakPanel), optTSDriver, caption);
    for (const char* caption : {"Autodetect", "Remote", "Connect Framework on local computer only"})
        optTessaly.Add(*this, "optTessaly", &Panels(FrameworkLinkPanel), optTessaly, caption);

    for (Control* hidden :
         std::initializer_list<Control*>{&lblVelmarcServerMulti, &lblTessalyServerMulti, &WaveIn, &LblWaveIn, &WaveOut,
                                         &LblWaveOut, &LblGWaveOut, &WaveOutWave, &LblWaveOutWave, &WaveOutHP,
                                         &LblWaveOutHP, &LblGWaveOutHP, &WaveOutWaveHP, &LblWaveOutWaveHP})
        hidden->Visible = false;
    for (Control* disabled : PrivateMapping()) disabled->Enabled = false;
}

PanelControls::~PanelControls() = default;

std::array<Control*, 8> PanelControls::PrivateMapping() {
    return {&LblVVLPrivFSJoyDisplay, &LblVVLPrivFSKeyDisplay, &VVLPrivFSJoyDisplay, &VVLPrivFSKeyDisplay,
            &VVLPrivJoySet,          &VVLPrivJoyClear,        &VVLPrivKeySet,       &VVLPrivKeyClear};
}

}  // namespace orvelle
