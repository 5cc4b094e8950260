#include "apps/talk/VoiceServer.h"

#include <QStringList>

#include "adapters/looks/Text.h"
#include "apps/three/ChildPrograms.h"

namespace orvelle {

VoiceServer::VoiceServer(std::uint16_t atPort) : port(atPort), files(FromQt(folder.path())) {}

VoiceServer::~VoiceServer() { EndChild(program); }

std::string VoiceServer::Start() {
    if (!folder.isValid()) return "no folder for the voice server: " + FromQt(folder.errorString());
    std::string problem = files.WriteConfiguration("127.0.0.1", port, "autobanAttempts=0\n");
    if (problem.empty()) problem = files.MakeDatabase("nobody-comes-as-this", Rights::EverybodyMakesChannels);
    if (problem.empty()) problem = files.GiveToServer();
    if (!problem.empty()) return problem;
    QStringList words;
    for (const std::string& word : files.ServerCommand()) words << ToQt(word);
    const QString file = words.takeFirst();
    program.setProcessChannelMode(QProcess::MergedChannels);
    StartChild(program, file, words);
    return "";
}

bool VoiceServer::Serves() { return Says("Server listening on"); }

// Who makes a channel is in it.
bool VoiceServer::HasInChannel(const std::string& callsign) {
    Says("");
    for (const QByteArray& line : said.split('\n'))
        if (line.contains((":" + callsign).c_str()) && (line.contains("> Moved ") || line.contains("> Added channel ")))
            return true;
    return false;
}

bool VoiceServer::Says(const std::string& words) {
    if (program.isOpen()) said += program.readAll();
    return said.contains(words.c_str());
}

}  // namespace orvelle
