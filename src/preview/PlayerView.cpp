// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview/PlayerView.h"

#include "preview/VideoView.h"
#include "shell/desktop/Icons.h"
#include "shell/desktop/PlainText.h"

#include <QAudioDevice>
#include <QLabel>
#include <QMediaMetaData>
#include <QSignalBlocker>
#include <QSlider>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>
#include <utility>

namespace quorvin {

namespace {

constexpr int kPlayerMargin = 8;
constexpr int kPageMilliseconds = 10'000; ///< that a click beside the slider's handle goes

/// 0 where no picture follows another.
double activeFrameRate(const QMediaPlayer &player)
{
    const auto tracks = player.videoTracks();
    const int active = player.activeVideoTrack();
    return active >= 0 && active < tracks.size()
        ? tracks[active].value(QMediaMetaData::VideoFrameRate).toDouble()
        : 0;
}

} // namespace

QString playingTime(qint64 milliseconds)
{
    const qint64 seconds = std::max<qint64>(milliseconds, 0) / 1000;
    const QString end = QStringLiteral("%1").arg(seconds % 60, 2, 10, QChar(u'0'));
    const qint64 minutes = seconds / 60;
    if (minutes < 60)
        return QStringLiteral("%1:%2").arg(minutes).arg(end);
    return QStringLiteral("%1:%2:%3").arg(minutes / 60).arg(minutes % 60, 2, 10, QChar(u'0')).arg(end);
}

PlayerView::PlayerView(QWidget *parent)
    : QWidget(parent),
      _video(new VideoView),
      _note(plainLabel()),
      _playButton(makeButton(tr("Play"))),
      _time(plainLabel()),
      _place(new QSlider(Qt::Horizontal)),
      _muteButton(makeButton(tr("Sound")))
{
    layOut();
    connectPlayer();
    connect(&_devices, &QMediaDevices::audioOutputsChanged, this, &PlayerView::setUpSound);
    setUpSound();
    showState();
    showPlace();
}

PlayerView::~PlayerView()
{
    disconnect(&_player, nullptr, this, nullptr);
    clear();
}

QToolButton *PlayerView::makeButton(const QString &name)
{
    auto *button = new QToolButton;
    button->setAutoRaise(true);
    button->setAccessibleName(name);
    return button;
}

void PlayerView::layOut()
{
    _note->setWordWrap(true);
    _note->setMargin(kPlayerMargin / 2);
    _note->hide();
    _place->setAccessibleName(tr("Place"));
    _place->setPageStep(kPageMilliseconds);
    auto *controls = new QHBoxLayout;
    controls->setContentsMargins(kPlayerMargin, kPlayerMargin / 2, kPlayerMargin, kPlayerMargin / 2);
    controls->setSpacing(kPlayerMargin);
    controls->addWidget(_playButton);
    controls->addWidget(_place, 1);
    controls->addWidget(_time);
    controls->addWidget(_muteButton);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(_video, 1);
    column->addWidget(_note);
    column->addLayout(controls);
    setFocusProxy(_playButton);
}

void PlayerView::connectPlayer()
{
    _player.setVideoSink(_video->sink());
    connect(&_player, &QMediaPlayer::positionChanged, this, &PlayerView::showPlace);
    connect(&_player, &QMediaPlayer::durationChanged, this, &PlayerView::showPlace);
    connect(&_player, &QMediaPlayer::playbackStateChanged, this, &PlayerView::showState);
    connect(&_player, &QMediaPlayer::mediaStatusChanged, this, &PlayerView::showStatus);
    connect(&_player, &QMediaPlayer::errorOccurred, this, [this](QMediaPlayer::Error, const QString &text) {
        setNote(tr("It cannot be played: %1").arg(text));
    });
    connect(_playButton, &QToolButton::clicked, this, &PlayerView::togglePlaying);
    connect(_muteButton, &QToolButton::clicked, this, &PlayerView::toggleMuted);
    connect(_place, &QSlider::valueChanged, &_player,
            [this](int milliseconds) { _player.setPosition(milliseconds); });
}

/// The player's backend may not survive a sound output that has no device.
void PlayerView::setUpSound()
{
    const bool hasDevice = !QMediaDevices::audioOutputs().isEmpty();
    if (hasDevice && !_sound) {
        _sound = std::make_unique<QAudioOutput>();
        _sound->setMuted(_isMuted);
        _player.setAudioOutput(_sound.get());
    } else if (!hasDevice && _sound) {
        _player.setAudioOutput(nullptr);
        _sound.reset();
    }
    _muteButton->setEnabled(hasDevice);
    showState();
}

void PlayerView::play(RegularFile file)
{
    clear();
    _file = std::move(file);
    _player.setSource(QUrl::fromLocalFile(_file->descriptorPath()));
    // A cover counts as a track of pictures that do not follow each other; the backend divides by their rate.
    if (!(activeFrameRate(_player) > 0))
        _player.setActiveVideoTrack(-1);
    _player.play();
}

void PlayerView::setStill(const QImage &still)
{
    _video->setStill(still);
}

void PlayerView::clear()
{
    _player.stop();
    _player.setSource({});
    _file.reset();
    _video->clear();
    setNote({});
    showPlace();
}

void PlayerView::togglePlaying()
{
    if (_player.playbackState() == QMediaPlayer::PlayingState)
        _player.pause();
    else
        _player.play();
}

void PlayerView::seekBy(qint64 milliseconds)
{
    if (_player.isSeekable())
        _player.setPosition(std::clamp<qint64>(_player.position() + milliseconds, 0, _player.duration()));
}

void PlayerView::setMuted(bool isMuted)
{
    if (std::exchange(_isMuted, isMuted) == isMuted)
        return;
    if (_sound)
        _sound->setMuted(isMuted);
    showState();
    Q_EMIT mutedChanged(isMuted);
}

QString PlayerView::note() const
{
    return _note->text();
}

void PlayerView::setNote(const QString &note)
{
    _note->setText(note);
    _note->setVisible(!note.isEmpty());
}

void PlayerView::showPlace()
{
    const QSignalBlocker blocker(_place);
    const qint64 duration = _player.duration();
    _place->setRange(0, static_cast<int>(std::min<qint64>(duration, std::numeric_limits<int>::max())));
    if (!_place->isSliderDown())
        _place->setValue(static_cast<int>(_player.position()));
    _place->setEnabled(duration > 0);
    _time->setText(
        tr("%1 / %2", "place and duration").arg(playingTime(_player.position()), playingTime(duration)));
}

void PlayerView::showState()
{
    const bool isPlaying = _player.playbackState() == QMediaPlayer::PlayingState;
    _playButton->setIcon(symbolIcon(isPlaying ? QStringLiteral("media-playback-pause")
                                              : QStringLiteral("media-playback-start")));
    _playButton->setAccessibleName(isPlaying ? tr("Pause") : tr("Play"));
    _playButton->setToolTip(plainTip(isPlaying ? tr("Pause (P)") : tr("Play (P)")));
    const bool isSilent = _isMuted || !_sound;
    _muteButton->setIcon(
        symbolIcon(isSilent ? QStringLiteral("audio-volume-muted") : QStringLiteral("audio-volume-high")));
    _muteButton->setAccessibleName(isSilent ? tr("Sound on") : tr("Sound off"));
    _muteButton->setToolTip(plainTip(isSilent ? tr("Sound on (M)") : tr("Sound off (M)")));
}

void PlayerView::showStatus(QMediaPlayer::MediaStatus status)
{
    if (status != QMediaPlayer::LoadedMedia && status != QMediaPlayer::BufferedMedia)
        return;
    if (!_player.hasVideo() && !_player.hasAudio())
        setNote(tr("There is nothing in it that can be played here: what decodes it may be missing"));
    else if (_player.hasAudio() && !_sound)
        setNote(tr("There is no audio device: it plays without sound"));
}

} // namespace quorvin
