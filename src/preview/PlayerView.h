// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/RegularFile.h"

#include <QAudioOutput>
#include <QMediaDevices>
#include <QMediaPlayer>
#include <QString>
#include <QWidget>

#include <memory>
#include <optional>

class QLabel;
class QSlider;
class QToolButton;

namespace quorvin {

class VideoView;

/// "0:07", "12:34", "1:02:03"; the fraction of a second is left out. Any thread.
QString playingTime(qint64 milliseconds);

/// A medium that plays, with what belongs to it: play and pause, place, sound. What it lacks is said below
/// it. Main thread.
class PlayerView : public QWidget {
    Q_OBJECT
public:
    explicit PlayerView(QWidget *parent = nullptr);
    ~PlayerView() override;

    /// Plays the file from its beginning, which is never looked for elsewhere than in this descriptor.
    void play(RegularFile file);
    /// What stands for it until it has a moving picture.
    void setStill(const QImage &still);
    /// Lets go of the file.
    void clear();

    void togglePlaying();
    void seekBy(qint64 milliseconds);
    void toggleMuted() { setMuted(!_isMuted); }
    void setMuted(bool isMuted);
    bool isMuted() const { return _isMuted; }
    /// "" when nothing is missing.
    QString note() const;
    const QMediaPlayer &player() const { return _player; }

Q_SIGNALS:
    void mutedChanged(bool isMuted);

private:
    void layOut();
    QToolButton *makeButton(const QString &name);
    void connectPlayer();
    void setUpSound();
    void showPlace();
    void showState();
    void showStatus(QMediaPlayer::MediaStatus status);
    void setNote(const QString &note);

    std::optional<RegularFile> _file; ///< outlives its playing
    VideoView *_video;
    QLabel *_note;
    QToolButton *_playButton;
    QLabel *_time;
    QSlider *_place;
    QToolButton *_muteButton;
    QMediaDevices _devices;
    std::unique_ptr<QAudioOutput> _sound; ///< none without a device
    QMediaPlayer _player;
    bool _isMuted = false;
};

} // namespace quorvin
