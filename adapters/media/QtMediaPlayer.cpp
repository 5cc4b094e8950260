// The module that plays recordings by Qt Multimedia: the one function by which it is known, and a player of its own.
// What it needs is loaded with it, and by nothing else of the program.
#include <QAudioOutput>
#include <QFileInfo>
#include <QMediaPlayer>
#include <QUrl>
#include <algorithm>
#include <cmath>
#include <utility>

#include "adapters/media/MediaModule.h"

namespace orvelle::media {

namespace {

constexpr Long Stopped = 0;
constexpr Long Playing = 2;
constexpr double HundredthsPerDecade = 2000;  // of amplitude

// A file of this computer, or an address that can be played without giving a network's text any other reach.
QUrl AddressOf(const QString& source) {
    if (!source.contains("://")) return QUrl::fromLocalFile(QFileInfo(source).absoluteFilePath());
    const QUrl address(source);
    const bool isKnown = address.scheme() == "http" || address.scheme() == "https" || address.scheme() == "file";
    return address.isValid() && isKnown ? address : QUrl();
}

class QtMediaPlayer : public MediaPlayer {
public:
    explicit QtMediaPlayer(PlayFailed playFailed) : failed(std::move(playFailed)) {
        player.setAudioOutput(&output);
        QObject::connect(&player, &QMediaPlayer::mediaStatusChanged, &player,
                         [this](QMediaPlayer::MediaStatus status) { TakeStatus(status); });
        QObject::connect(&player, &QMediaPlayer::errorOccurred, &player,
                         [this](QMediaPlayer::Error, const QString& words) { Fail(words); });
    }

    void AutoRewind(bool on) override { rewinds = on; }
    void Open(const std::string& source) override {
        opened = source;
        isPlaying = true;
        const QUrl address = AddressOf(QString::fromStdString(source));
        // The same source is opened anew, too.
        player.setSource(QUrl());
        if (address.isEmpty()) return Fail("it is neither a file nor an address of the web");
        player.setSource(address);
        if (isPlaying) player.play();
    }
    void Stop() override {
        isPlaying = false;
        player.stop();
    }
    void Mute(bool on) override { output.setMuted(on); }
    void Volume(Long value) override {
        output.setVolume(static_cast<float>(std::pow(10, std::min(value, Long{0}) / HundredthsPerDecade)));
    }
    Long PlayState() override { return isPlaying ? Playing : Stopped; }

private:
    void TakeStatus(QMediaPlayer::MediaStatus status) {
        if (status == QMediaPlayer::InvalidMedia && isPlaying) Fail("it is no recording");
        if (status != QMediaPlayer::EndOfMedia) return;
        isPlaying = false;
        if (rewinds) player.setPosition(0);
    }
    void Fail(const QString& words) {
        if (!isPlaying) return;
        isPlaying = false;
        failed(opened, words.toStdString());
    }

    const PlayFailed failed;
    QAudioOutput output;
    QMediaPlayer player;
    std::string opened;
    bool isPlaying = false;  // from Open to the end, to Stop, or to a failure
    bool rewinds = false;
};

}  // namespace

}  // namespace orvelle::media

extern "C" orvelle::MediaPlayer* NewOrvelleMediaPlayer(orvelle::media::PlayFailed failed) {
    return new orvelle::media::QtMediaPlayer(std::move(failed));
}
